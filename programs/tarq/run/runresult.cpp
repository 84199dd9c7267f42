#include "run/runresult.h"

#include <fmt/format.h>

#include <cmath>
#include <iterator>
#include <limits>

#include "model/parameterlist.h"

namespace tarq::command {

namespace {

using enum TARQSolutionStatusTyp;

struct Limit {
    TARQSolverStatusTyp status;
    std::string_view words;
};

constexpr Limit limits[] = {
    {TARQSolverStatusTyp::LPxmiterReached, "the iteration limit (xmiter)"},
    {TARQSolverStatusTyp::LPxmxtlpReached, "the time limit of the LP (xmxtlp)"},
    {TARQSolverStatusTyp::LPxmitipReached, "the iteration limit of a node (xmitip)"},
    {TARQSolverStatusTyp::LPOtherResourceLimitReached, "a resource limit of the engine"},
    {TARQSolverStatusTyp::LPxfriteReached, "a break of the LP (xfrite)"},
    {TARQSolverStatusTyp::IPxmxnodReached, "the node limit (xmxnod)"},
    {TARQSolverStatusTyp::IPxmxminReached, "the time limit (xmxmin)"},
    {TARQSolverStatusTyp::IPxmxdskExceeded, "the disk space limit (xmxdsk)"},
    {TARQSolverStatusTyp::IPNodesBufferTooSmall, "a node buffer that is too small"},
    {TARQSolverStatusTyp::IPOtherResourceLimitReached, "a resource limit of the engine"},
    {TARQSolverStatusTyp::IPxfrndsReached, "a break of branch and bound (xfrnds)"},
};

/// What ended a run early, for people; empty when the status tells no such end.
std::string_view limitOf(TARQSolverStatusTyp status) {
    const auto* const found = std::ranges::find(limits, status, &Limit::status);
    return found == std::end(limits) ? std::string_view() : found->words;
}

/// The value that a property's getter yields; a default one when it fails.
template <class Value>
Value valueOf(ITARQModel& model, Status (ITARQModel::*getter)(Value*)) {
    Value value{};
    if (!(model.*getter)(&value).isOk()) value = Value{};
    return value;
}

}  // namespace

SolutionKind RunResult::solution() const {
    switch (solutionStatus) {
        case IPOptimalSolution:
        case IPSubOptimalSolution:
            return SolutionKind::Integer;
        case LPOptimalSolution:
        case IPNoSolution:
            return SolutionKind::Lp;
        default:
            return SolutionKind::None;
    }
}

std::optional<double> RunResult::objective() const {
    const std::optional<double> value = ipValue();
    return value || !lpIsAnswer() ? value : lpValue();
}

std::optional<double> RunResult::lpValue() const {
    return solution() == SolutionKind::None ? std::nullopt : std::optional(lpObjective);
}

std::optional<double> RunResult::ipValue() const {
    return solution() == SolutionKind::Integer ? std::optional(ipObjective) : std::nullopt;
}

std::optional<double> RunResult::bound() const {
    const bool isOpen = solutionStatus == IPNoSolution && !status.isOk();
    return isOpen || solution() == SolutionKind::Integer ? std::optional(bestPossible) : std::nullopt;
}

ExitCode RunResult::exitCode() const {
    if (status.failed() && modelRefused) return ExitCode::InputRejected;
    if (status.failed()) return ExitCode::EngineFailed;
    if (!status.isOk()) return ExitCode::EndedEarly;
    switch (solutionStatus) {
        case IPOptimalSolution:
            return ExitCode::Success;
        case LPOptimalSolution:
            // A run that was stopped between its stages ends without a sign of it but this.
            return lpIsAnswer() ? ExitCode::Success : ExitCode::EndedEarly;
        case LPInfeasible:
        case LPUnbounded:
        case IPNoSolution:
            return ExitCode::NoSolution;
        case UndefinedSolutionStatus:
            // Nothing ran: it was stopped before the LP began. A finished stage that tells nothing is a failure.
            return solverStatus == TARQSolverStatusTyp::UndefinedSolverStatus ? ExitCode::EndedEarly
                                                                              : ExitCode::EngineFailed;
        default:
            return ExitCode::EndedEarly;
    }
}

std::string RunResult::earlyEnding() const {
    if (status.isOk() && solutionStatus == IPSubOptimalSolution) return "a solution that may not be optimal";
    const std::string_view limit = limitOf(solverStatus);
    std::string how = "stopped";
    if (interrupted) {
        how += " by the user";
    } else if (!limit.empty()) {
        how = fmt::format("ended at {}", limit);
    }
    if (solution() == SolutionKind::Integer) return how + ", best solution so far";
    if (!lpIsAnswer()) return how + ", no integer solution yet";
    return how + (solution() == SolutionKind::None ? ", no optimal solution yet" : "");
}

std::string RunResult::ending() const {
    const ExitCode code = exitCode();
    if (code == ExitCode::EngineFailed) return "the engine failed";
    if (code == ExitCode::InputRejected) return "the engine refused the model";
    if (code == ExitCode::EndedEarly) return earlyEnding();
    switch (solutionStatus) {
        case LPInfeasible:
            return "infeasible";
        case LPUnbounded:
            return "unbounded";
        case IPNoSolution:
            return "no integer solution";
        default:
            return integer && onlyRelaxation ? "optimal (LP relaxation only, xlpmip=0)" : "optimal";
    }
}

void readModelFacts(ITARQModel& model, RunResult& result) {
    result.modelName = valueOf(model, &ITARQModel::get_ModelName);
    result.columns = valueOf(model, &ITARQModel::get_NumberOfCols);
    result.rows = valueOf(model, &ITARQModel::get_NumberOfRows);
    result.nonzeros = valueOf(model, &ITARQModel::get_NumberOfNZ);
    result.integer = valueOf(model, &ITARQModel::get_IsIPModel) != 0;
    result.progress = Progress::ModelRead;
}

void readDirection(ITARQModel& model, RunResult& result) {
    Variant direction;
    result.maximizes = model.get_Parameter(std::string(directionName), &direction).isOk() && direction.text() == "max";
    result.progress = Progress::ParametersSet;
}

void readRunFacts(ITARQModel& model, RunResult& result) {
    Variant solveInteger;
    if (model.get_Parameter("xlpmip", &solveInteger).isOk()) result.onlyRelaxation = solveInteger.integer() == 0;
    result.solverStatus = valueOf(model, &ITARQModel::get_SolverStatus);
    result.solutionStatus = valueOf(model, &ITARQModel::get_SolutionStatus);
    result.lpObjective = valueOf(model, &ITARQModel::get_LPObjFunctValue);
    result.ipObjective = valueOf(model, &ITARQModel::get_IPObjFunctValue);
    result.bestPossible = valueOf(model, &ITARQModel::get_IPObjFunctBestPossible);
    result.iterations = valueOf(model, &ITARQModel::get_NumberOfLPIterations);
    result.nodes = valueOf(model, &ITARQModel::get_NumberOfNodesProcessed);
    result.integerSolutions = valueOf(model, &ITARQModel::get_NumberOfIntSolutions);
    result.message = valueOf(model, &ITARQModel::get_LastSolverMessage);
}

double relativeGap(double best, double bound) {
    const double distance = std::abs(best - bound);
    if (distance == 0.0) return 0.0;
    return best == 0.0 ? std::numeric_limits<double>::infinity() : distance / std::abs(best);
}

}  // namespace tarq::command
