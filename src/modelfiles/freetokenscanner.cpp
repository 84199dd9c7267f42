#include "modelfiles/freetokenscanner.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarq {
namespace {

/// By byte. A look into a table costs less than a search through the list for each byte.
constexpr std::array<bool, 256> endsWord = [] {
    std::array<bool, 256> ends{};
    for (const char character : std::string_view(" )<>-+=")) ends[static_cast<unsigned char>(character)] = true;
    return ends;
}();

bool isDigit(char character) { return character >= '0' && character <= '9'; }

}  // namespace

bool FreeTokenScanner::nextFreeLine() {
    while (nextLine()) {
        const std::string_view whole = line();
        const std::string_view data = whole.substr(0, whole.find('!'));
        if (data.find_first_not_of(' ') == std::string_view::npos) continue;
        commentStop_ = lineStart() + data.size();
        return true;
    }
    commentStop_ = textLength();
    return false;
}

bool FreeTokenScanner::nextToken() {
    if (peekedLength_ > 0) {
        tokenStart_ = peekedStart_;
        tokenLength_ = std::exchange(peekedLength_, 0);
        return true;
    }
    std::size_t place = tokenStart_ + tokenLength_;
    do {
        place = std::max(place, lineStart());
        while (place < commentStop_ && text()[place] == ' ') ++place;
        if (place < commentStop_) {
            tokenStart_ = place;
            tokenLength_ = lengthOfTokenAt(place);
            return true;
        }
    } while (nextFreeLine());
    tokenStart_ = textLength();
    tokenLength_ = 0;
    return false;
}

std::size_t FreeTokenScanner::lengthOfTokenAt(std::size_t start) const {
    const std::string_view rest = text().substr(start, commentStop_ - start);
    const char first = rest[0];
    const char second = rest.size() > 1 ? rest[1] : ' ';
    if (first == '+' || first == '-' || first == ')') return 1;
    if (first == '=') return second == '<' || second == '>' ? 2 : 1;
    if (first == '<' || first == '>') return second == '=' ? 2 : 1;
    if (isDigit(first) || (first == '.' && isDigit(second))) {
        std::size_t points = 0;
        std::size_t length = 0;
        while (length < rest.size() && points < 2 && (isDigit(rest[length]) || rest[length] == '.')) {
            if (rest[length] == '.') ++points;
            ++length;
        }
        return length;
    }
    const auto end =
        std::ranges::find_if(rest, [](char character) { return endsWord[static_cast<unsigned char>(character)]; });
    return static_cast<std::size_t>(end - rest.begin());
}

bool FreeTokenScanner::isRelation() const {
    const std::string_view current = token();
    return !current.empty() && (current[0] == '<' || current[0] == '>' || current[0] == '=');
}

bool FreeTokenScanner::peekIsCloseParen() {
    const std::size_t start = tokenStart_;
    const std::size_t length = tokenLength_;
    if (!nextToken()) {
        tokenStart_ = start;
        tokenLength_ = length;
        return false;
    }
    if (token() == ")") return true;
    peekedStart_ = std::exchange(tokenStart_, start);
    peekedLength_ = std::exchange(tokenLength_, length);
    return false;
}

bool FreeTokenScanner::isSubjectToHere() {
    constexpr std::array<std::string_view, 4> keywords{"ST", "S.T.", "SUCH THAT", "SUBJECT TO"};
    const std::string_view rest = text().substr(tokenStart_);
    for (const std::string_view keyword : keywords) {
        if (rest.size() <= keyword.size() || !equalsInUpperCase(rest.substr(0, keyword.size()), keyword)) continue;
        const char behind = rest[keyword.size()];
        if (behind != ' ' && behind != '\n') continue;
        tokenLength_ = keyword.size();
        return true;
    }
    return false;
}

std::string_view FreeTokenScanner::titleText() const {
    constexpr std::size_t longestTitle = 32;
    return text().substr(tokenStart_, std::min(commentStop_ + 1 - tokenStart_, longestTitle));
}

}  // namespace tarq
