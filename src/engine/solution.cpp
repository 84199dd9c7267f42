#include "engine/solution.h"

#include "model/addressing.h"

namespace tarq {
namespace {

// Reads one field of the record that an address leads to, once the guard has let the caller through.
template <class Field>
Result<Field> readColumn(Status guard, const SolvedModel& model, const Variant& address, Field ColumnRecord::*field) {
    TARQ_TRY(guard);
    std::int32_t position = 0;
    TARQ_TRY(resolveColumn(model.store, address, position));
    const auto held = model.store.gate().edit();
    return readShared(model.store.column(position).*field);
}

template <class Field>
Result<Field> readRow(Status guard, const SolvedModel& model, const Variant& address, Field RowRecord::*field) {
    TARQ_TRY(guard);
    std::int32_t position = 0;
    TARQ_TRY(resolveRow(model.store, address, position));
    const auto held = model.store.gate().edit();
    return readShared(model.store.row(position).*field);
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

Result<double> columnLpValue(const SolvedModel& model, const Variant& column) {
    return readColumn(lpGuard(model.summary), model, column, &ColumnRecord::lpValue);
}

Result<double> columnReducedCost(const SolvedModel& model, const Variant& column) {
    return readColumn(lpGuard(model.summary), model, column, &ColumnRecord::reducedCost);
}

Result<TARQColRowStatusType> columnStatus(const SolvedModel& model, const Variant& column) {
    return readColumn(lpGuard(model.summary), model, column, &ColumnRecord::status);
}

Result<double> rowLpValue(const SolvedModel& model, const Variant& row) {
    return readRow(lpGuard(model.summary), model, row, &RowRecord::lpValue);
}

Result<double> rowDual(const SolvedModel& model, const Variant& row) {
    return readRow(lpGuard(model.summary), model, row, &RowRecord::dual);
}

Result<TARQColRowStatusType> rowStatus(const SolvedModel& model, const Variant& row) {
    return readRow(lpGuard(model.summary), model, row, &RowRecord::status);
}

Result<double> columnIpValue(const SolvedModel& model, const Variant& column) {
    return readColumn(ipGuard(model.summary), model, column, &ColumnRecord::ipValue);
}

Result<double> rowIpValue(const SolvedModel& model, const Variant& row) {
    return readRow(ipGuard(model.summary), model, row, &RowRecord::ipValue);
}

}  // namespace tarq
