#include "parameters/profilescanner.h"

#include <algorithm>
#include <utility>

namespace tarq {
namespace {

constexpr std::string_view whiteSpace = " \t\r\n\v\f";

bool isQuote(char character) { return character == '\'' || character == '"'; }
bool opensComment(char character) { return character == '*' || character == 'C' || character == 'c'; }

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

std::string cleaned(std::string_view text) {
    std::string kept;
    kept.reserve(text.size());
    bool inQuotes = false;
    for (std::size_t place = 0; place < text.size(); ++place) {
        char character = text[place];
        if (character == '\r' && place + 1 < text.size() && text[place + 1] == '\n') continue;
        if (character == '\t') character = ' ';
        const bool startsLine = kept.empty() || kept.back() == '\n';
        if (startsLine && (character == '\n' || character == ' ')) continue;
        if (startsLine && opensComment(character)) {
            place = std::min(text.find('\n', place), text.size());
            continue;
        }
        if (character == '!' && !inQuotes) {
            place = std::min(text.find('\n', place), text.size()) - 1;
            continue;
        }
        if (isQuote(character)) inQuotes = !inQuotes;
        kept.push_back(character);
    }
    return kept;
}

}  // namespace

ProfileScanner::ProfileScanner(std::string_view text) : text_(cleaned(trimmed(text))) {}

void ProfileScanner::step() {
    if (std::exchange(lineEnded_, false)) read_.clear();
    if (std::exchange(blankAhead_, false)) read_.push_back(' ');
    read_.push_back(current());
    lineEnded_ = current() == '\n';
    ++place_;
}

bool ProfileScanner::readName(std::string& name) {
    name.clear();
    for (; !atEnd(); step()) {
        const char character = current();
        if (character == '=' || character == '\n' || isQuote(character)) {
            step();
            return character == '=' && !name.empty();
        }
        if (character != ' ') name.push_back(character);
    }
    return false;
}

bool ProfileScanner::readValue(std::string& value) {
    value.clear();
    bool closed = true;
    bool done = false;
    bool blankFollows = false;
    for (; !atEnd() && current() != '\n'; step(), blankAhead_ = std::exchange(blankFollows, false)) {
        const char character = current();
        if (isQuote(character)) {
            if (place_ + 1 < text_.size() && isQuote(text_[place_ + 1])) {
                step();
                done = true;
                continue;
            }
            closed = !closed;
            // A blank is put in behind a closing quote, which ends the value.
            blankFollows = closed;
            done = done || (closed && !value.empty());
            continue;
        }
        if (character == ' ' && closed) {
            done = done || !value.empty();
            continue;
        }
        if (done && character != ' ') return true;
        value.push_back(character);
    }
    if (!closed || (!done && value.empty())) return false;
    if (!atEnd()) step();
    return true;
}

std::string ProfileScanner::line() const {
    std::string_view whole = read_;
    if (lineEnded_) {
        whole.remove_suffix(1);
        return std::string(whole);
    }
    const std::string_view rest = std::string_view(text_).substr(place_);
    return std::string(whole).append(blankAhead_ ? " " : "").append(rest.substr(0, rest.find('\n')));
}

}  // namespace tarq
