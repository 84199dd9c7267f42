// BackgroundRun: a run on a thread of its own, which the client doesn't wait for.
//
// A run that is killed is parked: at the engine's next callback, else where the run would begin to end, else wherever
// the thread is (see platform/thread.h). It keeps its memory and what the engine holds, and never reports.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>

#include "engine/run.h"
#include "platform/thread.h"
#include "tarq/frame/object.h"

namespace tarq {

class BackgroundRun {
public:
    /// `model` is the reference by which the run keeps its model until it has ended.
    BackgroundRun(Ref<IUnknown> model, RunModel run);

    /// Starts the thread of `run`; false when there is no thread to be had.
    [[nodiscard]] static bool start(const std::shared_ptr<BackgroundRun>& run) noexcept;

    /// Stops the thread for good; false when it couldn't be stopped. A run that has begun to end is left to clear its
    /// busy flag instead. From any thread but the run's own.
    [[nodiscard]] bool kill() noexcept;

private:
    enum class Phase : std::uint8_t { Running, Killed, Ending, Ended };

    void execute();
    [[noreturn]] void park() noexcept;
    [[nodiscard]] bool waitUntil(const std::function<bool()>& reached) const;

    std::atomic<Phase> phase_{Phase::Running};
    std::atomic<bool> parked_{false};
    Ref<IUnknown> model_;  // dropped by the run at its end, or by who kills it
    RunModel run_;
    std::mutex threadMutex_;  // of the handle, which is there only after the thread has begun
    std::unique_ptr<DetachedThread> thread_;
};

}  // namespace tarq
