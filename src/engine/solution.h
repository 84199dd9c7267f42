// What clients fetch of a solution: the values of columns and rows that a run left in the model store.
//
// Each getter is guarded by the status of the latest run. While the guard fails it answers noLpSolution or
// noIpSolution, both success codes, without looking at the address. Only a getter that returns 0 writes its output.
// Values may be read during a run and are then either the old or the new ones. LPInfeasible and LPUnbounded fail the
// guard although values of an earlier run may still be there.
#pragma once

#include "engine/run.h"
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

/// LP guard. `column` and `row` are a 1-based number or a name, as everywhere; their failures are those of
/// resolveColumn and resolveRow.
[[nodiscard]] Outcome columnLpValue(const SolvedModel& model, const Variant& column, double& value);
[[nodiscard]] Outcome columnReducedCost(const SolvedModel& model, const Variant& column, double& value);
[[nodiscard]] Outcome columnStatus(const SolvedModel& model, const Variant& column, TARQColRowStatusType& value);
[[nodiscard]] Outcome rowLpValue(const SolvedModel& model, const Variant& row, double& value);
[[nodiscard]] Outcome rowDual(const SolvedModel& model, const Variant& row, double& value);
[[nodiscard]] Outcome rowStatus(const SolvedModel& model, const Variant& row, TARQColRowStatusType& value);

/// IP guard.
[[nodiscard]] Outcome columnIpValue(const SolvedModel& model, const Variant& column, double& value);
[[nodiscard]] Outcome rowIpValue(const SolvedModel& model, const Variant& row, double& value);

}  // namespace tarq
