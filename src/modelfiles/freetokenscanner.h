// FreeTokenScanner: cuts the text of a Lindo file into tokens, across its lines.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "modelfiles/modeltext.h"

namespace tarq {

class FreeTokenScanner : public ModelText {
public:
    using ModelText::ModelText;

    /// Goes to the next token: a sign, a relation, a closing parenthesis, a number without an exponent, or a word.
    /// False at the end of the text. Lines that begin with `!` or hold nothing before one are passed over.
    [[nodiscard]] bool nextToken();
    /// The current token; empty at the end of the text.
    [[nodiscard]] std::string_view token() const { return text().substr(tokenStart_, tokenLength_); }
    [[nodiscard]] std::size_t tokenStart() const { return tokenStart_; }
    [[nodiscard]] bool isRelation() const {
        const char first = tokenLength_ > 0 ? text()[tokenStart_] : ' ';
        return first == '<' || first == '>' || first == '=';
    }
    /// How far behind the start of the current token the next `character` stands, or the end of the text. Linear.
    [[nodiscard]] std::size_t distanceTo(char character) const {
        return std::min(text().find(character, tokenStart_), textLength()) - tokenStart_;
    }

    /// Whether the next token is ")", which is then the current one; otherwise the current one stays. The line of the
    /// cursor may have changed also then.
    [[nodiscard]] bool peekIsCloseParen();
    /// Whether the text from the current token on is one of the spellings of "subject to", with a blank or a line feed
    /// behind it. The current token is then all of it.
    [[nodiscard]] bool isSubjectToHere() {
        return tokenLength_ > 0 && upperCased(text()[tokenStart_]) == 'S' && takeSubjectTo();
    }
    /// The text from the current token to the end of the data in its line, the character behind that included; at most
    /// 32 characters.
    [[nodiscard]] std::string_view titleText() const;

private:
    [[nodiscard]] bool nextFreeLine();
    [[nodiscard]] bool takeSubjectTo();
    [[nodiscard]] std::size_t lengthOfTokenAt(std::size_t start) const;

    std::size_t commentStop_ = 0;  ///< where the data of the line ends
    std::size_t tokenStart_ = 0;
    std::size_t tokenLength_ = 0;
    std::size_t peekedStart_ = 0;  ///< of a token that was looked at and put back
    std::size_t peekedLength_ = 0;
};

}  // namespace tarq
