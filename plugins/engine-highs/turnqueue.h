// TurnQueue: one thread after the other, in the order in which they asked.
//
// A client may stop a thread for good wherever it is, and nothing of that thread may hold up the others. So there is no
// lock that it could have in its hands: whose turn it is stands in one word that changes in a single step, and a turn
// that isn't taken when it comes is passed over.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <semaphore>

namespace tarq::engine {

/// The system's number of the calling thread, by which others can name it. Never 0.
[[nodiscard]] std::uint32_t numberOfThisThread() noexcept;

/// For any number of threads. Nothing but take() ever waits.
class TurnQueue {
public:
    /// The turn of a thread, unlike any other; 0 is none.
    using Turn = std::uint64_t;

    /// Waits until the turn comes to the calling thread, which mustn't have it already.
    [[nodiscard]] Turn take();

    /// Passes the turn on. False when it had been ended or given up before.
    bool end(Turn turn) noexcept;

    /// Ends the turn of a thread that won't do it itself. False when it has none.
    bool giveUp(std::uint32_t thread) noexcept;

    /// Whether the turn has been neither ended nor given up.
    [[nodiscard]] bool isCurrent(Turn turn) const noexcept { return turn != 0 && now_.load() == turn; }

private:
    struct Bell {
        std::counting_semaphore<> rung{0};
    };

    /// Where a thread with this ticket sleeps. Tickets that share a bell wake each other in vain.
    Bell& bellOf(std::uint32_t ticket) noexcept { return bells_[ticket % bells_.size()]; }

    /// The ticket whose turn it is in the upper half; in the lower one the thread that has taken it, 0 until one has.
    std::atomic<Turn> now_{0};
    std::atomic<std::uint32_t> nextTicket_{0};
    std::array<Bell, 16> bells_;
};

}  // namespace tarq::engine
