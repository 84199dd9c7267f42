#include "ipstage.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "freerows.h"
#include "optionmapping.h"
#include "resultvalues.h"

namespace tarq::engine {

namespace {

constexpr auto relaxed = std::memory_order_relaxed;

class IpStage {
public:
    IpStage(SolverModel& model, const ParameterValues& parameters, std::shared_ptr<Watch> watch, int nodeFrequency)
        : model_(model),
          highs_(model.highs),
          parameters_(parameters),
          watch_(std::move(watch)),
          control_(*watch_->control),
          progress_(control_.progress),
          mostNodes_(std::max(0, parameters.integer("xmxnod"))),
          mostSolutions_(std::max(0, parameters.integer("xmxint"))),
          frequency_(nodeFrequency > 0 ? nodeFrequency : 0),
          nodeLimit_(frequency_ > 0 ? std::min(frequency_, mostNodes_) : mostNodes_) {
        const double cutoff = parameters.number("xipbnd");
        model_.objectiveBound = std::abs(cutoff) >= unknownValue ? kHighsInf : model_.sense() * cutoff;
    }

    StageOutcome run();

private:
    [[nodiscard]] HighsModelStatus attempt(bool presolve);
    [[nodiscard]] HighsModelStatus runOn(Highs& highs, bool presolve);
    [[nodiscard]] HighsModelStatus settle();
    void takeSolution(const HighsSolution& solution);
    void polish();
    [[nodiscard]] StageOutcome ended(HighsModelStatus status);
    [[nodiscard]] StageOutcome failed(HighsModelStatus status);
    void describe(StageOutcome& outcome);
    [[nodiscard]] bool beatsCutoff(double objective) const;

    SolverModel& model_;
    Highs& highs_;
    const ParameterValues& parameters_;
    const std::shared_ptr<Watch> watch_;
    StageControl& control_;
    Progress& progress_;
    const int mostNodes_;
    const int mostSolutions_;
    const int frequency_;
    const int nodeLimit_;  // the nearer one of break and limit

