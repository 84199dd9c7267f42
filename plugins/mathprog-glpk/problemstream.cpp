#include <algorithm>
#include <limits>

#include "problem.h"
#include "tarq/mathprog.h"

namespace tarq::mathprog {
namespace {

constexpr std::int32_t hello = 0x5451524D;
constexpr std::int32_t farewell = 0x4D525154;
constexpr std::int32_t refusal = 0x54514E4F;

struct Head {
    std::int32_t greeting = hello;
    std::int32_t isMaximized = 0;
    std::int32_t integerColumns = 0;
    std::int32_t reserved = 0;
    std::uint64_t columns = 0;
    std::uint64_t rows = 0;
    std::uint64_t nonzeros = 0;
    std::uint64_t nameBytes = 0;
};

template <class List>
bool sendList(const List& list, const Send& send) {
    return send(list.data(), list.size() * sizeof(typename List::value_type));
}

/// Fills a list of `count` elements piece by piece.
template <class List>
bool receiveList(List& list, std::uint64_t count, const Receive& receive) {
    constexpr std::uint64_t pieceLength = std::uint64_t{1} << 20U;
    while (list.size() < count) {
        const std::size_t before = list.size();
        const std::size_t piece = static_cast<std::size_t>(std::min(count - before, std::max(pieceLength, before)));
        list.resize(before + piece);
        if (!receive(list.data() + before, piece * sizeof(typename List::value_type))) return false;
    }
    return true;
}

bool isBoundType(std::int32_t type) { return type >= MP_TYPE_FREE && type <= MP_TYPE_FIXED; }

bool isWhole(const Problem& problem) {
    const auto columnCount = static_cast<std::int32_t>(problem.columns.size());
    std::uint64_t nonzeros = 0;
    for (const Row& row : problem.rows) {
        if (!isBoundType(row.type) || row.length < 0 || row.length > columnCount) return false;
        nonzeros += static_cast<std::uint64_t>(row.length);
    }
    const auto names = static_cast<std::size_t>(std::ranges::count(problem.names, '\0'));
    return nonzeros == problem.values.size() && names == problem.columns.size() + problem.rows.size() &&
           (problem.names.empty() || problem.names.back() == '\0') &&
           std::ranges::all_of(problem.columns, isBoundType, &Column::type) &&
           std::ranges::all_of(problem.columnNumbers,
                               [&](std::int32_t number) { return number >= 1 && number <= columnCount; });
}

}  // namespace

bool sendProblem(const Problem& problem, const Send& send) {
    const Head head{.isMaximized = problem.isMaximized,
                    .integerColumns = problem.integerColumnCount,
                    .columns = problem.columns.size(),
                    .rows = problem.rows.size(),
                    .nonzeros = problem.values.size(),
                    .nameBytes = problem.names.size()};
    return send(&head, sizeof head) && sendList(problem.columns, send) && sendList(problem.rows, send) &&
           sendList(problem.columnNumbers, send) && sendList(problem.values, send) && sendList(problem.names, send) &&
           send(&farewell, sizeof farewell);
}

bool sendRefusal(const Send& send) {
    const Head head{.greeting = refusal};
    return send(&head, sizeof head);
}

Received receiveProblem(Problem& problem, const Receive& receive) {
    constexpr std::uint64_t largestCount = std::numeric_limits<std::int32_t>::max();
    Head head;
    if (!receive(&head, sizeof head)) return Received::Broken;
    if (head.greeting == refusal) return Received::Refusal;
    if (head.greeting != hello || head.columns > largestCount || head.rows > largestCount) return Received::Broken;
    problem.isMaximized = head.isMaximized;
    problem.integerColumnCount = head.integerColumns;
    std::int32_t last = 0;
    const bool isReceived =
        receiveList(problem.columns, head.columns, receive) && receiveList(problem.rows, head.rows, receive) &&
        receiveList(problem.columnNumbers, head.nonzeros, receive) &&
        receiveList(problem.values, head.nonzeros, receive) && receiveList(problem.names, head.nameBytes, receive) &&
        receive(&last, sizeof last) && last == farewell;
    return isReceived && isWhole(problem) ? Received::Whole : Received::Broken;
}

}  // namespace tarq::mathprog
