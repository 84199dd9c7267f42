// StageControl: what the caller of a stage and the thread that HiGHS works on share.
//
// HiGHS works on a thread of its own, one for each stage. So the caller stays free to write progress and to call the
// client back a few times a second wherever HiGHS is, and a stage that doesn't reach a point where it can be
// interrupted (HiGHS has none in presolve) can be given up: its thread then ends by itself at the next such point, and
// holds by counted references whatever it still needs. Work that is sure to be short is done on the caller's thread
// instead, which saves what a thread costs, its memory above all; then the callbacks come at interrupt points only.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>

namespace tarq::engine {

/// How far a stage is. Written by the stage's thread, read by any; no order among the fields.
struct Progress {
    std::atomic<std::int64_t> iterations{0};
    std::atomic<std::int64_t> infeasibilities{0};
    std::atomic<double> sumOfInfeasibilities{0.0};
    std::atomic<std::int64_t> nodes{0};
    std::atomic<std::int64_t> integerSolutions{0};
    std::atomic<double> objective{0.0};     ///< of the LP, or of the best integer solution
    std::atomic<double> bestPossible{0.0};  ///< bound on the objective of every integer solution
    std::atomic<bool> hasIncumbent{false};
    std::atomic<double> secondsToBranching{-1.0};  ///< below 0 until branching begins
};

/// Why a stage is to end before its work is done.
enum class StopReason { None, Request, TimeLimit };

enum class StageEnd { Finished, NotStarted, Abandoned };

class StageControl {
public:
    using Clock = std::chrono::steady_clock;

    /// `nodesPerCallback` 0: the client is called by the clock alone. `givenUp`, for any thread, tells that the stage's
    /// caller won't come back; then it is to stop.
    StageControl(double secondsAllowed, int nodesPerCallback, std::function<bool()> givenUp = {});

    Progress progress;

    [[nodiscard]] double seconds() const;
    [[nodiscard]] double secondsLeft() const;

    /// Any thread: asks the stage to end at its next opportunity.
    void requestStop() { stopRequested_.store(true, std::memory_order_relaxed); }
    [[nodiscard]] StopReason stopReason() const;

    /// Stage's thread, at each point where it can be interrupted: waits for a callback when one is due after so many
    /// nodes, and tells whether to go on.
    [[nodiscard]] StopReason atInterruptPoint();

    /// While `held`, atInterruptPoint lets the work go on: what is left is short and has to be finished.
    void hold(bool held) { held_ = held; }

private:
    friend StageEnd runStage(std::shared_ptr<StageControl> control, std::function<void()> work,
                             const std::function<void()>& callback);
    friend StageEnd runShortStage(StageControl& control, const std::function<void()>& work,
                                  const std::function<void()>& callback);

    [[nodiscard]] bool isGivenUp() const { return givenUp_ && givenUp_(); }
    void waitForCallback(std::int64_t nodes);
    void callByTheClock();

    const Clock::time_point start_ = Clock::now();
    const double secondsAllowed_;
    const int nodesPerCallback_;
    const std::function<bool()> givenUp_;
    std::atomic<bool> stopRequested_{false};

    // Stage's thread only.
    std::int64_t nodesAtCallback_ = 0;
    bool held_ = false;
    const std::function<void()>* ownCallback_ = nullptr;  ///< when the stage's thread is the caller's
    Clock::time_point lastCallback_{};

    std::mutex mutex_;
    std::condition_variable changed_;
    // Under the mutex.
    bool callbackDue_ = false;
    bool finished_ = false;
    bool abandoned_ = false;
    std::exception_ptr failure_;
};

/// Runs `work` on a thread of its own and calls `callback` on this one: at once, then a few times a second (with
/// nodesPerCallback only until branching begins, then each so many nodes). Throws what `work` threw. NotStarted: the
/// first callback asked for a stop. Abandoned: a stop was due for `stopPatience` without effect, and `work` still runs;
/// so it must own all it uses, and nothing of that may be touched any more.
[[nodiscard]] StageEnd runStage(std::shared_ptr<StageControl> control, std::function<void()> work,
                                const std::function<void()>& callback);

/// Runs `work` on this thread, and `callback` at once and then by the clock at interrupt points.
[[nodiscard]] StageEnd runShortStage(StageControl& control, const std::function<void()>& work,
                                     const std::function<void()>& callback);

inline constexpr std::chrono::milliseconds callbackInterval{200};
inline constexpr std::chrono::milliseconds stopPatience{3000};

}  // namespace tarq::engine
