#include "modelfiles/modeltextscanner.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarq {
namespace {

// Most files have neither tabs nor carriage returns: finding none costs a fraction of rewriting every byte.
bool holds(const std::string& text, char character) {
    return std::memchr(text.data(), character, text.size()) != nullptr;
}

void foldLineEnds(std::string& text) {
    std::size_t kept = 0;
    for (std::size_t position = 0; position < text.size(); ++position) {
        const bool beforeFeed = position + 1 < text.size() && text[position + 1] == '\n';
        if (text[position] != '\r' || !beforeFeed) text[kept++] = text[position];
    }
    text.resize(kept);
}

char upperCase(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

FieldNumber readWithoutBlanks(std::string_view field, double& value) {
    std::array<char, 16> digits{};
    const char* const end = std::copy_if(field.begin(), field.end(), digits.begin(), [](char c) { return c != ' '; });
    const std::string_view text(digits.data(), static_cast<std::size_t>(end - digits.data()));
    return parseReal(text, value) ? FieldNumber::Read : FieldNumber::NotNumeric;
}

}  // namespace

std::string_view trimBlanks(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

bool equalsInUpperCase(std::string_view text, std::string_view upperCaseText) {
    return std::equal(text.begin(), text.end(), upperCaseText.begin(), upperCaseText.end(),
                      [](char given, char wanted) { return upperCase(given) == wanted; });
}

ModelTextScanner::ModelTextScanner(std::string text) : text_(std::move(text)) {
    if (holds(text_, '\r')) foldLineEnds(text_);
    if (holds(text_, '\t')) std::replace(text_.begin(), text_.end(), '\t', ' ');
    if (!text_.ends_with('\n')) text_.push_back('\n');
}

bool ModelTextScanner::hasLaterLineWith(std::string_view word) const {
    // The first letter of a keyword is rarer than a line feed, so there is less to look at.
    const std::string_view text = text_;
    for (std::size_t found = text.find(word.front()); found != std::string_view::npos;
         found = text.find(word.front(), found + 1)) {
        if (found > 0 && text[found - 1] == '\n' && text.substr(found).starts_with(word)) return true;
    }
    return false;
}

std::size_t ModelTextScanner::countIndentedLines() const {
    std::size_t count = 0;
    std::size_t start = nextStart_;
    while (start < text_.size() && text_[start] == ' ') {
        ++count;
        start = text_.find('\n', start) + 1;
    }
    return count;
}

std::array<char, 2> ModelTextScanner::rowTypeCharacters() const {
    const std::string_view field = rawField(fixedFieldPlaces[1]);
    return {field.empty() ? ' ' : upperCase(field[0]), field.size() < 2 ? ' ' : upperCase(field[1])};
}

FieldNumber ModelTextScanner::fixedNumber(std::size_t number, double& value) const {
    const std::string_view field = fixedField(number);
    if (field.empty()) return FieldNumber::Empty;
    if (parseReal(field, value)) return FieldNumber::Read;
    return readWithoutBlanks(field, value);
}

std::size_t ModelTextScanner::currentLineNumber() const {
    const std::string_view before = std::string_view(text_).substr(0, lineStart_);
    return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

void ModelTextScanner::dropText() {
    std::string().swap(text_);
    lineStart_ = lineEnd_ = nextStart_ = 0;
}

}  // namespace tarq
