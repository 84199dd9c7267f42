#include "driveroptions.h"

#include <cstdlib>

namespace tarq::driver {
namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr const char* usage = "usage: tarqampl STUB [-AMPL] [NAME=VALUE...], tarqampl -v, tarqampl -=";

std::string fromEnvironment(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

/// Takes away the quotes that callers put around a value with blanks in it.
std::string unquoted(std::string value) {
    const bool quoted =
        value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
    return quoted ? value.substr(1, value.size() - 2) : value;
}

void addAssignment(const std::string& word, DriverOptions& options) {
    const std::size_t sign = word.find('=');
    if (sign == std::string::npos || sign == 0) {
        options.wrong = "'" + word + "' is no NAME=VALUE";
        return;
    }
    options.assignments.push_back({word.substr(0, sign), unquoted(word.substr(sign + 1))});
}

void readWord(const std::string& word, DriverOptions& options) {
    if (word == "-AMPL") {
        options.calledByAmpl = true;
    } else if (word == "-v") {
        options.task = DriverOptions::Task::ShowVersion;
    } else if (word == "-=") {
        options.task = DriverOptions::Task::ListParameters;
    } else if (options.stub.empty() && word.starts_with('-')) {
        options.wrong = "there is no option '" + word + "'; " + usage;
    } else if (options.stub.empty()) {
        options.stub = word;
    } else {
        addAssignment(word, options);
    }
}

}  // namespace

std::vector<std::string> splitWords(std::string_view text) {
    std::vector<std::string> words;
    char quote = '\0';
    bool inWord = false;
    for (const char character : text) {
        if (quote == '\0' && blanks.find(character) != std::string_view::npos) {
            inWord = false;
            continue;
        }
        if (!inWord) words.emplace_back();
        inWord = true;
        words.back() += character;
        if (character == quote) {
            quote = '\0';
        } else if (quote == '\0' && (character == '"' || character == '\'')) {
            quote = character;
        }
    }
    return words;
}

DriverOptions readOptions(int count, const char* const* arguments) {
    DriverOptions options;
    options.engine = fromEnvironment("LocationOfTARQDLL");
    options.profile = fromEnvironment("LocationOfTARQProfile");
    for (const std::string& word : splitWords(fromEnvironment("tarqampl_options"))) addAssignment(word, options);
    for (int index = 1; index < count; ++index) readWord(arguments[index], options);
    if (options.task != DriverOptions::Task::WrongUsage) return options;
    if (options.wrong.empty() && options.stub.empty()) {
        options.wrong = usage;
    }
    if (options.wrong.empty()) options.task = DriverOptions::Task::Solve;
    return options;
}

}  // namespace tarq::driver
