// PositionWalk: the walk of a set's enumerator over the positions of its set.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tarq {

/// Positions from 1, every `step`, from `start` to `end`. Before a walk is set, and in one over an empty set, positions
/// are 0. Wider than the positions they stand for, so that no step can overflow.
struct PositionWalk {
    std::int64_t start = 0;
    std::int64_t end = 0;
    std::int64_t step = 0;
    std::int64_t current = 0;

    [[nodiscard]] bool inRange() const noexcept { return !isPassed(current); }
    [[nodiscard]] bool isLast() const noexcept { return inRange() && isPassed(current + step); }
    /// Where the walk is, as far as a position can tell.
    [[nodiscard]] std::int32_t position() const noexcept {
        return static_cast<std::int32_t>(std::clamp<std::int64_t>(current, least, most));
    }

    void advance() noexcept { current += step; }
    void reset() noexcept { current = start; }
    /// Moves on by `count` steps. False, without a move, where the distance, and not the place it leads to, lies behind
    /// the end: clients know it so.
    bool skip(std::uint32_t count) noexcept {
        const std::int64_t distance = step * count;
        if (isPassed(distance)) return false;
        // Far behind the end is as good as farther.
        current = std::clamp(current + distance, least - 1, most + 1);
        return true;
    }

private:
    static constexpr std::int64_t least = std::numeric_limits<std::int32_t>::min();
    static constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();

    [[nodiscard]] bool isPassed(std::int64_t position) const noexcept {
        return step < 0 ? position < end : position > end;
    }
};

}  // namespace tarq
