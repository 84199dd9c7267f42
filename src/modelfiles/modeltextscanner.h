// ModelTextScanner: the whole text of a model file and a cursor that walks over its lines.
//
// The scanner knows lines, fields and numbers, but no format. It allocates nothing for a line: fields are views into
// the text, valid as long as the scanner. A line's number is counted only when someone asks for it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "frame/numbertext.h"
#include "modelfiles/fixedfields.h"

namespace tarq {

/// What a number field held.
enum class FieldNumber { Read, Empty, NotNumeric };

/// `text` without the blanks at both ends.
[[nodiscard]] std::string_view trimBlanks(std::string_view text);
/// Whether `text` with its ASCII letters in upper case is `upperCase`.
[[nodiscard]] bool equalsInUpperCase(std::string_view text, std::string_view upperCase);

class ModelTextScanner {
public:
    /// Prepares the text: each carriage return with its line feed becomes one line feed, each tab becomes one blank,
    /// and the last line gets a line feed if it has none. The cursor stands before the first line.
    explicit ModelTextScanner(std::string text);

    /// True when any line but the first begins with `word`. The cursor plays no part and doesn't move. Linear.
    [[nodiscard]] bool hasLaterLineWith(std::string_view word) const;

    /// Goes to the next line that isn't blank and doesn't begin with `*`. False at the end of the text, where the
    /// cursor then stands, on an empty line behind the last line feed.
    [[nodiscard]] bool nextFixedLine() {
        while (nextStart_ < text_.size()) {
            lineStart_ = nextStart_;
            const char* const first = text_.data() + lineStart_;
            const void* const feed = std::memchr(first, '\n', text_.size() - lineStart_);
            lineEnd_ = lineStart_ + static_cast<std::size_t>(static_cast<const char*>(feed) - first);
            nextStart_ = lineEnd_ + 1;
            if (*first != '*' && line().find_first_not_of(' ') != std::string_view::npos) return true;
        }
        lineStart_ = lineEnd_ = text_.size();
        return false;
    }

    /// Where the current line starts, and how long the whole text is.
    [[nodiscard]] std::size_t lineStart() const { return lineStart_; }
    [[nodiscard]] std::size_t textLength() const { return text_.size(); }
    /// Goes back to the line that starts at `lineStart`.
    void returnTo(std::size_t lineStart) {
        nextStart_ = lineStart;
        (void)nextFixedLine();
    }
    /// The number of lines behind the current one that begin with a blank, up to the first that doesn't.
    [[nodiscard]] std::size_t countIndentedLines() const;

    /// The current line without its line feed; empty at the end of the text.
    [[nodiscard]] std::string_view line() const { return {text_.data() + lineStart_, lineEnd_ - lineStart_}; }
    /// A line begins with a blank where it isn't empty and its first character is one.
    [[nodiscard]] bool startsWithBlank() const { return line().starts_with(' '); }
    /// The bytes at a place of the current line with the blanks around them; fewer than its width where the line ends.
    [[nodiscard]] std::string_view rawField(FixedFieldPlace place) const {
        const std::string_view current = line();
        if (current.size() <= place.start()) return {};
        return current.substr(place.start(), place.width);
    }
    /// Field `number` of the line, blanks at both ends trimmed.
    [[nodiscard]] std::string_view fixedField(std::size_t number) const {
        return trimBlanks(rawField(fixedFieldPlaces[number]));
    }
    /// The second and third character of the line in upper case, a blank for each that the line doesn't have.
    [[nodiscard]] std::array<char, 2> rowTypeCharacters() const;
    /// The number in field 4 or 6; blanks inside it don't count. `value` changes only when a number was read.
    [[nodiscard]] FieldNumber fixedNumber(std::size_t number, double& value) const;

    /// 1 and the line feeds before the current line. Linear.
    [[nodiscard]] std::size_t currentLineNumber() const;
    /// Gives the memory of the text back. The cursor is then at the end of a text without lines.
    void dropText();

private:
    std::string text_;
    std::size_t lineStart_ = 0;
    std::size_t lineEnd_ = 0;
    std::size_t nextStart_ = 0;
};

}  // namespace tarq
