#include "lpstage.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "freerows.h"
#include "optionmapping.h"

namespace tarq::engine {

namespace {

// No LP that the interior point method can solve takes it as long; on others it may go on for ever.
constexpr int mostInteriorIterations = 500;

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
    // The simplex method as the parameters say, or its primal form.
    enum class Method { Interior, Simplex, PrimalSimplex };

    struct Point {
        HighsModelStatus status = HighsModelStatus::kSolveError;
        HighsSolution solution;
        HighsBasis basis;
    };

    [[nodiscard]] HighsModelStatus attempt(bool presolve, Method method);
    [[nodiscard]] bool isOverAtOnce() const;
    [[nodiscard]] HighsModelStatus solvePresolved(Method method);
    [[nodiscard]] HighsModelStatus runWhole(Method method);
    [[nodiscard]] HighsModelStatus runOn(Highs& highs, Method method, const char* presolve);
    [[nodiscard]] Point solveApart(HighsLp lp, Method method, const std::vector<HighsInt>& freeRows);
    void returnToModel(const HighsSolution& solution, HighsBasis basis, bool optimal);
    void setOptions(Highs& highs, Method method);
    void setIterationLimit(Highs& highs);
    void countIterations(const Highs& highs, HighsInt simplexBegin = 0);
    [[nodiscard]] HighsModelStatus settle();
    [[nodiscard]] StageOutcome solved();
    [[nodiscard]] static StageOutcome withoutOptimum(TarqLPStatus status);
    [[nodiscard]] StageOutcome ended(HighsModelStatus status);
    [[nodiscard]] StageOutcome withoutColumns();
    [[nodiscard]] bool checkPrimal();
    [[nodiscard]] const HighsSolution& solution() const { return apart_ ? apart_->solution : highs_.getSolution(); }
    [[nodiscard]] SolutionArrays arrays() const;
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
    std::optional<Point> apart_;  // of the latest attempt, where it isn't in highs_
    // To the interior point method, which finds infeasible also what is feasible within the tolerances; so this counts
    // only where the simplex method comes to no end.
    bool looksInfeasible_ = false;
};

bool isStopped(HighsModelStatus status) {
    return status == HighsModelStatus::kInterrupt || status == HighsModelStatus::kTimeLimit ||
           status == HighsModelStatus::kIterationLimit;
}

void LpStage::setOptions(Highs& highs, Method method) {
    applyOptions(parameters_, Stage::Lp, highs);
    highs.setOptionValue("allow_unbounded_or_infeasible", true);
    if (method != Method::Interior) highs.setOptionValue("solver", "simplex");
    if (method == Method::PrimalSimplex) highs.setOptionValue("simplex_strategy", kSimplexStrategyPrimal);
    setIterationLimit(highs);
    allowTimeLeft(highs, control_);
}

void LpStage::setIterationLimit(Highs& highs) {
    const auto used = static_cast<int>(std::min<std::int64_t>(watch_->iterationsBefore, mostIterations_));
    int left = mostIterations_ - used;
    highs.setOptionValue("ipm_iteration_limit", std::min(left, mostInteriorIterations));
    if (frequency_ > 0) {
        left = std::min(left, frequency_ - static_cast<int>(std::min<std::int64_t>(simplexIterations_, frequency_)));
    }
    highs.setOptionValue("simplex_iteration_limit", left);
}

// `simplexBegin` is where HiGHS began to count the iterations of the simplex method.
void LpStage::countIterations(const Highs& highs, HighsInt simplexBegin) {
    const HighsInfo& info = highs.getInfo();
    const HighsInt simplexIterations = info.simplex_iteration_count - simplexBegin;
    simplexIterations_ += std::max<HighsInt>(0, simplexIterations);
    for (const HighsInt count : {simplexIterations, info.ipm_iteration_count, info.crossover_iteration_count}) {
        watch_->iterationsBefore += std::max<HighsInt>(0, count);
    }
    const std::int64_t known = control_.progress.iterations.load(std::memory_order_relaxed);
    watch_->iterationsBefore = std::max(watch_->iterationsBefore, known);
    control_.progress.iterations.store(watch_->iterationsBefore, std::memory_order_relaxed);
}

HighsModelStatus LpStage::runOn(Highs& highs, Method method, const char* presolve) {
    highs.setOptionValue("presolve", presolve);
    highs.run();
    countIterations(highs);
    const HighsModelStatus status = highs.getModelStatus();
    if (method != Method::Interior) return status;
    const bool lost = status == HighsModelStatus::kIterationLimit && watch_->iterationsBefore < mostIterations_ &&
                      highs.getInfo().ipm_iteration_count >= mostInteriorIterations;
    if (status == HighsModelStatus::kInfeasible) looksInfeasible_ = true;
    return lost || status == HighsModelStatus::kInfeasible ? HighsModelStatus::kUnknown : status;
}

HighsModelStatus LpStage::runWhole(Method method) {
    const auto freeRows = method == Method::Interior ? freeRowsOf(highs_.getLp()) : std::vector<HighsInt>();
    if (freeRows.empty()) return runOn(highs_, method, "off");
    apart_ = solveApart(highs_.getLp(), method, freeRows);
    if (apart_->solution.value_valid) {
        highs_.getLp().a_matrix_.product(apart_->solution.row_value, apart_->solution.col_value);
    }
    return apart_->status;
}

LpStage::Point LpStage::solveApart(HighsLp lp, Method method, const std::vector<HighsInt>& freeRows) {
    Highs highs;
    observe(highs, watch_, nullptr);
    setOptions(highs, method);
    if (highs.passModel(std::move(lp)) == HighsStatus::kError) return {};
    highs.deleteRows(static_cast<HighsInt>(freeRows.size()), freeRows.data());
    Point point;
    point.status = runOn(highs, method, "off");
    point.solution = highs.getSolution();
    point.basis = highs.getBasis();
    insertFreeRows(freeRows, point.solution, point.basis);
    return point;
}

// An LP that is solved before anybody could stop it, and that no limit is meant to end early.
bool LpStage::isOverAtOnce() const {
    constexpr int manyIterations = 100'000;
    const HighsLp& lp = highs_.getLp();
    return isBrief(lp.num_row_, lp.num_col_, lp.a_matrix_.numNz()) && frequency_ == 0 &&
           mostIterations_ >= manyIterations && control_.secondsLeft() == std::numeric_limits<double>::infinity();
}

// Presolve, the presolved model and the way back are separate steps here: when HiGHS does them in one go and has to end
// early, it throws away where it was.
HighsModelStatus LpStage::attempt(bool presolve, Method method) {
    if (control_.stopReason() != StopReason::None) return HighsModelStatus::kInterrupt;
    watch_->log->clearMessage();
    apart_.reset();
    highs_.clearSolver();
    setOptions(highs_, method);
    if (!presolve || highs_.getLp().num_row_ == 0) return runWhole(method);
    if (isOverAtOnce() && method != Method::Interior) {
        const HighsModelStatus status = runOn(highs_, method, "on");
        if (!isStopped(status)) return status;
        // It did end early, so where it was is looked for again.
        if (control_.stopReason() != StopReason::None) return status;
        highs_.clearSolver();
        setOptions(highs_, method);
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
            return solvePresolved(method);
        default:
            return runWhole(method);
    }
}

HighsModelStatus LpStage::solvePresolved(Method method) {
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
    // Presolve leaves no row without bounds.
    Point point = solveApart(highs_.getPresolvedLp(), method, {});
    const bool optimal = point.status == HighsModelStatus::kOptimal;
    const bool stopped = isStopped(point.status) || control_.stopReason() != StopReason::None;
    if (optimal || (stopped && point.solution.value_valid)) {
        returnToModel(point.solution, std::move(point.basis), optimal);
    }
    return optimal ? highs_.getModelStatus() : point.status;
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
    const HighsInt countBegin = std::min<HighsInt>(0, highs_.getInfo().simplex_iteration_count);
    highs_.postsolve(solution, basis);
    control_.hold(false);
    if (optimal) countIterations(highs_, countBegin);
}

bool LpStage::checkPrimal() {
    std::vector<double> rowValues;
    check_ = checkPoint(highs_.getLp(), {}, solution().col_value, model_.tolerance, rowValues);
    return check_.feasible;
}

SolutionArrays LpStage::arrays() const {
    return arraysOf(highs_.getLp(), solution(), apart_ ? apart_->basis : highs_.getBasis());
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

// Tries what the parameters say, and where the outcome calls for it the simplex method, with presolve the other way
// about, and its primal form.
HighsModelStatus LpStage::settle() {
    const bool presolve = parameters_.integer("xrduce") != 0 && !losesDualsInPresolve();
    const bool interior = parameters_.integer("xlptyp") == 4;
    HighsModelStatus status = attempt(presolve, interior ? Method::Interior : Method::Simplex);
    const auto settled = [&] {
        if (control_.stopReason() != StopReason::None || isStopped(status)) return true;
        if (status == HighsModelStatus::kOptimal) return checkPrimal();
        return status == HighsModelStatus::kInfeasible || status == HighsModelStatus::kUnbounded ||
               status == HighsModelStatus::kMemoryLimit;
    };
    if (settled()) return status;
    for (const bool other : {presolve, !presolve}) {
        if ((other == presolve && !interior) || status == HighsModelStatus::kUnboundedOrInfeasible) continue;
        status = attempt(other, Method::Simplex);
        if (settled()) return status;
    }
    if (status != HighsModelStatus::kOptimal) status = attempt(false, Method::PrimalSimplex);
    return status == HighsModelStatus::kUnknown && looksInfeasible_ ? HighsModelStatus::kInfeasible : status;
}

StageOutcome LpStage::solved() {
    StageOutcome outcome;
    outcome.result = TarqSuccess;
    const bool feasible = checkPrimal();
    outcome.solutionStatus = feasible ? TarqLPSolutionOptimal : TarqLPSolutionDualFeasible;
    outcome.objective = check_.objective;
    outcome.solution = arrays();
    showInfeasibilities();
    if (!feasible) {
        outcome.message =
            fmt::format("The optimum found violates bounds by {:.3g} and rows by {:.3g}.", check_.bounds, check_.rows);
    }
    return outcome;
}

// The two statuses of such a model are those of a solution as well.
StageOutcome LpStage::withoutOptimum(TarqLPStatus status) {
    static_assert(int{TarqLPInfeasible} == int{TarqLPSolutionInfeasible});
    static_assert(int{TarqLPUnbounded} == int{TarqLPSolutionUnbounded});
    StageOutcome outcome;
    outcome.result = TarqSuccess;
    outcome.lpStatus = outcome.solutionStatus = status;
    return outcome;
}

// A stage that came to no end of its own: by a limit, a break or a stop.
StageOutcome LpStage::ended(HighsModelStatus status) {
    StageOutcome outcome;
    const StopReason reason = control_.stopReason();
    const bool broken = status == HighsModelStatus::kIterationLimit && frequency_ > 0 &&
                        frequency_ <= mostIterations_ && simplexIterations_ >= frequency_;
    outcome.endEarly(reason == StopReason::Request || (broken && reason == StopReason::None),
                     status == HighsModelStatus::kIterationLimit ? TarqLPIterationLimit : TarqLPTimeLimit);
    outcome.solutionStatus = TarqLPSolutionUndefined;
    if (!solution().value_valid) return outcome;
    const bool primal = checkPrimal();
    const bool dual = highs_.getInfo().valid && highs_.getInfo().num_dual_infeasibilities == 0;
    if (dual) outcome.solutionStatus = TarqLPSolutionDualFeasible;
    if (primal) outcome.solutionStatus = TarqLPSolutionPrimalFeasible;
    outcome.objective = check_.objective;
    outcome.solution = arrays();
    showInfeasibilities();
    return outcome;
}

StageOutcome LpStage::withoutColumns() {
    StageOutcome outcome;
    outcome.result = TarqSuccess;
    const HighsLp& lp = highs_.getLp();
    std::vector<double> rowValues;
    if (!checkPoint(lp, {}, {}, model_.tolerance, rowValues).feasible) return withoutOptimum(TarqLPInfeasible);
    outcome.solution.values = rowValues;
    outcome.solution.reducedCosts.assign(rowValues.size(), 0.0);
    outcome.solution.states.assign(rowValues.size(), TarqBasic);
    return outcome;
}

StageOutcome LpStage::run() {
    if (highs_.getLp().num_col_ == 0) return withoutColumns();
    const HighsModelStatus status = settle();
    if (isStopped(status)) return ended(status);
    StageOutcome outcome;
    outcome.solutionStatus = TarqLPSolutionUndefined;
    switch (status) {
        case HighsModelStatus::kOptimal:
            return solved();
        case HighsModelStatus::kInfeasible:
            return withoutOptimum(TarqLPInfeasible);
        case HighsModelStatus::kUnbounded:
            return withoutOptimum(TarqLPUnbounded);
        case HighsModelStatus::kMemoryLimit:
            outcome.fail(TarqGeneralError, outOfMemoryText);
            return outcome;
        default:
            if (control_.stopReason() != StopReason::None) return ended(HighsModelStatus::kInterrupt);
            outcome.fail(TarqNumericError,
                         fmt::format("The LP could not be solved: {}.", highs_.modelStatusToString(status)));
            return outcome;
    }
}

}  // namespace

// HiGHS's time grows about with the product: presolve compares the columns of a row with each other, and the simplex
// method takes about as many iterations as there are rows, each of which may look at all that there is.
bool isBrief(std::int64_t rows, std::int64_t columns, std::int64_t nonzeros) {
    constexpr std::int64_t mostWork = 10'000'000;
    const std::int64_t length = rows + columns;
    return length < mostWork && length * (length + nonzeros) <= mostWork;
}

StageOutcome solveLp(SolverModel& model, const ParameterValues& parameters, const std::shared_ptr<Watch>& watch,
                     int iterationFrequency) {
    model.highs.resetOptions();  // those of an earlier stage
    observe(model.highs, watch, nullptr);
    model.dropIntegrality();
    return LpStage(model, parameters, watch, iterationFrequency).run();
}

}  // namespace tarq::engine
