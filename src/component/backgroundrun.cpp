#include "component/backgroundrun.h"

#include <chrono>
#include <thread>
#include <utility>

#include "engine/enginecallback.h"
#include "platform/exceptionbarrier.h"

namespace tarq {
namespace {

using namespace std::chrono_literals;

constexpr auto interval = 1ms;
// An engine that calls back does so several times a second.
constexpr auto patience = 1s;

}  // namespace

BackgroundRun::BackgroundRun(Ref<IUnknown> model, RunModel run) : model_(std::move(model)), run_(std::move(run)) {
    run_.breakPoint = [this](EngineInterface& engine) {
        if (phase_.load() != Phase::Killed) return;
        engine.SetParameter("XCBSTP=1");  // ends threads of the engine's own making
        park();
    };
    run_.ending = [this] {
        Phase running = Phase::Running;
        if (!phase_.compare_exchange_strong(running, Phase::Ending)) park();
    };
}

bool BackgroundRun::start(const std::shared_ptr<BackgroundRun>& run) noexcept {
    const std::lock_guard lock(run->threadMutex_);
    // The thread keeps the run alive, also when its model drops it or starts the next one.
    run->thread_ = withoutException([&run] { return DetachedThread::start([run] { run->execute(); }); },
                                    [] { return std::unique_ptr<DetachedThread>(); });
    return run->thread_ != nullptr;
}

void BackgroundRun::execute() {
    // Also where a sink ends the thread that calls it.
    struct AtEnd {
        BackgroundRun& run;
        ~AtEnd() {
            const Ref<IUnknown> dropped = std::move(run.model_);
            run.phase_.store(Phase::Ended);
        }
    };
    const AtEnd atEnd{*this};
    (void)runOptimization(run_);
}

void BackgroundRun::park() noexcept {
    parked_.store(true);
    parkThisThread();
}

bool BackgroundRun::waitUntil(const std::function<bool()>& reached) const {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!reached()) {
        if (std::chrono::steady_clock::now() >= deadline) return false;
        std::this_thread::sleep_for(interval);
    }
    return true;
}

bool BackgroundRun::kill() noexcept {
    const auto killed = [this] {
        Phase running = Phase::Running;
        if (!phase_.compare_exchange_strong(running, Phase::Killed) && running != Phase::Killed) {
            return waitUntil([this] { return phase_.load() == Phase::Ended || !run_.busy.load(); });
        }
        const std::shared_ptr<EngineInterface> engine = run_.binding.engine();
        const bool parkedItself = waitUntil([this] { return parked_.load(); });
        // A thread that can't be stopped even so parks itself as soon as it comes by.
        const std::lock_guard lock(threadMutex_);
        if (!parkedItself) {
            const auto held = run_.store.gate().moment();  // or it would be parked with it
            if (!thread_->park(engine ? engine->code() : nullptr)) return false;
        }
        run_.presence.leave();
        NotedRun::forget(run_);
        // The next run would wait for this one.
        if (engine) engine->abandonRun(readShared(run_.engineThread));
        const Ref<IUnknown> dropped = std::move(model_);
        return true;
    };
    return withoutException(killed, [] { return false; });
}

}  // namespace tarq
