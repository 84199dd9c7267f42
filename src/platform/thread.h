// Threads that run on their own, and the way to stop one for good.
//
// There is no safe way to end a thread from outside: unwinding it, or ending it where it stands, takes away memory and
// locks that other threads count on. A thread is parked instead: it never runs again, and all that it has stays.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace tarq {

/// A started thread. It is detached: it ends with its body, whether or not a handle is left. It takes no signals of the
/// process, which belong to the host's own threads.
class DetachedThread {
public:
    /// Starts a thread of normal priority and default stack size; null when the system has none to give. `body` must
    /// not throw.
    static std::unique_ptr<DetachedThread> start(std::function<void()> body) noexcept;
    virtual ~DetachedThread() = default;

    /// Parks the thread from outside, wherever it is; true once it is parked. The thread must not have ended. It is
    /// stopped where that does the least harm: in the code of the library that holds `code`, or while it waits in the
    /// system, and so not within the allocator or the loader; only after two seconds without such a moment anywhere.
    [[nodiscard]] virtual bool park(const void* code) = 0;
};

/// The number by which the system knows the calling thread.
[[nodiscard]] std::int32_t currentThreadNumber() noexcept;

/// Whether the calling thread is the one with which the process began.
[[nodiscard]] bool isFirstThread() noexcept;

/// Parks the calling thread.
[[noreturn]] void parkThisThread() noexcept;

}  // namespace tarq
