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
    const char* const begin = text().data() + start;
    const char* const stop = text().data() + commentStop_;
    const char first = *begin;
    const char second = begin + 1 != stop ? begin[1] : ' ';
    if (first == '+' || first == '-' || first == ')') return 1;
    if (first == '=') return second == '<' || second == '>' ? 2 : 1;
    if (first == '<' || first == '>') return second == '=' ? 2 : 1;
    if (isDigit(first) || (first == '.' && isDigit(second))) {
        const char* end = std::find_if_not(begin, stop, isDigit);
        for (int points = 0; points < 2 && end != stop && *end == '.'; ++points) {
            ++end;
            if (points == 0) end = std::find_if_not(end, stop, isDigit);
        }
        return static_cast<std::size_t>(end - begin);
    }
    const char* const end =
        std::find_if(begin, stop, [](char character) { return endsWord[static_cast<unsigned char>(character)]; });
    return static_cast<std::size_t>(end - begin);
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

bool FreeTokenScanner::takeSubjectTo() {
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
