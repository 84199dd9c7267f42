#include "enginestate.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <limits>

namespace tarq::engine {

namespace {

constexpr auto relaxed = std::memory_order_relaxed;
constexpr std::size_t lineLength = 254;

// Another thread may read the outputs while a stage runs.
template <typename Number>
void show(Number* output, Number value) {
    std::atomic_ref<Number>(*output).store(value, relaxed);
}

std::int32_t clamped(std::int64_t value) {
    return static_cast<std::int32_t>(std::min<std::int64_t>(value, std::numeric_limits<std::int32_t>::max()));
}

double boundedValue(double value) { return std::clamp(value, -unknownValue, unknownValue); }

// Gives the threads of HiGHS back when the thread of a stage ends.
struct SchedulerRelease {
    ~SchedulerRelease() { Highs::resetGlobalScheduler(true); }
};

}  // namespace

std::int32_t EngineState::start() {
    if (isAtWork()) return fail(generalError, "The engine is at work.");
    model_.reset();
    if (log_) log_->close();
    log_.reset();
    lp_.reset();
    ip_.reset();
    results_ = {};
    stopRequested_ = false;
    fileFailures_.clear();
    note({});
    return success;
}

std::int32_t EngineState::fail(std::int32_t result, const std::string& text) {
    note(text);
    return result;
}

void EngineState::note(const std::string& text) {
    std::string whole = text;
    std::replace(whole.begin(), whole.end(), '\n', ' ');
    line1_ = whole.substr(0, lineLength);
    line2_ = whole.size() > lineLength ? whole.substr(lineLength, lineLength) : std::string();
}

double EngineState::runSeconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - runStart_).count();
}

std::int32_t EngineState::setParameter(std::string_view assignment) {
    const auto equals = assignment.find('=');
    if (lowerCase(trimmed(assignment.substr(0, equals))) == "xcbstp" && equals != std::string_view::npos) {
        stopRequested_ = parseNumber(trimmed(assignment.substr(equals + 1))).value_or(0.0) != 0.0;
        if (stopRequested_ && control_) control_->requestStop();
        return success;
    }
    if (std::string failure = parameters_.assign(assignment); !failure.empty()) return fail(inputError, failure);
    return success;
}

std::optional<std::string> EngineState::parameter(std::string_view name) const {
    if (name == "xline1") return line1_;
    if (name == "xline2") return line2_;
    if (name == "xertyp") return fmt::format("{}", lp_ && lp_->result == 1 ? lp_->limit : 0);
    if (auto text = resultText(results_, name)) return text;
    return parameters_.shown(name);
}

std::int32_t EngineState::putModel(const ModelArrays& arrays) {
    if (const std::int32_t refused = start(); refused != success) return refused;
    runStart_ = std::chrono::steady_clock::now();
    BuiltModel built;
    if (const std::string failure = buildModel(arrays, parameters_.number("xdropm"), built); !failure.empty()) {
        return fail(inputError, failure);
    }
    reported_.rows = arrays.rows;
    reported_.columns = arrays.columns;
    reported_.nonzeros = static_cast<std::int64_t>(built.lp.a_matrix_.value_.size());
    reported_.integers = static_cast<std::int32_t>(
        std::count(built.integrality.begin(), built.integrality.end(), HighsVarType::kInteger));
    reported_.maximize = isMaximizing(parameters_);

    log_ = std::make_shared<LogSink>();
    const std::string logFile = parameters_.integer("xoutlv") >= 2 ? parameters_.text("xfnlog") : std::string();
    if (!log_->open(logFile)) noteFileFailure("xfnlog");
    note(fileFailures_);
    auto model = std::make_shared<SolverModel>();
    if (!model->load(std::move(built), reported_.maximize, log_)) return fail(inputError, log_->message());
    model_ = std::move(model);
    return success;
}

std::shared_ptr<Watch> EngineState::beginStage(double secondsAllowed, int nodesPerCallback) {
    note({});
    log_->clearMessage();
    control_ = std::make_shared<StageControl>(secondsAllowed, nodesPerCallback, givenUp_);
    if (stopRequested_) control_->requestStop();
    model_->tolerance = {std::max(1e-6, parameters_.number("xtolx")), integralityTolerance(parameters_)};
    auto watch = std::make_shared<Watch>();
    watch->log = log_;
    watch->control = control_;
    return watch;
}

void EngineState::endStage(const StageOutcome& outcome, const char* stage, std::string_view fileParameter) {
    stopRequested_ = false;
    writeReports(outcome, stage, fileParameter);
    if (!log_->isWhole()) noteFileFailure("xfnlog");
    const std::string message = outcome.message.empty() ? log_->message() : outcome.message;
    note(message.empty() || fileFailures_.empty() ? message + fileFailures_ : message + " " + fileFailures_);
}

void EngineState::callClient() {
    if (callback_) callback_();
}