    bool found_ = false;  // a solution that passed the check
    PointCheck check_;
    SolutionArrays solution_;
};

bool IpStage::beatsCutoff(double objective) const { return model_.sense() * objective < model_.objectiveBound; }

HighsModelStatus IpStage::attempt(bool presolve) {
    found_ = false;
    // What HiGHS holds before a run is the point of the LP.
    if (control_.stopReason() != StopReason::None) return HighsModelStatus::kInterrupt;
    if (mostSolutions_ == 0) return HighsModelStatus::kSolutionLimit;
    watch_->log->clearMessage();
    highs_.clearSolver();
    highs_.resetOptions();
    observe(highs_, watch_, &model_);
    highs_.changeColsIntegrality(0, highs_.getLp().num_col_ - 1, model_.integrality.data());
    // Branch and bound uses the interior point method at the root, and presolve is what takes such rows away.
    const auto freeRows = presolve ? std::vector<HighsInt>() : freeRowsOf(highs_.getLp());
    if (freeRows.empty()) return runOn(highs_, presolve);
    Highs apart;
    observe(apart, watch_, &model_);
    if (apart.passModel(highs_.getLp()) == HighsStatus::kError) return HighsModelStatus::kModelError;
    apart.deleteRows(static_cast<HighsInt>(freeRows.size()), freeRows.data());
    return runOn(apart, presolve);
}

HighsModelStatus IpStage::runOn(Highs& highs, bool presolve) {
    applyOptions(parameters_, Stage::Ip, highs);
    if (!presolve) highs.setOptionValue("presolve", "off");
    highs.setOptionValue("objective_bound", model_.objectiveBound);
    const int nodes = nodeLimit_ - static_cast<int>(std::min<std::int64_t>(nodeLimit_, watch_->nodesBefore));
    highs.setOptionValue("mip_max_nodes", nodes);
    highs.setOptionValue("mip_max_improving_sols", mostSolutions_);
    allowTimeLeft(highs, control_);
    highs.run();

    const HighsInfo& info = highs.getInfo();
    watch_->nodesBefore += std::max<std::int64_t>(0, info.mip_node_count);
    watch_->iterationsBefore += std::max<HighsInt>(0, info.simplex_iteration_count);
    progress_.nodes.store(watch_->nodesBefore, relaxed);
    progress_.iterations.store(watch_->iterationsBefore, relaxed);
    if (info.valid && std::isfinite(info.mip_dual_bound)) progress_.bestPossible.store(info.mip_dual_bound, relaxed);
    takeSolution(highs.getSolution());
    return highs.getModelStatus();
}

// Keeps HiGHS's solution when it is one of the model.
void IpStage::takeSolution(const HighsSolution& solution) {
    if (!solution.value_valid) return;
    std::vector<double> rowValues;
    check_ = checkPoint(highs_.getLp(), model_.integrality, solution.col_value, model_.tolerance, rowValues);
    if (!check_.feasible) {
        watch_->log->write(LogKind::Warning,
                           fmt::format("WARNING: The solution violates bounds by {:.3g}, rows by {:.3g} and "
                                       "integrality by {:.3g}.\n",
                                       check_.bounds, check_.rows, check_.integrality));
        return;
    }
    found_ = true;
    solution_.values = solution.col_value;
    solution_.values.insert(solution_.values.end(), rowValues.begin(), rowValues.end());
    solution_.reducedCosts.assign(solution_.values.size(), 0.0);
    solution_.states.assign(solution_.values.size(), TarqBasisUndefined);
}

HighsModelStatus IpStage::settle() {
    const bool presolve = parameters_.integer("xnopre") != 0;
    HighsModelStatus status = attempt(presolve);
    const auto settled = [&] {
        switch (status) {
            case HighsModelStatus::kOptimal:
                return found_;
            case HighsModelStatus::kTimeLimit:
            case HighsModelStatus::kIterationLimit:
            case HighsModelStatus::kSolutionLimit:
            case HighsModelStatus::kInterrupt:
            case HighsModelStatus::kMemoryLimit:
                return true;
            default:
                return control_.stopReason() != StopReason::None;
        }
    };
    if (!settled() && presolve) {
        status = attempt(false);
        if (!settled() && status == HighsModelStatus::kOptimal) status = HighsModelStatus::kSolveError;
    }
    return status;
}

// Solves the LP that is left when the integer columns are fixed at the solution: it gives the duals, and a solution
// whose integers are exact. Where it doesn't work out, the solution stays as it is, without duals.
void IpStage::polish() {
    Highs fixed;
    auto watch = std::make_shared<Watch>();
    watch->log = watch_->log;
    const bool stopped = control_.stopReason() != StopReason::None;
    if (!stopped) {
        watch->control = watch_->control;
        watch->incumbent = watch_->incumbent;
        watch->iterationsBefore = watch_->iterationsBefore;
    }
    observe(fixed, watch, nullptr);
    applyOptions(parameters_, Stage::Lp, fixed);
    fixed.setOptionValue("solver", "simplex");
    fixed.setOptionValue("time_limit", stopped ? 1.0 : control_.secondsLeft());

    HighsLp lp = highs_.getLp();
    lp.integrality_.clear();
    for (std::size_t column = 0; column < model_.integrality.size(); ++column) {
        if (model_.integrality[column] != HighsVarType::kInteger) continue;
        lp.col_lower_[column] = lp.col_upper_[column] = std::round(solution_.values[column]);
    }
    if (fixed.passModel(std::move(lp)) == HighsStatus::kError) return;
    fixed.run();
    if (fixed.getModelStatus() != HighsModelStatus::kOptimal) return;

    std::vector<double> rowValues;
    const PointCheck check =
        checkPoint(highs_.getLp(), model_.integrality, fixed.getSolution().col_value, model_.tolerance, rowValues);
    const double worse = model_.sense() * (check.objective - check_.objective);
    if (!check.feasible || worse > 1e-6 * std::max(1.0, std::abs(check_.objective))) return;
    check_ = check;
    solution_ = arraysOf(fixed.getLp(), fixed.getSolution(), fixed.getBasis());
}

void IpStage::describe(StageOutcome& outcome) {
    outcome.bestPossible = progress_.bestPossible.load(relaxed);
    outcome.solutionStatus = TarqIPSolutionNone;
    if (!found_ || !beatsCutoff(check_.objective)) return;
    polish();
    outcome.solutionStatus = outcome.result == TarqSuccess ? TarqIPSolutionOptimal : TarqIPSolutionSuboptimal;
    outcome.objective = check_.objective;
    outcome.solution = std::move(solution_);
    progress_.objective.store(outcome.objective, relaxed);
    progress_.hasIncumbent.store(true, relaxed);
    if (progress_.integerSolutions.load(relaxed) == 0) progress_.integerSolutions.store(1, relaxed);
    // The bound may lie beyond the solution by what the tolerances allow.
    if (model_.sense() * (outcome.bestPossible - outcome.objective) > 0.0) outcome.bestPossible = outcome.objective;
}

StageOutcome IpStage::ended(HighsModelStatus status) {
    StageOutcome outcome;
    const StopReason reason = control_.stopReason();
    const bool nodesReached = mostSolutions_ > 0 && watch_->nodesBefore >= nodeLimit_;
    const bool timeUp = status == HighsModelStatus::kTimeLimit || status == HighsModelStatus::kInterrupt;
    const bool atBreak = frequency_ > 0 && frequency_ <= mostNodes_ && nodesReached;
    // HiGHS also counts solutions that the checks refuse, so its count may be reached when ours isn't.
    const bool solutions = !nodesReached || progress_.integerSolutions.load(relaxed) >= mostSolutions_;
    outcome.endEarly(reason == StopReason::Request || (atBreak && !timeUp), timeUp      ? TarqIPTimeLimit
                                                                            : solutions ? TarqIPSolutionLimit
                                                                                        : TarqIPNodeLimit);
    describe(outcome);
    return outcome;
}

StageOutcome IpStage::failed(HighsModelStatus status) {
    StageOutcome outcome;
    outcome.solutionStatus = TarqIPSolutionNone;
    if (status == HighsModelStatus::kMemoryLimit) {
        outcome.fail(TarqGeneralError, outOfMemoryText);
    } else {
        outcome.fail(TarqNumericError, fmt::format("Branch and bound failed: {}.", highs_.modelStatusToString(status)));
    }
    return outcome;
}

StageOutcome IpStage::run() {
    const HighsModelStatus status = settle();
    const bool optimal = status == HighsModelStatus::kOptimal;
    if (!optimal && control_.stopReason() == StopReason::Request) return ended(HighsModelStatus::kInterrupt);
    StageOutcome outcome;
    switch (status) {
        case HighsModelStatus::kOptimal:
        case HighsModelStatus::kInfeasible:
        case HighsModelStatus::kObjectiveBound:
        case HighsModelStatus::kObjectiveTarget:
            outcome.result = TarqSuccess;
            describe(outcome);
            return outcome;
        case HighsModelStatus::kTimeLimit:
        case HighsModelStatus::kSolutionLimit:
        case HighsModelStatus::kIterationLimit:
        case HighsModelStatus::kInterrupt:
            return ended(status);
        default:
            return control_.stopReason() == StopReason::None ? failed(status) : ended(HighsModelStatus::kInterrupt);
    }
}

}  // namespace

StageOutcome solveIp(SolverModel& model, const ParameterValues& parameters, const std::shared_ptr<Watch>& watch,
                     int nodeFrequency) {
    return IpStage(model, parameters, watch, nodeFrequency).run();
}

StageOutcome incumbentOutcome(Incumbent& incumbent, StopReason reason) {
    StageOutcome outcome;
    outcome.endEarly(reason == StopReason::Request, TarqIPTimeLimit);
    outcome.solutionStatus = TarqIPSolutionNone;
    const std::lock_guard lock(incumbent.mutex);
    if (!incumbent.found) return outcome;
    outcome.solutionStatus = TarqIPSolutionSuboptimal;
    outcome.objective = incumbent.objective;
    outcome.solution.values = incumbent.columnValues;
    outcome.solution.values.insert(outcome.solution.values.end(), incumbent.rowValues.begin(),
                                   incumbent.rowValues.end());
    outcome.solution.reducedCosts.assign(outcome.solution.values.size(), 0.0);
    outcome.solution.states.assign(outcome.solution.values.size(), TarqBasisUndefined);
    return outcome;
}

}  // namespace tarq::engine
