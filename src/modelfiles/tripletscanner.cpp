#include "modelfiles/tripletscanner.h"

#include <algorithm>

#include "frame/numbertext.h"

namespace tarq {
namespace {

/// Characters that a number, or the rest of a line with the name, may have.
constexpr std::size_t longestToken = 64;

}  // namespace

bool TripletScanner::nextDataLine() {
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

std::size_t TripletScanner::countTokens() const {
    std::size_t count = 0;
    bool inToken = false;
    for (const char character : data_) {
        if (character != ' ' && !inToken) ++count;
        inToken = character != ' ';
    }
    return count;
}

std::string_view TripletScanner::takeToken() {
    const std::size_t start = std::min(data_.find_first_not_of(' ', place_), data_.size());
    place_ = std::min(data_.find(' ', start), data_.size());
    return data_.substr(start, place_ - start);
}

bool TripletScanner::readReal(double& value) {
    const std::string_view token = takeToken();
    return token.size() <= longestToken && parseReal(token, value);
}

bool TripletScanner::readInteger(std::int32_t& value) {
    const std::string_view token = takeToken();
    return token.size() <= longestToken && parseInteger(token, value);
}

bool TripletScanner::readRestOfLine(std::size_t borrowed, std::string_view& name) {
    std::string_view rest = data_.substr(place_);
    if (rest.size() > longestToken) return false;
    if (rest.empty()) rest = text().substr(lineStart() + place_, borrowed);
    name = trimBlanks(rest);
    return true;
}

std::string_view TripletScanner::nameAhead() {
    const std::string_view line = trimBlanks(nextLineAhead());
    const std::string_view end = line.substr(line.size() - std::min(line.size(), longestToken));
    return end.substr(end.rfind(' ') + 1);
}

}  // namespace tarq