StageOutcome EngineState::runInThread(Stage stage, const std::shared_ptr<Watch>& watch, int frequency,
                                      const std::function<void()>& showProgress) {
    auto outcome = std::make_shared<StageOutcome>();
    // What the thread uses is its own, so that it can be given up.
    auto work = [stage, watch, frequency, outcome, model = model_, parameters = parameters_] {
        const SchedulerRelease release;
        *outcome = stage == Stage::Lp ? solveLp(*model, parameters, watch, frequency)
                                      : solveIp(*model, parameters, watch, frequency);
    };
    const auto tick = [&] {
        showProgress();
        callClient();
    };
    // Left by an exception, the stage may still be at work on what it has.
    struct Guard {
        EngineState& engine;
        bool completed = false;
        ~Guard() {
            engine.control_.reset();
            if (!completed) engine.model_.reset();
        }
    } guard{*this};
    const bool brief = stage == Stage::Lp && isBrief(reported_.rows, reported_.columns, reported_.nonzeros);
    const StageEnd end = brief ? runShortStage(*watch->control, work, tick) : runStage(watch->control, work, tick);
    guard.completed = true;
    if (end == StageEnd::Finished) return std::move(*outcome);

    const StopReason reason = watch->control->stopReason();
    if (end == StageEnd::Abandoned) {
        watch->log->close();
        model_.reset();
        log_ = std::make_shared<LogSink>();
    }
    if (watch->incumbent) {
        StageOutcome best = incumbentOutcome(*watch->incumbent, reason);
        best.bestPossible = watch->control->progress.bestPossible.load(relaxed);
        return best;
    }
    StageOutcome nothing;
    nothing.result = reason == StopReason::Request ? resultStopped : 1;
    nothing.limit = reason == StopReason::Request ? 0 : 2;
    nothing.solutionStatus = nothingFeasible;
    return nothing;
}

void EngineState::takeLpProgress(const StageControl& control) {
    const Progress& progress = control.progress;
    results_.iterations = progress.iterations.load(relaxed);
    results_.infeasibilities = progress.infeasibilities.load(relaxed);
    results_.lpObjective = progress.objective.load(relaxed);
    results_.lpSeconds = control.seconds();
    results_.runSeconds = runSeconds();
}

void EngineState::takeIpProgress(const StageControl& control) {
    const Progress& progress = control.progress;
    const double sense = reported_.maximize ? -1.0 : 1.0;
    const bool incumbent = progress.hasIncumbent.load(relaxed);
    const double objective = progress.objective.load(relaxed);
    const double bound = boundedValue(progress.bestPossible.load(relaxed));
    const double cutoff = parameters_.number("xipbnd");
    results_.nodes = progress.nodes.load(relaxed);
    results_.integerSolutions = progress.integerSolutions.load(relaxed);
    results_.ipObjective = incumbent ? objective : 0.0;
    results_.lowerBound = sense * bound;
    results_.best = incumbent ? sense * objective : unknownValue;
    results_.upperBound = std::abs(cutoff) < unknownValue ? std::min(results_.best, sense * cutoff) : results_.best;
    results_.gap = unknownValue;
    if (incumbent) {
        const double difference = std::max(0.0, results_.best - results_.lowerBound);
        results_.gap = objective != 0.0 ? difference / std::abs(objective) : difference == 0.0 ? 0.0 : unknownValue;
    }
    results_.ipSeconds = control.seconds();
    const double branching = progress.secondsToBranching.load(relaxed);
    results_.branchingAfter = branching < 0.0 ? results_.ipSeconds : branching;
    results_.runSeconds = runSeconds();
}

std::int32_t EngineState::optimizeLp(int iterationFrequency, const LpOutputs& outputs) {
    if (isAtWork()) return fail(generalError, "The engine is at work.");
    if (!outputs.iterations || !outputs.infeasibilities || !outputs.lpStatus || !outputs.objective ||
        !outputs.sumOfInfeasibilities) {
        return fail(inputError, "OptimizeLP needs all its outputs.");
    }
    if (!model_) return fail(inputError, "There is no model to optimize.");
    lp_.reset();
    ip_.reset();
    const auto watch = beginStage(secondsOf(parameters_.number("xmxtlp")), 0);
    const auto control = control_;
    const auto showProgress = [&] {
        takeLpProgress(*control);
        show(outputs.iterations, clamped(results_.iterations));
        show(outputs.infeasibilities, clamped(results_.infeasibilities));
        show(outputs.objective, results_.lpObjective);
        show(outputs.sumOfInfeasibilities, control->progress.sumOfInfeasibilities.load(relaxed));
    };
    show(outputs.lpStatus, 0);
    StageOutcome outcome = runInThread(Stage::Lp, watch, iterationFrequency, showProgress);
    if (!outcome.solution.values.empty()) control->progress.objective.store(outcome.objective, relaxed);
    showProgress();
    show(outputs.lpStatus, outcome.modelStatus);
    lp_ = std::move(outcome);
    endStage(*lp_, "LP", "xfnlps");
    return lp_->result;
}

