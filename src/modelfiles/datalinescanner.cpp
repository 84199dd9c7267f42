#include "modelfiles/datalinescanner.h"

#include <algorithm>

#include "frame/numbertext.h"

namespace tarq {
namespace {

constexpr std::size_t longestToken = 64;
constexpr std::size_t longestName = 64;

}  // namespace

bool DataLineScanner::nextDataLine() {
    while (nextLine()) {
        const std::string_view whole = line();
        if (whole.starts_with('*')) continue;
        data_ = whole.substr(0, whole.find('!'));
        if (data_.find_first_not_of(' ') == std::string_view::npos) continue;
        place_ = 0;
        return true;
    }
    data_ = {};
    place_ = 0;
    return false;
}

std::size_t DataLineScanner::countTokens() const {
    std::size_t count = 0;
    bool inToken = false;
    for (const char character : data_) {
        if (character != ' ' && !inToken) ++count;
        inToken = character != ' ';
    }
    return count;
}

std::string_view DataLineScanner::takeToken() {
    const std::size_t start = std::min(data_.find_first_not_of(' ', place_), data_.size());
    place_ = std::min(data_.find(' ', start), data_.size());
    return data_.substr(start, place_ - start);
}

bool DataLineScanner::readReal(double& value) {
    const std::string_view token = takeToken();
    return token.size() <= longestToken && parseReal(token, value);
}

bool DataLineScanner::readInteger(std::int32_t& value) {
    const std::string_view token = takeToken();
    return token.size() <= longestToken && parseInteger(token, value);
}

bool DataLineScanner::readRestOfLine(std::size_t borrowed, std::string_view& name) {
    std::string_view rest = data_.substr(place_);
    if (rest.size() > longestName) return false;
    if (rest.empty()) rest = text().substr(lineStart() + place_, borrowed);
    name = trimBlanks(rest);
    return true;
}

std::string_view DataLineScanner::nameAhead() {
    const std::string_view line = trimBlanks(nextLineAhead());
    const std::string_view end = line.substr(line.size() - std::min(line.size(), longestName));
    return end.substr(end.rfind(' ') + 1);
}

}  // namespace tarq
