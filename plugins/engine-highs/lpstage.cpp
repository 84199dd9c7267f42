#include "lpstage.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "optionmapping.h"

namespace tarq::engine {

namespace {

class LpStage {
public:
    LpStage(SolverModel& model, const ParameterValues& parameters, std::shared_ptr<Watch> watch, int frequency)
        : model_(model),
          highs_(model.highs),
          parameters_(parameters),
          watch_(std::move(watch)),
          control_(*watch_->control),
          mostIterations_(std::max(0, parameters.integer("xmiter"))),
          frequency_(frequency > 0 ? frequency : 0) {}

    StageOutcome run();

private:
    [[nodiscard]] HighsModelStatus attempt(bool presolve, bool primalSimplex);
    [[nodiscard]] bool isOverAtOnce() const;
    [[nodiscard]] HighsModelStatus runAtOnce();
    [[nodiscard]] HighsModelStatus solvePresolved(bool primalSimplex);
    [[nodiscard]] HighsModelStatus runWhole();
    void returnToModel(const HighsSolution& solution, HighsBasis basis, bool optimal);
    void setOptions(Highs& highs, bool primalSimplex);
    void setIterationLimit(Highs& highs);
    void countIterations(const Highs& highs);
    [[nodiscard]] HighsModelStatus settle();
    [[nodiscard]] StageOutcome solved();
    [[nodiscard]] StageOutcome ended(HighsModelStatus status);
    [[nodiscard]] StageOutcome withoutColumns();
    [[nodiscard]] bool checkPrimal();
    void showInfeasibilities();
    [[nodiscard]] bool losesDualsInPresolve() const;

