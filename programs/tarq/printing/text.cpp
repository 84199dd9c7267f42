#include "printing/text.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace tarq::command {

namespace {

bool startsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

/// How many characters must be put in, taken out or exchanged to make one text of the other.
std::size_t editDistance(std::string_view from, std::string_view to) {
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t exchanged = diagonal + (from[i] == to[j] ? 0U : 1U);
            diagonal = row[j + 1];
            row[j + 1] = std::min({exchanged, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

std::vector<std::string_view> similarNames(const std::vector<std::string_view>& names, std::string_view name) {
    constexpr std::size_t most = 3;
    constexpr std::size_t farthest = 2;
    constexpr std::size_t shortestPart = 3;
    const std::string wanted = lowerCase(name);
    std::vector<std::pair<std::size_t, std::string_view>> near;
    for (const std::string_view candidate : names) {
        const std::string lower = lowerCase(candidate);
        const std::size_t distance = editDistance(wanted, lower);
        const bool isPart = wanted.size() >= shortestPart && lower.find(wanted) != std::string::npos;
        if (distance <= farthest || isPart) near.emplace_back(isPart ? 0 : distance, candidate);
    }
    std::stable_sort(near.begin(), near.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string_view> nearest;
    for (std::size_t i = 0; i < std::min(most, near.size()); ++i) nearest.push_back(near[i].second);
    return nearest;
}

}  // namespace

std::string lowerCase(std::string_view text) {
    std::string result(text);
    for (char& c : result) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return result;
}

std::string wrapped(std::string_view text, std::size_t width, std::size_t indent) {
    std::string result;
    std::size_t used = 0;
    while (!text.empty()) {
        const std::size_t start = text.find_first_not_of(" \n");
        if (start == std::string_view::npos) break;
        const std::size_t end = std::min(text.find_first_of(" \n", start), text.size());
        const std::string_view word = text.substr(start, end - start);
        const std::size_t length = characterCount(word);
        if (used != 0 && used + 1 + length <= width) {
            result += ' ';
            used += 1 + length;
        } else {
            if (!result.empty()) result += '\n';
            result.append(indent, ' ');
            used = indent + length;
        }
        result += word;
        text.remove_prefix(end);
    }
    return result;
}

std::string printable(std::string_view name, std::string_view kept) {
    std::string result(name);
    for (char& character : result) {
        const bool isControl = static_cast<unsigned char>(character) < ' ' || character == '\x7F';
        if (isControl && kept.find(character) == std::string_view::npos) character = '?';
    }
    return result;
}

std::string shownName(const std::string& file, std::string_view stream) {
    return file == "-" ? std::string(stream) : printable(file);
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (const char byte : text) count += startsCharacter(byte) ? 1U : 0U;
    return count;
}

std::string shortened(std::string_view text, std::size_t count) {
    if (characterCount(text) <= count) return std::string(text);
    std::size_t end = 0;
    for (std::size_t taken = 0; end < text.size(); ++end) {
        if (startsCharacter(text[end]) && taken++ == count - 1) break;
    }
    return std::string(text.substr(0, end)) + "…";
}

std::string numberText(double value) { return fmt::format("{:.10g}", value == 0.0 ? 0.0 : value); }

std::string counted(long count, std::string_view noun) {
    return fmt::format("{} {}{}", count, noun, count == 1 ? "" : "s");
}

std::string suggestion(const std::vector<std::string_view>& names, std::string_view wanted,
                       std::string_view otherwise) {
    const std::vector<std::string_view> nearest = similarNames(names, wanted);
    if (nearest.empty()) return std::string(otherwise);
    std::string text = fmt::format("Did you mean {}", nearest.front());
    for (std::size_t i = 1; i < nearest.size(); ++i)
        text += fmt::format("{}{}", i + 1 == nearest.size() ? " or " : ", ", nearest[i]);
    return text + "?";
}

}  // namespace tarq::command
