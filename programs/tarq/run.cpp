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

struct Ending {
    Status status;
    std::string failure;
};

}  // namespace

void runWatched(ITARQModel& model, bool showProgress, RunResult& result) {
    const auto start = std::chrono::steady_clock::now();
    const InterruptWatch watch;
    // The description of a failure belongs to the thread on which it was raised.
    std::future<Ending> run = std::async(std::launch::async, [&model] {
        const Status status = model.Optimize();
        return Ending{status, status.failed() ? lastErrorText(status) : std::string()};
    });
    {
        ProgressLine progress(model, result.integer, showProgress);
        while (run.wait_for(pollingTime) != std::future_status::ready) {
            // Said again at each turn, as a run forgets what was said before it began.
            if (watch.interrupted() && model.StopOptimizeAsync().isOk()) result.interrupted = true;
            progress.update(result.interrupted);
        }
    }
    Ending ending = run.get();
    result.solveSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    result.status = ending.status;
    result.failure = std::move(ending.failure);
    readRunFacts(model, result);
}

}  // namespace tarq::command
