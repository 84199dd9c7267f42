#include "options.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <cstring>

#include "console.h"

namespace tarq::translator {

namespace {

constexpr const char* defaultSolver = "tarqampl";

bool isOptionName(const std::string& name) {
    const auto belongs = [](unsigned char one) { return std::isalnum(one) != 0 || one == '_'; };
    return !name.empty() && std::all_of(name.begin(), name.end(), belongs);
}

}  // namespace

void Options::carryOut(const Statement& command) {
    WordReader words(command);
    do {
        const auto name = words.next();
        if (!name || name->quoted || !isOptionName(name->text)) {
            throw Failure(command.place(), "the name of an option is missing behind 'option'");
        }
        std::string value;
        auto word = words.next();
        if (!word) {
            showLine(fmt::format("option {} '{}';", name->text, valueOf(name->text)));
            continue;
        }
        bool mayGoOn = true;
        for (; word && mayGoOn; word = words.next()) {
            const bool isReference = !word->quoted && word->text[0] == '$';
            value += isReference ? valueOf(word->text.substr(1)) : word->text;
            mayGoOn = word->quoted || isReference;
        }
        if (word) throw Failure(command.place(), "values of options can only be joined when they are strings");
        if (value.find('\0') != std::string::npos)
            throw Failure(command.place(), "a value of an option holds a zero byte");
        set_[name->text] = value;
    } while (words.skipComma());
    words.expectEnd();
}

std::string Options::valueOf(const std::string& name) const {
    if (const auto found = set_.find(name); found != set_.end()) return found->second;
    if (const char* inherited = std::getenv(name.c_str())) return inherited;
    return name == "solver" ? defaultSolver : "";
}

std::vector<std::string> Options::environment() const {
    std::vector<std::string> all;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view name(*entry, std::strcspn(*entry, "="));
        if (set_.find(name) == set_.end()) all.emplace_back(*entry);
    }
    for (const auto& [name, value] : set_) all.push_back(fmt::format("{}={}", name, value));
    return all;
}

}  // namespace tarq::translator
