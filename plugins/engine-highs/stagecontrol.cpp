#include "stagecontrol.h"

#include <algorithm>
#include <limits>
#include <thread>
#include <utility>

namespace tarq::engine {

StageControl::StageControl(double secondsAllowed, int nodesPerCallback, std::function<bool()> givenUp)
    : secondsAllowed_(secondsAllowed), nodesPerCallback_(nodesPerCallback), givenUp_(std::move(givenUp)) {}

double StageControl::seconds() const { return std::chrono::duration<double>(Clock::now() - start_).count(); }

double StageControl::secondsLeft() const {
    if (secondsAllowed_ == std::numeric_limits<double>::infinity()) return secondsAllowed_;
    return std::max(0.0, secondsAllowed_ - seconds());
}

StopReason StageControl::stopReason() const {
    if (stopRequested_.load(std::memory_order_relaxed) || isGivenUp()) return StopReason::Request;
    return secondsLeft() <= 0.0 ? StopReason::TimeLimit : StopReason::None;
}

StopReason StageControl::atInterruptPoint() {
    if (held_) return StopReason::None;
    if (ownCallback_) callByTheClock();
    const std::int64_t nodes = progress.nodes.load(std::memory_order_relaxed);
    if (nodesPerCallback_ > 0 && nodes - nodesAtCallback_ >= nodesPerCallback_) waitForCallback(nodes);
    return stopReason();
}

void StageControl::callByTheClock() {
    const auto now = Clock::now();
    if (now - lastCallback_ < callbackInterval) return;
    lastCallback_ = now;
    (*ownCallback_)();
}

void StageControl::waitForCallback(std::int64_t nodes) {
    std::unique_lock lock(mutex_);
    if (abandoned_) return;
    nodesAtCallback_ = nodes;
    callbackDue_ = true;
    changed_.notify_all();
    const auto answered = [&] { return !callbackDue_ || abandoned_ || isGivenUp(); };
    while (!changed_.wait_for(lock, callbackInterval, answered)) {
    }
}

namespace {

// The thread of a stage; when its owner is left early, by an exception or a cancelled thread, the stage is given up.
class StageThread {
public:
    StageThread(std::thread thread, std::function<void()> abandon)
        : thread_(std::move(thread)), abandon_(std::move(abandon)) {}
    StageThread(const StageThread&) = delete;
    StageThread& operator=(const StageThread&) = delete;
    ~StageThread() {
        if (!thread_.joinable()) return;
        abandon_();
        thread_.detach();
    }
    void join() { thread_.join(); }

private:
    std::thread thread_;
    std::function<void()> abandon_;
};

}  // namespace

StageEnd runStage(std::shared_ptr<StageControl> control, std::function<void()> work,
                  const std::function<void()>& callback) {
    callback();
    if (control->stopReason() == StopReason::Request) return StageEnd::NotStarted;

    auto body = [control, work = std::move(work)]() mutable {
        std::exception_ptr failure;
        try {
            work();
        } catch (...) {
            failure = std::current_exception();
        }
        work = nullptr;
        const std::lock_guard lock(control->mutex_);
        control->failure_ = failure;
        control->finished_ = true;
        control->changed_.notify_all();
    };
    auto abandon = [control] {
        const std::lock_guard lock(control->mutex_);
        control->abandoned_ = true;
        // The stage is to end; what has told it so before stays the reason.
        if (control->stopReason() == StopReason::None) control->requestStop();
        control->changed_.notify_all();
    };
    StageThread thread(std::thread(std::move(body)), std::move(abandon));

    auto stopDueSince = StageControl::Clock::time_point::max();
    std::unique_lock lock(control->mutex_);
    while (!control->finished_) {
        control->changed_.wait_for(lock, callbackInterval, [&] { return control->finished_ || control->callbackDue_; });
        if (control->finished_) break;
        const bool byNodes = control->nodesPerCallback_ > 0 && control->progress.nodes > 0;
        if (control->callbackDue_ || !byNodes) {
            lock.unlock();
            callback();
            lock.lock();
            control->callbackDue_ = false;
            control->changed_.notify_all();
        }
        const auto now = StageControl::Clock::now();
        if (control->stopReason() == StopReason::None) continue;
        if (stopDueSince == StageControl::Clock::time_point::max()) stopDueSince = now;
        if (now - stopDueSince >= stopPatience) return StageEnd::Abandoned;
    }
    lock.unlock();
    thread.join();
    if (control->failure_) std::rethrow_exception(control->failure_);
    return StageEnd::Finished;
}

StageEnd runShortStage(StageControl& control, const std::function<void()>& work,
                       const std::function<void()>& callback) {
    callback();
    if (control.stopReason() == StopReason::Request) return StageEnd::NotStarted;
    control.lastCallback_ = StageControl::Clock::now();
    control.ownCallback_ = &callback;
    work();
    control.ownCallback_ = nullptr;
    return StageEnd::Finished;
}

}  // namespace tarq::engine
