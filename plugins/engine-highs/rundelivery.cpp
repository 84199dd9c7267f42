#include "rundelivery.h"

#include <fmt/format.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>

#include "tarq/engine.h"

namespace tarq::engine {

namespace {

constexpr auto relaxed = std::memory_order_relaxed;
constexpr std::size_t lineLength = TarqTextSize - 1;

std::int32_t clamped(std::int64_t value) {
    return static_cast<std::int32_t>(std::min<std::int64_t>(value, std::numeric_limits<std::int32_t>::max()));
}

double boundedValue(double value) { return std::clamp(value, -unknownValue, unknownValue); }

}  // namespace

void show(std::int32_t* output, std::int32_t value) { std::atomic_ref<std::int32_t>(*output).store(value, relaxed); }

void show(double* output, double value) { std::atomic_ref<double>(*output).store(value, relaxed); }

void RunDelivery::clear() {
    lp_.reset();
    ip_.reset();
    results_ = {};
    fileFailures_.clear();
    note({});
    runStart_ = std::chrono::steady_clock::now();
}

double RunDelivery::runSeconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - runStart_).count();
}

void RunDelivery::note(const std::string& text) {
    std::string whole = text;
    std::replace(whole.begin(), whole.end(), '\n', ' ');
    line1_ = whole.substr(0, lineLength);
    line2_ = whole.size() > lineLength ? whole.substr(lineLength, lineLength) : std::string();
}

void RunDelivery::noteFileFailure(std::string_view fileParameter) {
    const std::string failure =
        fmt::format("The file {} of {} can't be written.", parameters_.text(fileParameter), fileParameter);
    if (fileFailures_.find(failure) != std::string::npos) return;
    if (!fileFailures_.empty()) fileFailures_ += ' ';
    fileFailures_ += failure;
}

std::optional<std::string> RunDelivery::value(std::string_view name) const {
    if (name == "xline1") return line1_;
    if (name == "xline2") return line2_;
    if (name == "xertyp") {
        return fmt::format("{}", lp_ && lp_->result == TarqLimitReached ? lp_->limit : TarqLPOtherLimit);
    }
    return resultText(results_, name);
}

void RunDelivery::showLp(const StageControl& control, const LpOutputs& outputs) {
    const Progress& progress = control.progress;
    results_.iterations = progress.iterations.load(relaxed);
    results_.infeasibilities = progress.infeasibilities.load(relaxed);
    results_.lpObjective = progress.objective.load(relaxed);
    results_.lpSeconds = control.seconds();
    results_.runSeconds = runSeconds();
    show(outputs.iterations, clamped(results_.iterations));
    show(outputs.infeasibilities, clamped(results_.infeasibilities));
    show(outputs.objective, results_.lpObjective);
    show(outputs.sumOfInfeasibilities, progress.sumOfInfeasibilities.load(relaxed));
}

void RunDelivery::showIp(const StageControl& control, const IpOutputs& outputs) {
    const Progress& progress = control.progress;
    const double sense = model_.maximize ? -1.0 : 1.0;
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
    show(outputs.nodes, clamped(results_.nodes));
    show(outputs.integerSolutions, clamped(results_.integerSolutions));
    show(outputs.objective, results_.ipObjective);
    show(outputs.bestPossible, bound);
}

void RunDelivery::beginStage(Stage stage) {
    note({});
    if (stage == Stage::Lp) lp_.reset();
    ip_.reset();
}

const StageOutcome* RunDelivery::outcome(Stage stage) const {
    const std::optional<StageOutcome>& kept = stage == Stage::Lp ? lp_ : ip_;
    return kept ? &*kept : nullptr;
}

void RunDelivery::endStage(Stage stage, StageOutcome outcome, const LogSink& log) {
    const std::string message = outcome.message.empty() ? log.message() : outcome.message;
    (stage == Stage::Lp ? lp_ : ip_) = std::move(outcome);
    writeReports(stage);
    if (!log.isWhole()) noteFileFailure("xfnlog");
    note(message.empty() || fileFailures_.empty() ? message + fileFailures_ : message + " " + fileFailures_);
}

void RunDelivery::report(std::string_view fileParameter, const std::string& content) {
    const std::string path = parameters_.text(fileParameter);
    if (!path.empty() && !writeFile(path, content)) noteFileFailure(fileParameter);
}

void RunDelivery::writeReports(Stage stage) {
    const std::string_view fileParameter = stage == Stage::Lp ? "xfnlps" : "xfnips";
    const int level = parameters_.integer("xoutsl");
    if (level >= 1 && !parameters_.text(fileParameter).empty()) {
        report(fileParameter, solutionReport(model_, *outcome(stage), stage, level >= 2));
    }
    if (parameters_.integer("xoutlv") < 1 || parameters_.text("xfnsta").empty()) return;
    report("xfnsta", statisticsReport(model_, results_, *lp_, outcome(Stage::Ip)));
}

bool RunDelivery::deliver(const StageOutcome& outcome, const SolutionOutputs& outputs) {
    const auto count = static_cast<std::size_t>(model_.rows) + static_cast<std::size_t>(model_.columns);
    if (!outputs.status || !outputs.objective) {
        note("The outputs of a solution are missing.");
        return false;
    }
    if (count > 0 && (!outputs.values || !outputs.reducedCosts || !outputs.basisStatus)) {
        note("The arrays for a solution are missing.");
        return false;
    }
    show(outputs.status, outcome.solutionStatus);
    show(outputs.objective, outcome.objective);
    const SolutionArrays& solution = outcome.solution;
    if (solution.values.size() == count) {
        std::copy(solution.values.begin(), solution.values.end(), outputs.values);
        std::copy(solution.reducedCosts.begin(), solution.reducedCosts.end(), outputs.reducedCosts);
        std::copy(solution.states.begin(), solution.states.end(), outputs.basisStatus);
    } else {
        std::fill_n(outputs.values, count, 0.0);
        std::fill_n(outputs.reducedCosts, count, 0.0);
        std::fill_n(outputs.basisStatus, count, TarqBasisUndefined);
    }
    return true;
}

}  // namespace tarq::engine