    SolverModel& model_;
    Highs& highs_;
    const ParameterValues& parameters_;
    const std::shared_ptr<Watch> watch_;
    StageControl& control_;
    const int mostIterations_;
    const int frequency_;
    std::int64_t simplexIterations_ = 0;  // of all attempts; a break counts no others
    PointCheck check_;
};

bool isStopped(HighsModelStatus status) {
    return status == HighsModelStatus::kInterrupt || status == HighsModelStatus::kTimeLimit ||
           status == HighsModelStatus::kIterationLimit;
}

void LpStage::setOptions(Highs& highs, bool primalSimplex) {
    applyOptions(parameters_, Stage::Lp, highs);
    highs.setOptionValue("allow_unbounded_or_infeasible", true);
    if (primalSimplex) {
        highs.setOptionValue("solver", "simplex");
        highs.setOptionValue("simplex_strategy", kSimplexStrategyPrimal);
    }
    setIterationLimit(highs);
    allowTimeLeft(highs, control_);
}

void LpStage::setIterationLimit(Highs& highs) {
    const auto used = static_cast<int>(std::min<std::int64_t>(watch_->iterationsBefore, mostIterations_));
    int left = mostIterations_ - used;
    highs.setOptionValue("ipm_iteration_limit", left);
    if (frequency_ > 0) {
        left = std::min(left, frequency_ - static_cast<int>(std::min<std::int64_t>(simplexIterations_, frequency_)));
    }
    highs.setOptionValue("simplex_iteration_limit", left);
}

void LpStage::countIterations(const Highs& highs) {
    const HighsInfo& info = highs.getInfo();
    simplexIterations_ += std::max<HighsInt>(0, info.simplex_iteration_count);
    for (const HighsInt count :
         {info.simplex_iteration_count, info.ipm_iteration_count, info.crossover_iteration_count}) {
        watch_->iterationsBefore += std::max<HighsInt>(0, count);
    }
    const std::int64_t known = control_.progress.iterations.load(std::memory_order_relaxed);
    watch_->iterationsBefore = std::max(watch_->iterationsBefore, known);
    control_.progress.iterations.store(watch_->iterationsBefore, std::memory_order_relaxed);
}

HighsModelStatus LpStage::runWhole() {
    highs_.setOptionValue("presolve", "off");
    highs_.run();
    countIterations(highs_);
    return highs_.getModelStatus();
}

// An LP that is solved before anybody could stop it, and that no limit is meant to end early.
bool LpStage::isOverAtOnce() const {
    constexpr std::int64_t fewNonzeros = 10'000;
    constexpr int manyIterations = 100'000;
    return model_.highs.getLp().a_matrix_.numNz() <= fewNonzeros && frequency_ == 0 &&
           mostIterations_ >= manyIterations && control_.secondsLeft() == std::numeric_limits<double>::infinity();
}

HighsModelStatus LpStage::runAtOnce() {
    highs_.setOptionValue("presolve", "on");
    highs_.run();
    countIterations(highs_);
    return highs_.getModelStatus();
}

// Presolve, the presolved model and the way back are separate steps here: when HiGHS does them in one go and has to end
// early, it throws away where it was.
HighsModelStatus LpStage::attempt(bool presolve, bool primalSimplex) {
    if (control_.stopReason() != StopReason::None) return HighsModelStatus::kInterrupt;
    watch_->log->clearMessage();
    highs_.clearSolver();
    setOptions(highs_, primalSimplex);
    if (!presolve || highs_.getLp().num_row_ == 0) return runWhole();
    if (isOverAtOnce()) {
        const HighsModelStatus status = runAtOnce();
        if (!isStopped(status)) return status;
        // It did end early, so where it was is looked for again.
        if (control_.stopReason() != StopReason::None) return status;
        highs_.clearSolver();
        setOptions(highs_, primalSimplex);
    }
    highs_.presolve();
    switch (highs_.getModelPresolveStatus()) {
        case HighsPresolveStatus::kInfeasible:
            return HighsModelStatus::kInfeasible;
        case HighsPresolveStatus::kUnboundedOrInfeasible:
            return HighsModelStatus::kUnboundedOrInfeasible;
        case HighsPresolveStatus::kTimeout:
            return HighsModelStatus::kTimeLimit;
        case HighsPresolveStatus::kReduced:
        case HighsPresolveStatus::kReducedToEmpty:
            return solvePresolved(primalSimplex);
        default:
            return runWhole();
    }
}

HighsModelStatus LpStage::solvePresolved(bool primalSimplex) {
    if (highs_.getModelPresolveStatus() == HighsPresolveStatus::kReducedToEmpty) {
        HighsSolution solution;
        solution.value_valid = true;
        solution.dual_valid = true;
        HighsBasis basis;
        basis.valid = true;
        basis.useful = true;
        basis.alien = false;
        returnToModel(solution, std::move(basis), true);
        return highs_.getModelStatus();
    }
    HighsSolution solution;
    HighsBasis basis;
    HighsModelStatus status = HighsModelStatus::kSolveError;
    {
        Highs reduced;  // gives its memory back before the way back needs as much
        observe(reduced, watch_, nullptr);
        setOptions(reduced, primalSimplex);
        reduced.setOptionValue("presolve", "off");
        if (reduced.passModel(highs_.getPresolvedLp()) == HighsStatus::kError) return status;
        reduced.run();
        countIterations(reduced);
        status = reduced.getModelStatus();
        solution = reduced.getSolution();
        basis = reduced.getBasis();
    }
    const bool optimal = status == HighsModelStatus::kOptimal;
    const bool stopped = isStopped(status) || control_.stopReason() != StopReason::None;
    if (optimal || (stopped && solution.value_valid)) returnToModel(solution, std::move(basis), optimal);
    return optimal ? highs_.getModelStatus() : status;
}

// Takes a solution of the presolved model back to the model itself. HiGHS follows it up with the simplex method, which
// finds nothing left to do after an optimum; after anything else it only evaluates the point.
void LpStage::returnToModel(const HighsSolution& solution, HighsBasis basis, bool optimal) {
    highs_.setOptionValue("solver", "simplex");
    highs_.setOptionValue("simplex_strategy", kSimplexStrategyChoose);
    allowTimeLeft(highs_, control_);
    setIterationLimit(highs_);
    if (!optimal) {
        highs_.setOptionValue("time_limit", kHighsInf);
        highs_.setOptionValue("simplex_iteration_limit", 0);
        control_.hold(true);
    }
    if (!basis.valid) basis.clear();
    highs_.postsolve(solution, basis);
    control_.hold(false);
    if (optimal) countIterations(highs_);
}

bool LpStage::checkPrimal() {
    std::vector<double> rowValues;
    check_ = checkPoint(highs_.getLp(), {}, highs_.getSolution().col_value, model_.tolerance, rowValues);
    return check_.feasible;
}

void LpStage::showInfeasibilities() {
    const HighsInfo& info = highs_.getInfo();
    if (!info.valid || info.num_primal_infeasibilities < 0) return;
    control_.progress.infeasibilities.store(info.num_primal_infeasibilities, std::memory_order_relaxed);
    control_.progress.sumOfInfeasibilities.store(info.sum_primal_infeasibilities, std::memory_order_relaxed);
}

// The way back from presolve without a basis gives the duals of a maximum wrong signs in HiGHS 1.10.
bool LpStage::losesDualsInPresolve() const {
    return model_.sense() < 0.0 && parameters_.integer("xlptyp") == 4 && parameters_.integer("xipxov") == 0;
}

// Tries what the parameters say, then without presolve where the outcome calls for it.
HighsModelStatus LpStage::settle() {
    const bool presolve = parameters_.integer("xrduce") != 0 && !losesDualsInPresolve();
    HighsModelStatus status = attempt(presolve, false);
    const auto settled = [&] {
        if (control_.stopReason() != StopReason::None || isStopped(status)) return true;
        if (status == HighsModelStatus::kOptimal) return checkPrimal();
        return status == HighsModelStatus::kInfeasible || status == HighsModelStatus::kUnbounded ||
               status == HighsModelStatus::kMemoryLimit;
    };
    if (settled()) return status;
    if (presolve && status != HighsModelStatus::kUnboundedOrInfeasible) {
        status = attempt(false, false);
        if (settled()) return status;
    }
    return status == HighsModelStatus::kOptimal ? status : attempt(false, true);
}

StageOutcome LpStage::solved() {
    StageOutcome outcome;
    outcome.result = 0;
    const bool feasible = checkPrimal();
    outcome.solutionStatus = feasible ? 0 : 4;
    outcome.objective = check_.objective;
    outcome.solution = arraysOf(highs_);
    showInfeasibilities();
    if (!feasible) {
        outcome.message =
            fmt::format("The optimum found violates bounds by {:.3g} and rows by {:.3g}.", check_.bounds, check_.rows);
    }
    return outcome;
}

// A stage that came to no end of its own: by a limit, a break or a stop.
StageOutcome LpStage::ended(HighsModelStatus status) {
    StageOutcome outcome;
    const StopReason reason = control_.stopReason();
    const bool broken = status == HighsModelStatus::kIterationLimit && frequency_ > 0 &&
                        frequency_ <= mostIterations_ && simplexIterations_ >= frequency_;
    if (reason == StopReason::Request || (broken && reason == StopReason::None)) {
        outcome.result = resultStopped;
    } else {
        outcome.result = 1;
        outcome.limit = status == HighsModelStatus::kIterationLimit ? 1 : 2;
    }
    outcome.solutionStatus = nothingFeasible;
    if (!highs_.getSolution().value_valid) return outcome;
    const bool primal = checkPrimal();
    const bool dual = highs_.getInfo().valid && highs_.getInfo().num_dual_infeasibilities == 0;
    outcome.solutionStatus = primal ? 3 : dual ? 4 : nothingFeasible;
    outcome.objective = check_.objective;
    outcome.solution = arraysOf(highs_);
    showInfeasibilities();
    return outcome;
}

StageOutcome LpStage::withoutColumns() {
    StageOutcome outcome;
    outcome.result = 0;
    const HighsLp& lp = highs_.getLp();
    std::vector<double> rowValues;
    if (!checkPoint(lp, {}, {}, model_.tolerance, rowValues).feasible) {
        outcome.modelStatus = 1;
        outcome.solutionStatus = 1;
        return outcome;
    }
    outcome.solution.values = rowValues;
    outcome.solution.reducedCosts.assign(rowValues.size(), 0.0);
    outcome.solution.states.assign(rowValues.size(), 1);
    return outcome;
}

StageOutcome LpStage::run() {
    if (highs_.getLp().num_col_ == 0) return withoutColumns();
    const HighsModelStatus status = settle();
    if (isStopped(status)) return ended(status);
    StageOutcome outcome;
    outcome.solutionStatus = nothingFeasible;
    switch (status) {
        case HighsModelStatus::kOptimal:
            return solved();
        case HighsModelStatus::kInfeasible:
            outcome.result = 0;
            outcome.modelStatus = outcome.solutionStatus = 1;
            return outcome;
        case HighsModelStatus::kUnbounded:
            outcome.result = 0;
            outcome.modelStatus = outcome.solutionStatus = 2;
            return outcome;
        case HighsModelStatus::kMemoryLimit:
            outcome.result = 5;
            outcome.message = "Not enough memory.";
            return outcome;
        default:
            if (control_.stopReason() != StopReason::None) return ended(HighsModelStatus::kInterrupt);
            outcome.result = 4;
            outcome.message = fmt::format("The LP could not be solved: {}.", highs_.modelStatusToString(status));
            return outcome;
    }
}

std::int32_t stateOf(HighsBasisStatus status, double lower, double upper) {
    if (status == HighsBasisStatus::kBasic) return 1;
    if (lower == upper) return 4;
    switch (status) {
        case HighsBasisStatus::kLower:
            return 2;
        case HighsBasisStatus::kUpper:
            return 3;
        default:
            return 5;
    }
}

std::int32_t stateAt(double value, double lower, double upper) {
    constexpr double tolerance = 1e-7;
    const auto at = [&](double bound) {
        return std::isfinite(bound) && std::abs(value - bound) <= tolerance * std::max(1.0, std::abs(bound));
    };
    if (lower == upper) return 4;
    if (at(lower)) return 2;
    return at(upper) ? 3 : 5;
}

}  // namespace

SolutionArrays arraysOf(const Highs& highs) {
    const HighsLp& lp = highs.getLp();
    const HighsSolution& solution = highs.getSolution();
    const HighsBasis& basis = highs.getBasis();
    SolutionArrays arrays;
    const auto append = [&](const std::vector<double>& values, const std::vector<double>& duals,
                            const std::vector<HighsBasisStatus>& states, const std::vector<double>& lower,
                            const std::vector<double>& upper) {
        for (std::size_t position = 0; position < lower.size(); ++position) {
            const double value = position < values.size() ? values[position] : 0.0;
            arrays.values.push_back(value);
            arrays.reducedCosts.push_back(solution.dual_valid && position < duals.size() ? duals[position] : 0.0);
            arrays.states.push_back(basis.valid && position < states.size()
                                        ? stateOf(states[position], lower[position], upper[position])
                                        : stateAt(value, lower[position], upper[position]));
        }
    };
    const std::size_t count = lp.col_lower_.size() + lp.row_lower_.size();
    arrays.values.reserve(count);
    arrays.reducedCosts.reserve(count);
    arrays.states.reserve(count);
    append(solution.col_value, solution.col_dual, basis.col_status, lp.col_lower_, lp.col_upper_);
    append(solution.row_value, solution.row_dual, basis.row_status, lp.row_lower_, lp.row_upper_);
    return arrays;
}

StageOutcome solveLp(SolverModel& model, const ParameterValues& parameters, const std::shared_ptr<Watch>& watch,
                     int iterationFrequency) {
    model.highs.resetOptions();  // those of an earlier stage
    observe(model.highs, watch, nullptr);
    model.dropIntegrality();
    return LpStage(model, parameters, watch, iterationFrequency).run();
}

}  // namespace tarq::engine
