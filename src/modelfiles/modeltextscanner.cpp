#include "modelfiles/modeltextscanner.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarq {
namespace {

FieldNumber readWithoutBlanks(std::string_view field, double& value) {
    std::array<char, 16> digits{};
    const char* const end = std::copy_if(field.begin(), field.end(), digits.begin(), [](char c) { return c != ' '; });
    const std::string_view text(digits.data(), static_cast<std::size_t>(end - digits.data()));
    return parseReal(text, value) ? FieldNumber::Read : FieldNumber::NotNumeric;
}

}  // namespace

bool ModelTextScanner::hasLaterLineWith(std::string_view word) const {
    // The first letter of a keyword is rarer than a line feed, so there is less to look at.
    const std::string_view text = this->text();
    for (std::size_t found = text.find(word.front()); found != std::string_view::npos;
         found = text.find(word.front(), found + 1)) {
        if (found > 0 && text[found - 1] == '\n' && text.substr(found).starts_with(word)) return true;
    }
    return false;
}

std::size_t ModelTextScanner::countIndentedLines() const {
    std::size_t count = 0;
    std::size_t start = nextLineStart();
    while (start < textLength() && text()[start] == ' ') {
        ++count;
        start = text().find('\n', start) + 1;
    }
    return count;
}

std::array<char, 2> ModelTextScanner::rowTypeCharacters() const {
    const std::string_view field = rawField(fixedFieldPlaces[1]);
    return {field.empty() ? ' ' : upperCased(field[0]), field.size() < 2 ? ' ' : upperCased(field[1])};
}

FieldNumber ModelTextScanner::fixedNumber(std::size_t number, double& value) const {
    const std::string_view field = fixedField(number);
    if (field.empty()) return FieldNumber::Empty;
    if (parseReal(field, value)) return FieldNumber::Read;
    return readWithoutBlanks(field, value);
}

}  // namespace tarq
