#include "stagerunner.h"

#include <algorithm>
#include <string>
#include <utility>

#include "ipstage.h"

namespace tarq::engine {

namespace {

constexpr auto relaxed = std::memory_order_relaxed;
constexpr double smallestFeasibilityTolerance = 1e-6;

// Gives the threads of HiGHS back when the thread of a stage ends.
struct SchedulerRelease {
    ~SchedulerRelease() { Highs::resetGlobalScheduler(true); }
};

}  // namespace

void StageRunner::requestStop(bool requested) {
    stopRequested_ = requested;
    if (requested && control_) control_->requestStop();
}

void StageRunner::clear() {
    model_.reset();
    if (log_) log_->close();
    log_.reset();
    stopRequested_ = false;
}

bool StageRunner::openLog() {
    log_ = std::make_shared<LogSink>();
    return log_->open(parameters_.integer("xoutlv") >= 2 ? parameters_.text("xfnlog") : std::string());
}

bool StageRunner::load(BuiltModel model, bool maximize) {
    auto loaded = std::make_shared<SolverModel>();
    if (!loaded->load(std::move(model), maximize, log_)) return false;
    model_ = std::move(loaded);
    return true;
}

std::shared_ptr<Watch> StageRunner::beginStage(const StageOrder& order) {
    const bool lp = order.stage == Stage::Lp;
    log_->clearMessage();
    control_ = std::make_shared<StageControl>(secondsOf(parameters_.number(lp ? "xmxtlp" : "xmxmin")),
                                              lp ? 0 : std::max(0, parameters_.integer("xcbnnd")), givenUp_);
    control_->progress.bestPossible.store(order.bestPossible, relaxed);
    if (stopRequested_) control_->requestStop();
    model_->tolerance = {std::max(smallestFeasibilityTolerance, parameters_.number("xtolx")),
                         integralityTolerance(parameters_)};
    auto watch = std::make_shared<Watch>();
    watch->log = log_;
    watch->control = control_;
    if (!lp) watch->incumbent = std::make_shared<Incumbent>();
    return watch;
}

StageOutcome StageRunner::run(const StageOrder& order, const ShowProgress& showProgress) {
    const auto watch = beginStage(order);
    const auto control = control_;
    StageOutcome outcome = runToItsEnd(order, watch, [&] {
        showProgress(*control);
        if (callback_) callback_();
    });
    if (order.stage == Stage::Lp) {
        if (!outcome.solution.values.empty()) control->progress.objective.store(outcome.objective, relaxed);
    } else if (outcome.solutionStatus != TarqIPSolutionNone) {
        control->progress.bestPossible.store(outcome.bestPossible, relaxed);
    }
    showProgress(*control);
    stopRequested_ = false;
    return outcome;
}

StageOutcome StageRunner::runToItsEnd(const StageOrder& order, const std::shared_ptr<Watch>& watch,
                                      const std::function<void()>& tick) {
    auto outcome = std::make_shared<StageOutcome>();
    // What the thread uses is its own, so that it can be given up.
    auto work = [order, watch, outcome, model = model_, parameters = parameters_] {
        const SchedulerRelease release;
        *outcome = order.stage == Stage::Lp ? solveLp(*model, parameters, watch, order.frequency)
                                            : solveIp(*model, parameters, watch, order.frequency);
    };
    // Left by an exception, the stage may still be at work on what it has.
    struct Guard {
        StageRunner& runner;
        bool completed = false;
        ~Guard() {
            runner.control_.reset();
            if (!completed) runner.model_.reset();
        }
    } guard{*this};
    const HighsLp& lp = model_->highs.getLp();
    const bool brief = order.stage == Stage::Lp && isBrief(lp.num_row_, lp.num_col_, lp.a_matrix_.numNz());
    const StageEnd end = brief ? runShortStage(*watch->control, work, tick) : runStage(watch->control, work, tick);
    guard.completed = true;
    return end == StageEnd::Finished ? std::move(*outcome) : withoutStageThread(end, *watch);
}

// What is known of a stage that was not started, or whose thread was given up.
StageOutcome StageRunner::withoutStageThread(StageEnd end, const Watch& watch) {
    const StopReason reason = watch.control->stopReason();
    if (end == StageEnd::Abandoned) {
        watch.log->close();
        model_.reset();
        log_ = std::make_shared<LogSink>();
    }
    if (watch.incumbent) {
        StageOutcome best = incumbentOutcome(*watch.incumbent, reason);
        best.bestPossible = watch.control->progress.bestPossible.load(relaxed);
        return best;
    }
    StageOutcome nothing;
    nothing.endEarly(reason == StopReason::Request, TarqLPTimeLimit);
    nothing.solutionStatus = TarqLPSolutionUndefined;
    return nothing;
}

}  // namespace tarq::engine
