#include "statementreader.h"

#include <fmt/format.h>

#include <algorithm>

namespace tarq::translator {

namespace {

constexpr std::string_view blanks = " \t\r\n\f\v";

bool isBlank(char character) { return blanks.find(character) != std::string_view::npos; }

// Letters are those of the language, whatever the locale says.
bool isWordCharacter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '_';
}

std::string_view leadingWord(std::string_view text) {
    if (text.substr(0, 4) == "s.t.") return text.substr(0, 4);
    std::size_t length = 0;
    while (length < text.size() && isWordCharacter(text[length])) ++length;
    const bool isNumber = length > 0 && text[0] >= '0' && text[0] <= '9';
    return text.substr(0, isNumber ? 0 : length);
}

/// Position behind a comment at the start of `text`: 0 without a comment, npos for one that isn't closed.
std::size_t commentLength(std::string_view text) {
    if (text.substr(0, 1) == "#") {
        const std::size_t end = text.find('\n');
        return end == std::string_view::npos ? text.size() : end;
    }
    if (text.substr(0, 2) != "/*") return 0;
    const std::size_t end = text.find("*/", 2);
    return end == std::string_view::npos ? end : end + 2;
}

std::string_view withoutBlanks(std::string_view text) {
    for (;;) {
        const std::size_t start = text.find_first_not_of(blanks);
        text.remove_prefix(start == std::string_view::npos ? text.size() : start);
        const std::size_t comment = commentLength(text);
        if (comment == 0 || comment == std::string_view::npos) return text;
        text.remove_prefix(comment);
    }
}

}  // namespace

std::string_view Statement::firstWord() const { return leadingWord(text); }

std::string_view Statement::nameBehindFirstWord() const {
    return leadingWord(withoutBlanks(text.substr(firstWord().size())));
}

void StatementReader::step() {
    if (text_[position_] == '\n') ++line_;
    ++position_;
}

bool StatementReader::skipComment() {
    const std::size_t length = commentLength(text_.substr(position_));
    if (length == std::string_view::npos) throw failure(line_, "the comment that begins here isn't closed");
    for (std::size_t count = 0; count < length; ++count) step();
    return length > 0;
}

void StatementReader::skipBlanks() {
    do {
        while (!atEnd() && (isBlank(text_[position_]) || text_[position_] == ';')) step();
    } while (!atEnd() && skipComment());
}

void StatementReader::skipString() {
    // A quote within a string is doubled, which reads as one string behind another.
    const char quote = text_[position_];
    const std::size_t end = text_.find_first_of(quote == '"' ? "\"\n" : "'\n", position_ + 1);
    if (end == std::string_view::npos || text_[end] == '\n') {
        throw failure(line_, "the string that begins in this line isn't closed in it");
    }
    position_ = end + 1;
}

std::optional<Statement> StatementReader::next() {
    skipBlanks();
    if (atEnd()) return std::nullopt;
    const std::size_t start = position_;
    const int startLine = line_;
    while (!atEnd()) {
        const char character = text_[position_];
        if (character == '\'' || character == '"') {
            skipString();
        } else if (!skipComment()) {
            step();
            if (character == ';') return Statement{file_, startLine, text_.substr(start, position_ - start)};
        }
    }
    throw failure(startLine, "the statement that begins here has no semicolon at its end");
}

WordReader::WordReader(const Statement& command)
    : command_(command), rest_(command.text.substr(command.firstWord().size())) {
    rest_.remove_suffix(1);
    rest_ = withoutBlanks(rest_);
}

std::optional<WordReader::Word> WordReader::next() {
    if (rest_.empty() || rest_[0] == ',') return std::nullopt;
    Word word;
    const char quote = rest_[0];
    word.quoted = quote == '\'' || quote == '"';
    std::size_t end = 0;
    if (word.quoted) {
        for (end = 1; rest_[end] != quote || rest_.substr(end + 1, 1) == std::string_view(&quote, 1); ++end) {
            word.text += rest_[end];
            if (rest_[end] == quote) ++end;
        }
        ++end;
    } else {
        end = std::min(rest_.find_first_of(" \t\r\n\f\v,'\""), rest_.size());
        word.text = rest_.substr(0, end);
    }
    rest_ = withoutBlanks(rest_.substr(end));
    return word;
}

bool WordReader::skipComma() {
    if (rest_.substr(0, 1) != ",") return false;
    rest_ = withoutBlanks(rest_.substr(1));
    return true;
}

void WordReader::expectEnd() {
    if (rest_.empty()) return;
    const std::string_view shown = rest_.substr(0, std::min<std::size_t>(rest_.find_first_of("\r\n"), 40));
    throw Failure(command_.place(), fmt::format("'{}' isn't taken behind '{}' here", shown, command_.firstWord()));
}

}  // namespace tarq::translator
