#include "turnqueue.h"

#include <chrono>

#if defined(_WIN32)
#include <windows.h>
#else
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace tarq::engine {

namespace {

using Clock = std::chrono::steady_clock;

// A thread that is alive takes its turn much sooner than this.
constexpr std::chrono::milliseconds patience{200};

constexpr std::uint32_t ticketOf(TurnQueue::Turn turn) { return static_cast<std::uint32_t>(turn >> 32U); }
constexpr std::uint32_t threadOf(TurnQueue::Turn turn) { return static_cast<std::uint32_t>(turn); }
constexpr TurnQueue::Turn turnOf(std::uint32_t ticket, std::uint32_t thread) {
    return static_cast<TurnQueue::Turn>(ticket) << 32U | thread;
}

// Tickets count on beyond their range, so only their distance tells which comes first.
constexpr bool isBefore(std::uint32_t ticket, std::uint32_t other) {
    return static_cast<std::int32_t>(ticket - other) < 0;
}

// Whether a thread has left without a word, as all but one do in the child of a fork. One that bears the number of the
// calling thread is an earlier one.
bool isGone(std::uint32_t thread) {
#if defined(_WIN32)
    return thread == numberOfThisThread();
#else
    return thread == numberOfThisThread() || (tgkill(getpid(), static_cast<pid_t>(thread), 0) != 0 && errno == ESRCH);
#endif
}

}  // namespace

std::uint32_t numberOfThisThread() noexcept {
#if defined(_WIN32)
    return GetCurrentThreadId();
#else
    return static_cast<std::uint32_t>(gettid());
#endif
}

TurnQueue::Turn TurnQueue::take() {
    const std::uint32_t thread = numberOfThisThread();
    std::uint32_t ticket = nextTicket_++;
    Turn seen = now_.load();
    auto seenSince = Clock::now();
    for (;;) {
        Turn now = now_.load();
        if (now == turnOf(ticket, 0)) {
            const Turn own = turnOf(ticket, thread);
            if (now_.compare_exchange_strong(now, own)) return own;
            continue;
        }
        if (!isBefore(ticketOf(now), ticket)) {  // it took too long to come for its turn
            ticket = nextTicket_++;
            continue;
        }
        if (now != seen) {
            seen = now;
            seenSince = Clock::now();
        } else if (threadOf(now) != 0 ? isGone(threadOf(now)) : Clock::now() - seenSince >= patience) {
            end(now);
            continue;
        }
        static_cast<void>(bellOf(ticket).rung.try_acquire_for(patience));
    }
}

bool TurnQueue::end(Turn turn) noexcept {
    const std::uint32_t next = ticketOf(turn) + 1;
    if (!now_.compare_exchange_strong(turn, turnOf(next, 0))) return false;
    if (nextTicket_.load() != next) bellOf(next).rung.release();
    return true;
}

bool TurnQueue::giveUp(std::uint32_t thread) noexcept {
    const Turn now = now_.load();
    return thread != 0 && threadOf(now) == thread && end(now);
}

}  // namespace tarq::engine
