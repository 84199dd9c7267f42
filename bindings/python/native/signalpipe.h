// A pipe for the numbers of signals that Python writes when they come, one byte each.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace tarq::python {

class SignalPipe {
public:
    /// Null when the system has none to give.
    static std::unique_ptr<SignalPipe> open() noexcept;
    virtual ~SignalPipe() = default;

    /// Where the numbers are written; a write never waits.
    [[nodiscard]] virtual int writeEnd() const = 0;
    /// Waits until there is something to take, at most as long as `limit` tells.
    virtual void wait(std::optional<std::chrono::milliseconds> limit) const = 0;
    /// What has come since the last time, as far as `block` holds it, without waiting.
    [[nodiscard]] virtual std::string_view take(std::span<char> block) const = 0;
    /// Hands numbers on to another descriptor that never waits, as Python itself would have done.
    virtual void pass(int descriptor, std::string_view numbers) const = 0;
    /// Whether the pipe was made before this process was forked off another one, whose threads it doesn't have.
    [[nodiscard]] virtual bool isOfAnotherProcess() const = 0;
};

/// Starts a thread that takes no signals of the process and isn't waited for; false when there is none to be had.
[[nodiscard]] bool startQuietThread(std::function<void()> body) noexcept;

}  // namespace tarq::python
