#include "listing.h"

#include <fmt/format.h>
#include <glpk.h>

#include <charconv>
#include <cstdlib>
#include <cstring>

#include "console.h"

namespace tarq::translator {

namespace {

constexpr std::string_view announcement = "Display statement at line ";

/// The number that the text begins with and the text behind it; 0 when it begins with none.
std::pair<int, std::string_view> leadingNumber(std::string_view text) {
    int number = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number).ptr;
    return {number, text.substr(static_cast<std::size_t>(end - text.data()))};
}

}  // namespace

Listing::Listing(const AssembledText& model, const AssembledText& data, std::set<int> displayLines)
    : model_(model), data_(data), displayLines_(std::move(displayLines)) {
    glp_term_hook(&Listing::takeText, this);
    glp_error_hook(&Listing::giveUp, this);
}

Listing::~Listing() {
    glp_term_hook(nullptr, nullptr);
    glp_error_hook(nullptr, nullptr);
}

int Listing::takeText(void* listing, const char* text) {
    auto& self = *static_cast<Listing*>(listing);
    // GLPK writes the output of `display` and `printf` character by character, and its own messages whole.
    if (text[0] != '\0' && text[1] == '\0') {
        self.takeOutput(text[0]);
    } else {
        self.takeMessage(text);
    }
    return 1;
}

void Listing::giveUp(void* listing) {
    // Returning would abort the process, and nothing can be thrown through GLPK. What belongs to the run but the memory
    // is cleared away by the process that waits for this one.
    auto& self = *static_cast<Listing*>(listing);
    self.endOutput();
    showLine("GLPK gave up: " + self.failureText());
    flushOutput();
    std::_Exit(EXIT_FAILURE);
}

void Listing::takeOutput(char character) {
    outputLine_ += character;
    if (character == '\n') showOutputLine();
}

void Listing::showOutputLine() {
    const std::size_t start = outputLine_.rfind(announcement);
    if (start != std::string::npos) {
        const auto [line, rest] = leadingNumber(std::string_view(outputLine_).substr(start + announcement.size()));
        const bool announces = rest == "\n" && displayLines_.count(line) == 1;
        if (announces) outputLine_.resize(start);
        if (announces && start > 0) outputLine_ += '\n';
    }
    show(outputLine_);
    outputLine_.clear();
}

void Listing::endOutput() {
    if (!outputLine_.empty()) showOutputLine();
}

void Listing::takeMessage(std::string_view line) {
    const std::string message = placed(line);
    if (message.find(": warning: ") != std::string::npos) {
        endOutput();
        show(message);
    } else if (!message.empty() || (!wrong_.empty() && line.substr(0, 8) == "Context:")) {
        wrong_ += message.empty() ? line : message;
    } else {
        noise_ += line;
    }
}

std::string Listing::placed(std::string_view message) const {
    for (const AssembledText* text : {&model_, &data_}) {
        const std::string start = text->path() + ":";
        if (text->empty() || message.substr(0, start.size()) != start) continue;
        const auto [line, rest] = leadingNumber(message.substr(start.size()));
        const Place place = text->placeOf(line);
        return fmt::format("{}:{}{}", place.file, place.line, rest);
    }
    return {};
}

std::string Listing::failureText() const {
    std::string text = wrong_.empty() ? noise_ : wrong_;
    while (!text.empty() && text.back() == '\n') text.pop_back();
    return text.empty() ? "no reason was given" : text;
}

void Listing::beginStep() {
    wrong_.clear();
    noise_.clear();
}

}  // namespace tarq::translator
