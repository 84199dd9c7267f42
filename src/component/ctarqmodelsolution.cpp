// CTARQModel: the solution values of columns and rows.
#include "component/ctarqmodel.h"
#include "engine/solution.h"
#include "frame/memberguard.h"

namespace tarq {
namespace {

/// Asks for one value of a column or row; an answer other than success leaves the output as it was.
template <class Getter, class Value>
Status solutionValue(Getter getter, const SolvedModel& model, const Variant& address, Value* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&]() -> Outcome {
        TARQ_ASSIGN(*value, getter(model, address));
        return {};
    });
}

}  // namespace

Status CTARQModel::get_ColLPSol(const Variant& Col, double* value) {
    return solutionValue(columnLpValue, {store_, summary_}, Col, value);
}

Status CTARQModel::get_ColIPSol(const Variant& Col, double* value) {
    return solutionValue(columnIpValue, {store_, summary_}, Col, value);
}

Status CTARQModel::get_ColRedCost(const Variant& Col, double* value) {
    return solutionValue(columnReducedCost, {store_, summary_}, Col, value);
}

Status CTARQModel::get_ColStatus(const Variant& Col, TARQColRowStatusType* value) {
    return solutionValue(columnStatus, {store_, summary_}, Col, value);
}

Status CTARQModel::get_RowLPSol(const Variant& Row, double* value) {
    return solutionValue(rowLpValue, {store_, summary_}, Row, value);
}

Status CTARQModel::get_RowIPSol(const Variant& Row, double* value) {
    return solutionValue(rowIpValue, {store_, summary_}, Row, value);
}

Status CTARQModel::get_RowDual(const Variant& Row, double* value) {
    return solutionValue(rowDual, {store_, summary_}, Row, value);
}

Status CTARQModel::get_RowStatus(const Variant& Row, TARQColRowStatusType* value) {
    return solutionValue(rowStatus, {store_, summary_}, Row, value);
}

}  // namespace tarq
