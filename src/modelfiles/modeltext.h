// ModelText: the whole text of a model file and a cursor that stands on one of its lines.
//
// What all formats share. The scanners of the formats derive from it; each knows which lines count. Nothing is
// allocated for a line: what is read are views into the text, valid as long as this object. A line's number is counted
// only when someone asks for it.
#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace tarq {

/// `text` without the blanks at both ends.
[[nodiscard]] std::string_view trimBlanks(std::string_view text);
/// An ASCII small letter as its capital; any other byte as it is.
[[nodiscard]] constexpr char upperCased(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}
/// A text in upper case, which may be of any length.
[[nodiscard]] std::string inCapitals(std::string_view text);
/// Whether `text` with its ASCII letters in upper case is `upperCase`.
[[nodiscard]] bool equalsInUpperCase(std::string_view text, std::string_view upperCase);

class ModelText {
public:
    /// Prepares the text: each carriage return with its line feed becomes one line feed, each tab becomes one blank,
    /// and the last line gets a line feed if it has none. The cursor stands before the first line.
    explicit ModelText(std::string text);

    /// Where the current line starts, and how long the whole text is.
    [[nodiscard]] std::size_t lineStart() const { return lineStart_; }
    [[nodiscard]] std::size_t textLength() const { return text_.size(); }
    /// The current line without its line feed; empty at the end of the text.
    [[nodiscard]] std::string_view line() const { return {text_.data() + lineStart_, lineEnd_ - lineStart_}; }
    /// 1 and the line feeds before the current line. Linear.
    [[nodiscard]] std::size_t currentLineNumber() const;
    /// Gives the memory of the text back. The cursor is then at the end of a text without lines.
    void dropText();

protected:
    /// Goes to the next line; false at the end of the text, where the cursor then stands, on an empty line behind the
    /// last line feed.
    [[nodiscard]] bool nextLine() {
        if (nextStart_ >= text_.size()) {
            lineStart_ = lineEnd_ = text_.size();
            return false;
        }
        lineStart_ = nextStart_;
        const char* const first = text_.data() + lineStart_;
        const void* const feed = std::memchr(first, '\n', text_.size() - lineStart_);
        lineEnd_ = lineStart_ + static_cast<std::size_t>(static_cast<const char*>(feed) - first);
        nextStart_ = lineEnd_ + 1;
        return true;
    }
    /// A line some way behind the current one, without its line feed, and with each call one more; empty at the end of
    /// the text. Only a hint at what comes: lines that don't count are among them.
    [[nodiscard]] std::string_view nextLineAhead() {
        if (aheadStart_ <= nextStart_) restartAhead();
        return takeLineAhead();
    }
    [[nodiscard]] std::size_t nextLineStart() const { return nextStart_; }
    [[nodiscard]] std::size_t lineEnd() const { return lineEnd_; }
    [[nodiscard]] std::string_view text() const { return text_; }

private:
    std::string_view takeLineAhead() {
        if (aheadStart_ >= text_.size()) return {};
        const char* const first = text_.data() + aheadStart_;
        const auto* const feed = static_cast<const char*>(std::memchr(first, '\n', text_.size() - aheadStart_));
        const auto length = static_cast<std::size_t>(feed - first);
        aheadStart_ += length + 1;
        return {first, length};
    }
    void restartAhead();

    std::string text_;
    std::size_t lineStart_ = 0;
    std::size_t lineEnd_ = 0;
    std::size_t nextStart_ = 0;
    std::size_t aheadStart_ = 0;  ///< of the line that nextLineAhead gives next
};

}  // namespace tarq
