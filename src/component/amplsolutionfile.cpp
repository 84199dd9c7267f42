#include "tarq/component/amplsolutionfile.h"

#include <vector>

#include "frame/memberguard.h"
#include "languages/amplstub.h"
#include "tarq/interfaces/classids.h"

namespace tarq {
namespace {

using enum TARQSolutionStatusTyp;

bool hasIntegerSolution(TARQSolutionStatusTyp status) {
    return status == IPOptimalSolution || status == IPSubOptimalSolution;
}

/// The relaxation of a model without an integer solution is none of its own.
bool hasLinearSolution(TARQSolutionStatusTyp status) {
    return status == LPOptimalSolution || status == LPOnlyPrimalFeasible || status == LPOnlyDualFeasible;
}

/// What a member tells of each item from 1 to `count`; empty when it has nothing to tell.
template <class Value>
std::vector<Value> allOf(ITARQModel& model, Status (ITARQModel::*getter)(const Variant&, Value*), std::int32_t count) {
    std::vector<Value> values(static_cast<std::size_t>(count));
    for (std::int32_t number = 1; number <= count; ++number) {
        if (!(model.*getter)(Variant(number), &values[static_cast<std::size_t>(number) - 1]).isOk()) return {};
    }
    return values;
}

Outcome writeSolution(ITARQModel& model, const std::string& stubName, const std::string& message) {
    AmplSolution solution{.message = message};
    auto run = TARQSolverStatusTyp::UndefinedSolverStatus;
    auto end = UndefinedSolutionStatus;
    for (const Status status :
         {model.get_NumberOfCols(&solution.columnCount), model.get_NumberOfRows(&solution.rowCount),
          model.get_SolverStatus(&run), model.get_SolutionStatus(&end)}) {
        if (!status.isOk()) return status;
    }
    solution.solveResult = amplSolveResult(run, end);
    const bool integer = hasIntegerSolution(end);
    if (!integer && !hasLinearSolution(end)) return writeAmplSolution(stubName, solution);

    const auto values =
        allOf(model, integer ? &ITARQModel::get_ColIPSol : &ITARQModel::get_ColLPSol, solution.columnCount);
    const auto duals = allOf(model, &ITARQModel::get_RowDual, solution.rowCount);
    const auto columnStates = allOf(model, &ITARQModel::get_ColStatus, solution.columnCount);
    const auto rowStates = allOf(model, &ITARQModel::get_RowStatus, solution.rowCount);
    solution.values = values;
    solution.duals = duals;
    solution.columnStates = columnStates;
    solution.rowStates = rowStates;
    return writeAmplSolution(stubName, solution);
}

}  // namespace

Status writeAmplSolutionFile(ITARQModel& model, const std::string& stubName, const std::string& message) {
    return guarded(classid::TARQModel, [&] { return writeSolution(model, stubName, message); });
}

}  // namespace tarq