std::int32_t EngineState::optimizeIp(int nodeFrequency, const IpOutputs& outputs) {
    if (isAtWork()) return fail(generalError, "The engine is at work.");
    if (!outputs.nodes || !outputs.integerSolutions || !outputs.stopReason || !outputs.objective ||
        !outputs.bestPossible) {
        return fail(inputError, "OptimizeIP needs all its outputs.");
    }
    if (!model_ || !lp_ || lp_->result != 0) return fail(inputError, "There is no model whose LP has been solved.");
    if (!model_->isInteger()) return fail(inputError, "The model has no integer columns.");
    if (lp_->modelStatus != 0) return fail(inputError, "The LP relaxation has no optimum.");
    ip_.reset();
    const auto watch = beginStage(secondsOf(parameters_.number("xmxmin")), std::max(0, parameters_.integer("xcbnnd")));
    watch->incumbent = std::make_shared<Incumbent>();
    const auto control = control_;
    control->progress.bestPossible.store(lp_->objective, relaxed);
    const auto showProgress = [&] {
        takeIpProgress(*control);
        show(outputs.nodes, clamped(results_.nodes));
        show(outputs.integerSolutions, clamped(results_.integerSolutions));
        show(outputs.objective, results_.ipObjective);
        show(outputs.bestPossible, boundedValue(control->progress.bestPossible.load(relaxed)));
    };
    show(outputs.stopReason, 0);
    StageOutcome outcome = runInThread(Stage::Ip, watch, nodeFrequency, showProgress);
    if (outcome.solutionStatus == 0 || outcome.solutionStatus == 3) {
        control->progress.bestPossible.store(outcome.bestPossible, relaxed);
    }
    showProgress();
    show(outputs.stopReason, outcome.limit);
    ip_ = std::move(outcome);
    endStage(*ip_, "IP", "xfnips");
    return ip_->result;
}

void EngineState::report(std::string_view fileParameter, const std::string& content) {
    const std::string path = parameters_.text(fileParameter);
    if (!path.empty() && !writeFile(path, content)) noteFileFailure(fileParameter);
}

// Told at the end of every stage from now on, since a client may read the message of the last one only.
void EngineState::noteFileFailure(std::string_view fileParameter) {
    const std::string failure =
        fmt::format("The file {} of {} can't be written.", parameters_.text(fileParameter), fileParameter);
    if (fileFailures_.find(failure) != std::string::npos) return;
    if (!fileFailures_.empty()) fileFailures_ += ' ';
    fileFailures_ += failure;
}

void EngineState::writeReports(const StageOutcome& outcome, const char* stage, std::string_view fileParameter) {
    const int level = parameters_.integer("xoutsl");
    if (level >= 1 && !parameters_.text(fileParameter).empty()) {
        report(fileParameter, solutionReport(reported_, outcome, stage, level >= 2));
    }
    if (parameters_.integer("xoutlv") < 1 || parameters_.text("xfnsta").empty()) return;
    report("xfnsta", statisticsReport(reported_, results_, *lp_, ip_ ? &*ip_ : nullptr));
}

std::int32_t EngineState::deliver(const std::optional<StageOutcome>& outcome, const SolutionOutputs& outputs) {
    if (!outputs.status || !outputs.objective) return fail(inputError, "The outputs of a solution are missing.");
    const auto count = static_cast<std::size_t>(reported_.rows) + static_cast<std::size_t>(reported_.columns);
    if (count > 0 && (!outputs.values || !outputs.reducedCosts || !outputs.basisStatus)) {
        return fail(inputError, "The arrays for a solution are missing.");
    }
    show(outputs.status, static_cast<std::int32_t>(outcome->solutionStatus));
    show(outputs.objective, outcome->objective);
    const SolutionArrays& solution = outcome->solution;
    if (solution.values.size() == count) {
        std::copy(solution.values.begin(), solution.values.end(), outputs.values);
        std::copy(solution.reducedCosts.begin(), solution.reducedCosts.end(), outputs.reducedCosts);
        std::copy(solution.states.begin(), solution.states.end(), outputs.basisStatus);
        return success;
    }
    std::fill_n(outputs.values, count, 0.0);
    std::fill_n(outputs.reducedCosts, count, 0.0);
    std::fill_n(outputs.basisStatus, count, 0);
    return success;
}

std::int32_t EngineState::lpSolution(const SolutionOutputs& outputs) {
    if (!lp_) return fail(inputError, "The LP has not been optimized.");
    return deliver(lp_, outputs);
}

std::int32_t EngineState::ipSolution(const SolutionOutputs& outputs) {
    if (!ip_) return fail(inputError, "Branch and bound has not been run.");
    return deliver(ip_, outputs);
}

}  // namespace tarq::engine
