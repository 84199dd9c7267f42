#include "suggestion.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace tarq::command {

namespace {

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
