// What clients fetch of a solution: the values of columns and rows that a run left in the model store.
//
// Each getter is guarded by the status of the latest run. While the guard fails it answers noLpSolution or
// noIpSolution, both success codes, without looking at the address.
// Values may be read during a run and are then either the old or the new ones. LPInfeasible and LPUnbounded fail the
// guard although values of an earlier run may still be there.
#pragma once

#include "engine/run.h"
#include "frame/result.h"
#include "model/modelstore.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

/// Whether the latest run left an LP solution: optimal, only primal or only dual feasible, or any status of an IP run.
[[nodiscard]] bool hasLpSolution(const SolutionSummary& summary);
/// Whether the latest run came to its IP stage.
[[nodiscard]] bool hasIpSolution(const SolutionSummary& summary);

/// The guards as the statuses that a getter answers: 0 when the values are available.
[[nodiscard]] Status lpGuard(const SolutionSummary& summary);
[[nodiscard]] Status ipGuard(const SolutionSummary& summary);

/// A model with the summary of its latest run.
struct SolvedModel {
    const ModelStore& store;
    const SolutionSummary& summary;
};

/// The value of a column or row, behind the LP guard. The address is a 1-based number or a name, as everywhere; its
/// failures are those of resolveColumn and resolveRow.
[[nodiscard]] Result<double> columnLpValue(const SolvedModel& model, const Variant& column);
[[nodiscard]] Result<double> columnReducedCost(const SolvedModel& model, const Variant& column);
[[nodiscard]] Result<TARQColRowStatusType> columnStatus(const SolvedModel& model, const Variant& column);
[[nodiscard]] Result<double> rowLpValue(const SolvedModel& model, const Variant& row);
[[nodiscard]] Result<double> rowDual(const SolvedModel& model, const Variant& row);
[[nodiscard]] Result<TARQColRowStatusType> rowStatus(const SolvedModel& model, const Variant& row);

/// The same behind the IP guard.
[[nodiscard]] Result<double> columnIpValue(const SolvedModel& model, const Variant& column);
[[nodiscard]] Result<double> rowIpValue(const SolvedModel& model, const Variant& row);

}  // namespace tarq
