#include "run.h"

#include <chrono>
#include <future>

#include "interrupt.h"
#include "lasterror.h"
#include "progress.h"

namespace tarq::command {

namespace {

using namespace std::chrono_literals;

constexpr auto pollingTime = 50ms;

/// Shows the progress and passes on a wish to stop until the run is over; true when there was such a wish.
bool watchRun(ITARQModel& model, ProgressLine& progress, const InterruptWatch& watch, const std::future<void>& over) {
    bool interrupted = false;
    while (over.wait_for(pollingTime) != std::future_status::ready) {
        // Said again at each turn, as a run forgets what was said before it began.
        if (watch.interrupted() && model.StopOptimizeAsync().isOk()) interrupted = true;
        progress.update(interrupted);
    }
    return interrupted;
}

}  // namespace

void runWatched(ITARQModel& model, bool showProgress, RunResult& result) {
    const auto start = std::chrono::steady_clock::now();
    const InterruptWatch watch;
    std::promise<void> ending;
    std::future<bool> watcher = std::async(
        std::launch::async, [&model, &watch, showProgress, integer = result.integer, over = ending.get_future()] {
            ProgressLine progress(model, integer, showProgress);
            return watchRun(model, progress, watch, over);
        });
    // The run stays on this thread, whose memory is warm; the watcher needs next to none.
    result.status = model.Optimize();
    if (result.status.failed()) result.failure = lastErrorText(result.status);
    ending.set_value();
    result.interrupted = watcher.get();
    result.solveSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    readRunFacts(model, result);
}

}  // namespace tarq::command
