// TripletScanner: walks over the lines of a Triplet file and cuts them into tokens.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "modelfiles/modeltext.h"

namespace tarq {

class TripletScanner : public ModelText {
public:
    using ModelText::ModelText;

    /// Goes to the next line with data: one that begins with neither `*` nor `!` and isn't blank before its first `!`.
    /// False at the end of the text.
    [[nodiscard]] bool nextDataLine();

    /// How many tokens the line has. Leaves the token cursor where it is.
    [[nodiscard]] std::size_t countTokens() const;

    // The token cursor stands before the first token of a new line. Each of these reads the next token as a whole;
    // false when there is none, when it has more than 64 characters, or when it is no such number.
    [[nodiscard]] bool readReal(double& value);
    [[nodiscard]] bool readInteger(std::int32_t& value);
    /// Passes over the next token.
    void skipToken() { (void)takeToken(); }

    /// What stands behind the last token read, up to the data's end, without the blanks around it: a name, which may
    /// hold blanks. False for more than 64 characters, the blank that separates it among them. Where the last token
    /// ends the data, without so much as a blank, the next `borrowed` characters of the text are taken, whatever they
    /// are.
    [[nodiscard]] bool readRestOfLine(std::size_t borrowed, std::string_view& name);

    /// The name that a line some way behind the current one seems to end with, and with each call one line more. Only
    /// a hint at what comes.
    [[nodiscard]] std::string_view nameAhead();

private:
    std::string_view takeToken();

    std::string_view data_;  ///< of the current line, without its comment
    std::size_t place_ = 0;  ///< in data_, behind the last token
};

}  // namespace tarq
