// AMPL's stub files: a model in STUB.nl, with names in STUB.row and STUB.col, and its solution in STUB.sol.
//
// A program of the component's own reads and writes them, so nothing that a stub holds reaches this process unchecked.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "model/modeltarget.h"
#include "tarq/frame/status.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

/// Replaces the target's model by a stub's. `stubName` is the path without an extension, or with ".nl". Failures and
/// what they leave as of receiveStubModel; a program that isn't there has ended before the sizes.
[[nodiscard]] Outcome readAmplStub(const std::string& stubName, ModelTarget& target);

/// A solution as AMPL takes it.
struct AmplSolution {
    std::string_view message{};
    std::int32_t solveResult = -1;  ///< AMPL's solve_result_num
    std::int32_t columnCount = 0;
    std::int32_t rowCount = 0;
    std::span<const double> values{};  ///< of the columns, or none
    std::span<const double> duals{};   ///< of the rows, or none
    /// The basis, or none; only where both have values.
    std::span<const TARQColRowStatusType> columnStates{};
    std::span<const TARQColRowStatusType> rowStates{};
};

/// Writes `solution` into STUB.sol. temporaryFile when there is no stub, one of other counts, or the file can't be
/// written.
[[nodiscard]] Outcome writeAmplSolution(const std::string& stubName, const AmplSolution& solution);

/// AMPL's solve_result_num for the statuses of a run.
[[nodiscard]] std::int32_t amplSolveResult(TARQSolverStatusTyp solver, TARQSolutionStatusTyp solution);

/// Writes the latest run's values into STUB.sol, with an empty message and the activities of the rows where AMPL
/// expects their duals. Failures as of writeAmplSolution.
[[nodiscard]] Outcome writeAmplActivities(const std::string& stubName, const ModelStore& store,
                                          TARQSolverStatusTyp solver, TARQSolutionStatusTyp solution);

}  // namespace tarq
