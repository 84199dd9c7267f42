// ProfileScanner: cuts the text of a profile into names and values.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarq {

class ProfileScanner {
public:
    /// Cleans the text: white space at both ends, comments, empty lines and the blanks at the start of a line go, and
    /// tabs become blanks. Linear.
    explicit ProfileScanner(std::string_view text);

    [[nodiscard]] bool atEnd() const { return place_ >= text_.size(); }
    /// Reads a name up to its equals sign, blanks left out. False for anything else; `name` then holds what was read.
    [[nodiscard]] bool readName(std::string& name);
    /// Reads a value: up to the first blank outside of quotes, or what stands between quotes, of which either kind
    /// closes either. False for a line that ends without a value or within quotes.
    [[nodiscard]] bool readValue(std::string& value);
    /// The cleaned line that was read from last, with a blank put in behind each closing quote in it.
    [[nodiscard]] std::string line() const;

private:
    [[nodiscard]] char current() const { return text_[place_]; }
    /// Steps over a character.
    void step();

    std::string text_;
    std::size_t place_ = 0;
    std::string read_;  ///< what was read of the line
    bool lineEnded_ = false;
    bool blankAhead_ = false;  ///< one that was put in and isn't stepped over yet
};

}  // namespace tarq
