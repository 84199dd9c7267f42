#include "modelfiles/lindoscanner.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarq {

bool LindoScanner::takePeeked() {
    token_ = std::exchange(peeked_, Token());
    return true;
}

bool LindoScanner::nextTokenOfLaterLine() {
    while (nextLine()) {
        const std::string_view whole = line();
        const std::string_view data = whole.substr(0, whole.find('!'));
        const std::size_t blanks = data.find_first_not_of(' ');
        if (blanks == std::string_view::npos) continue;
        commentStop_ = lineStart() + data.size();
        cutTokenAt(lineStart() + blanks);
        return true;
    }
    commentStop_ = textLength();
    token_ = {.start = textLength()};
    return false;
}

std::string_view LindoScanner::wordBeforeCloseParen() const {
    // Bounded, as a text without any would be searched to its end each time.
    constexpr std::size_t reach = 2'048;
    const std::string_view near = text().substr(token_.start + token_.length, reach);
    const std::string_view before = near.substr(0, near.find(')'));
    if (before.size() == near.size()) return {};
    return before.substr(before.find_last_of(" \n") + 1);
}

bool LindoScanner::peekIsCloseParen() {
    const Token current = token_;
    if (!nextToken()) {
        token_ = current;
        return false;
    }
    if (firstCharacter() == ')') return true;
    peeked_ = std::exchange(token_, current);
    return false;
}

bool LindoScanner::takeSubjectTo() {
    constexpr std::array<std::string_view, 4> keywords{"ST", "S.T.", "SUCH THAT", "SUBJECT TO"};
    const std::string_view rest = text().substr(token_.start);
    for (const std::string_view keyword : keywords) {
        if (rest.size() <= keyword.size() || !equalsInUpperCase(rest.substr(0, keyword.size()), keyword)) continue;
        const char behind = rest[keyword.size()];
        if (behind != ' ' && behind != '\n') continue;
        token_.length = keyword.size();
        return true;
    }
    return false;
}

std::string_view LindoScanner::titleText() const {
    constexpr std::size_t longestTitle = 32;
    return text().substr(token_.start, std::min(commentStop_ + 1 - token_.start, longestTitle));
}

}  // namespace tarq
