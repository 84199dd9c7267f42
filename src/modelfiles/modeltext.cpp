#include "modelfiles/modeltext.h"

#include <algorithm>
#include <utility>

namespace tarq {
namespace {

/// As long as memory takes to answer, about so many lines are read.
constexpr int linesAhead = 8;

// Most files have neither tabs nor carriage returns: finding none costs a fraction of rewriting every byte.
bool holds(const std::string& text, char character) {
    return std::memchr(text.data(), character, text.size()) != nullptr;
}

void foldLineEnds(std::string& text) {
    std::size_t kept = 0;
    for (std::size_t position = 0; position < text.size(); ++position) {
        const bool beforeFeed = position + 1 < text.size() && text[position + 1] == '\n';
        if (text[position] != '\r' || !beforeFeed) text[kept++] = text[position];
    }
    text.resize(kept);
}

}  // namespace

std::string_view trimBlanks(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

std::string inCapitals(std::string_view text) {
    std::string capitals(text);
    for (char& character : capitals) character = upperCased(character);
    return capitals;
}

bool equalsInUpperCase(std::string_view text, std::string_view upperCaseText) {
    return std::equal(text.begin(), text.end(), upperCaseText.begin(), upperCaseText.end(),
                      [](char given, char wanted) { return upperCased(given) == wanted; });
}

ModelText::ModelText(std::string text) : text_(std::move(text)) {
    if (holds(text_, '\r')) foldLineEnds(text_);
    if (holds(text_, '\t')) std::replace(text_.begin(), text_.end(), '\t', ' ');
    if (!text_.ends_with('\n')) text_.push_back('\n');
}

std::size_t ModelText::currentLineNumber() const {
    const std::string_view before = std::string_view(text_).substr(0, lineStart_);
    return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

void ModelText::dropText() {
    std::string().swap(text_);
    lineStart_ = lineEnd_ = nextStart_ = aheadStart_ = 0;
}

void ModelText::restartAhead() {
    aheadStart_ = nextStart_;
    for (int line = 0; line < linesAhead; ++line) takeLineAhead();
}

}  // namespace tarq
