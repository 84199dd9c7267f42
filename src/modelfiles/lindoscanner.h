// LindoScanner: cuts the text of a Lindo file into tokens, across its lines.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "frame/numbertext.h"
#include "modelfiles/fixedname.h"
#include "modelfiles/modeltext.h"

namespace tarq {

class LindoScanner : public ModelText {
public:
    using ModelText::ModelText;

    /// Goes to the next token: a sign, a relation, a closing parenthesis, a number without an exponent, or a word.
    /// False at the end of the text. Lines that begin with `!` or hold nothing before one are passed over.
    [[nodiscard]] bool nextToken() {
        if (peeked_.length > 0) return takePeeked();
        // What was looked at and put back may stand on an earlier line.
        std::size_t place = std::max(token_.start + token_.length, lineStart());
        while (place < commentStop_ && text()[place] == ' ') ++place;
        if (place >= commentStop_) return nextTokenOfLaterLine();
        cutTokenAt(place);
        return true;
    }
    /// The current token; empty at the end of the text.
    [[nodiscard]] std::string_view token() const { return text().substr(token_.start, token_.length); }
    [[nodiscard]] std::size_t tokenStart() const { return token_.start; }
    /// The first character of the token, which tells its kind but for relations; a blank at the end of the text.
    [[nodiscard]] char firstCharacter() const { return token_.length > 0 ? text()[token_.start] : ' '; }
    [[nodiscard]] bool isSign() const { return firstCharacter() == '+' || firstCharacter() == '-'; }
    [[nodiscard]] bool isRelation() const {
        const char first = firstCharacter();
        return first == '<' || first == '>' || first == '=';
    }
    /// Sets `value` where the whole token is a number; otherwise the result is false.
    [[nodiscard]] bool readNumber(double& value) const {
        if (token_.isNumber) value = token_.number;
        return token_.isNumber;
    }
    /// A token of at most eight characters, in capitals.
    [[nodiscard]] FixedName shortToken() const {
        return FixedName::inCapitals(token_.length, text().substr(token_.start));
    }
    /// How far behind the start of the current token the next `character` stands, or the end of the text. Linear.
    [[nodiscard]] std::size_t distanceTo(char character) const {
        return std::min(text().find(character, token_.start), textLength()) - token_.start;
    }

    /// The word right before the next ")" behind the current token, where both are near; otherwise empty. Only a hint
    /// at what comes: comments and other tokens are not told apart.
    [[nodiscard]] std::string_view wordBeforeCloseParen() const;
    /// Whether the next token is ")", which is then the current one; otherwise the current one stays. The line of the
    /// cursor may have changed also then.
    [[nodiscard]] bool peekIsCloseParen();
    /// Whether the text from the current token on is one of the spellings of "subject to", with a blank or a line feed
    /// behind it. The current token is then all of it.
    [[nodiscard]] bool isSubjectToHere() {
        return token_.length > 0 && upperCased(text()[token_.start]) == 'S' && takeSubjectTo();
    }
    /// The text from the current token to the end of the data in its line, the character behind that included; at most
    /// 32 characters.
    [[nodiscard]] std::string_view titleText() const;

private:
    struct Token {
        std::size_t start = 0;
        std::size_t length = 0;
        double number = 0.0;  ///< where it is one
        bool isNumber = false;
    };

    [[nodiscard]] static bool isDigit(char character) { return static_cast<unsigned char>(character - '0') < 10; }
    bool takePeeked();
    [[nodiscard]] bool nextTokenOfLaterLine();
    [[nodiscard]] bool takeSubjectTo();
    void cutTokenAt(std::size_t start) {
        const char* const begin = text().data() + start;
        const char* const stop = text().data() + commentStop_;
        token_.start = start;
        token_.isNumber = false;
        const char first = *begin;
        const char second = begin + 1 != stop ? begin[1] : ' ';
        if (first == '+' || first == '-' || first == ')') {
            token_.length = 1;
        } else if (isDigit(first) || (first == '.' && isDigit(second))) {
            cutNumber(begin, stop);
        } else if (first == '=') {
            token_.length = second == '<' || second == '>' ? 2 : 1;
        } else if (first == '<' || first == '>') {
            token_.length = second == '=' ? 2 : 1;
        } else {
            token_.length = lengthOfWord(begin, stop);
        }
    }
    void cutNumber(const char* begin, const char* stop) {
        const char* const end =
            numbertext::readPlainReal({begin, static_cast<std::size_t>(stop - begin)}, token_.number);
        // A second point belongs to the token, which then is no number.
        token_.isNumber = end == stop || *end != '.';
        token_.length = static_cast<std::size_t>(end - begin) + (token_.isNumber ? 0 : 1);
    }
    [[nodiscard]] static std::size_t lengthOfWord(const char* begin, const char* stop) {
        const char* end = begin;
        while (end != stop && !endsWord[static_cast<unsigned char>(*end)]) ++end;
        return static_cast<std::size_t>(end - begin);
    }

    /// By byte. A look into a table costs less than a search through the list for each byte.
    static constexpr std::array<bool, 256> endsWord = [] {
        std::array<bool, 256> ends{};
        for (const char character : std::string_view(" )<>-+=")) ends[static_cast<unsigned char>(character)] = true;
        return ends;
    }();

    std::size_t commentStop_ = 0;  ///< where the data of the line ends
    Token token_;
    Token peeked_;  ///< was looked at and put back; else empty
};

}  // namespace tarq
