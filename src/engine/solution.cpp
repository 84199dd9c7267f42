#include "engine/solution.h"

#include "model/addressing.h"

namespace tarq {
namespace {

// Reads one field of the record that an address leads to, once the guard has let the caller through.
template <class Field>
Outcome readColumn(Status guard, const SolvedModel& model, const Variant& address, Field ColumnRecord::*field,
                   Field& value) {
    if (!guard.isOk()) return guard;
    std::int32_t position = 0;
    Outcome resolved = resolveColumn(model.store, address, position);
    if (!resolved.isOk()) return resolved;
    const auto held = model.store.gate().edit();
    value = readShared(model.store.column(position).*field);
    return resolved;
}

template <class Field>
Outcome readRow(Status guard, const SolvedModel& model, const Variant& address, Field RowRecord::*field, Field& value) {
    if (!guard.isOk()) return guard;
    std::int32_t position = 0;
    Outcome resolved = resolveRow(model.store, address, position);
    if (!resolved.isOk()) return resolved;
    const auto held = model.store.gate().edit();
    value = readShared(model.store.row(position).*field);
    return resolved;
}

}  // namespace

bool hasLpSolution(const SolutionSummary& summary) {
    switch (readShared(summary.solutionStatus)) {
        case TARQSolutionStatusTyp::LPOptimalSolution:
        case TARQSolutionStatusTyp::LPOnlyPrimalFeasible:
        case TARQSolutionStatusTyp::LPOnlyDualFeasible:
            return true;
        default:
            return hasIpSolution(summary);
    }
}

bool hasIpSolution(const SolutionSummary& summary) {
    return readShared(summary.solutionStatus) >= TARQSolutionStatusTyp::IPOptimalSolution;
}

Status lpGuard(const SolutionSummary& summary) { return hasLpSolution(summary) ? status::ok : status::noLpSolution; }

Status ipGuard(const SolutionSummary& summary) { return hasIpSolution(summary) ? status::ok : status::noIpSolution; }

Outcome columnLpValue(const SolvedModel& model, const Variant& column, double& value) {
    return readColumn(lpGuard(model.summary), model, column, &ColumnRecord::lpValue, value);
}

Outcome columnReducedCost(const SolvedModel& model, const Variant& column, double& value) {
    return readColumn(lpGuard(model.summary), model, column, &ColumnRecord::reducedCost, value);
}

Outcome columnStatus(const SolvedModel& model, const Variant& column, TARQColRowStatusType& value) {
    return readColumn(lpGuard(model.summary), model, column, &ColumnRecord::status, value);
}

Outcome rowLpValue(const SolvedModel& model, const Variant& row, double& value) {
    return readRow(lpGuard(model.summary), model, row, &RowRecord::lpValue, value);
}

Outcome rowDual(const SolvedModel& model, const Variant& row, double& value) {
    return readRow(lpGuard(model.summary), model, row, &RowRecord::dual, value);
}

Outcome rowStatus(const SolvedModel& model, const Variant& row, TARQColRowStatusType& value) {
    return readRow(lpGuard(model.summary), model, row, &RowRecord::status, value);
}

Outcome columnIpValue(const SolvedModel& model, const Variant& column, double& value) {
    return readColumn(ipGuard(model.summary), model, column, &ColumnRecord::ipValue, value);
}

Outcome rowIpValue(const SolvedModel& model, const Variant& row, double& value) {
    return readRow(ipGuard(model.summary), model, row, &RowRecord::ipValue, value);
}

}  // namespace tarq
