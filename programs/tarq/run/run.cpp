#include "run/run.h"

#include <chrono>
#include <future>
#include <optional>
#include <thread>

#include "model/modelobject.h"
#include "run/interrupt.h"
#include "run/progress.h"
#include "tarq/interfaces/failuretexts.h"

namespace tarq::command {

namespace {

using namespace std::chrono_literals;

constexpr auto pollingTime = 50ms;

/// A thread that shows the progress of a run while it lives.
class ProgressThread {
public:
    ProgressThread(ITARQModel& model, bool integer, const InterruptWatch& watch)
        : thread_([&model, &watch, integer, over = ending_.get_future()] {
              ProgressLine progress(model, integer, true);
              while (over.wait_for(pollingTime) != std::future_status::ready) progress.update(watch.interrupted());
          }) {}
    ProgressThread(const ProgressThread&) = delete;
    ProgressThread& operator=(const ProgressThread&) = delete;
    ~ProgressThread() {
        ending_.set_value();
        thread_.join();
    }

private:
    std::promise<void> ending_;
    std::thread thread_;
};

}  // namespace

void runWatched(ITARQModel& model, bool showProgress, RunResult& result) {
    const auto start = std::chrono::steady_clock::now();
    const InterruptWatch watch(model);
    {
        // The run stays on this thread, whose memory is warm; on a small model another thread would be what costs most.
        std::optional<ProgressThread> progress;
        if (showProgress) progress.emplace(model, result.integer, watch);
        result.status = model.Optimize();
        if (result.status.failed()) result.failure = lastErrorText(result.status);
        // The status alone doesn't tell a model that is refused from an engine that can't start.
        result.modelRefused = result.failure == failuretext::modelNotTransferred;
    }
    result.interrupted = watch.interrupted();
    result.solveSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    readRunFacts(model, result);
    result.progress = Progress::Run;
}

}  // namespace tarq::command
