// PositionGuess: where a search for a name is likely to end, from where the two before it ended.
//
// Clients ask for the columns of a slice one after the other, so that the positions found have one distance. Looking at
// the record there first saves the way through an index that is too large for the caches. Searches of several threads
// may go on at a time; they only spoil each other's guesses.
#pragma once

#include <atomic>
#include <cstdint>

namespace tarq {

class PositionGuess {
public:
    static constexpr std::int64_t none = -1;

    PositionGuess() = default;
    /// What was learned belongs to one table.
    PositionGuess(const PositionGuess& /*other*/) noexcept {}
    PositionGuess& operator=(const PositionGuess& /*other*/) noexcept { return *this; }
    ~PositionGuess() = default;

    /// The next position, which needn't be one of the table, or `none` where the last searches give no reason to guess.
    [[nodiscard]] std::int64_t next() const noexcept {
        const std::uint64_t learned = learned_.load(std::memory_order_relaxed);
        return isSteady(learned) ? lastOf(learned) + distanceOf(learned) : none;
    }
    /// A search ended at `position`.
    void found(std::int32_t position) noexcept {
        const std::uint64_t before = learned_.load(std::memory_order_relaxed);
        const std::int64_t distance = position - lastOf(before);
        const bool steady = distance == distanceOf(before);
        const std::uint64_t learned = static_cast<std::uint64_t>(static_cast<std::uint32_t>(distance)) << 32U |
                                      (steady ? steadyBit : 0U) | static_cast<std::uint32_t>(position);
        if (learned != before) learned_.store(learned, std::memory_order_relaxed);
    }

private:
    // One word, so that what a thread reads belongs together: the distance, whether it was found twice, the position.
    static constexpr std::uint64_t steadyBit = 0x8000'0000U;

    static bool isSteady(std::uint64_t learned) noexcept { return (learned & steadyBit) != 0; }
    static std::int64_t lastOf(std::uint64_t learned) noexcept {
        return static_cast<std::int64_t>(learned & (steadyBit - 1));
    }
    static std::int64_t distanceOf(std::uint64_t learned) noexcept {
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(learned >> 32U));
    }

    std::atomic<std::uint64_t> learned_{0};
};

}  // namespace tarq
