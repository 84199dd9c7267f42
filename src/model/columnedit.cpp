#include "model/columnedit.h"

#include <utility>

#include "frame/result.h"
#include "model/addressing.h"
#include "model/editchecks.h"

namespace tarq {
namespace {

constexpr NameArgumentTexts nameTexts{"Col name is of wrong variant type", "Col name is too long.",
                                      status::badColumnName};

bool isPublishedType(TARQColType type) {
    return type == TARQColType::Continuous || type == TARQColType::Integer || type == TARQColType::Binary;
}

void setType(ColumnRecord& column, TARQColType type) {
    column.type = type;
    if (type != TARQColType::Binary) return;
    column.lowerBound = 0.0;
    column.upperBound = 1.0;
}

Outcome readCost(const Variant& argument, double& cost) {
    Variant value = argument.copyDereferenced();
    cost = 0.0;
    if (value.isMissing()) return {};
    if (!value.toReal()) return {status::wrongKind, "Value for cost is of wrong variant type"};
    cost = value.real();
    return {};
}

Outcome checkBinaryBounds(const ModelStore& store, const ColumnRecord& column, const ColumnChange& change) {
    const double lower = change.lowerBound != nullptr ? store.clampToInfinity(*change.lowerBound) : column.lowerBound;
    const double upper = change.upperBound != nullptr ? store.clampToInfinity(*change.upperBound) : column.upperBound;
    if (lower != 0.0) return {status::invalidArgument, "Columns of type 'Binary' must have LB=0."};
    if (upper != 1.0) return {status::invalidArgument, "Columns of type 'Binary' must have UB=1."};
    return {};
}

Outcome readField(const ModelStore& store, const Variant& column, double ColumnRecord::*field, double& value) {
    std::int32_t position = 0;
    TARQ_TRY(resolveColumn(store, column, position));
    value = store.column(position).*field;
    return {};
}

}  // namespace

Outcome addColumn(ModelStore& store, double lowerBound, double upperBound, TARQColType type, const Variant& cost,
                  const Variant& name) {
    if (upperBound < lowerBound) return boundOrderFailure();
    const bool isBinary = type == TARQColType::Binary;
    ColumnRecord column;
    column.lowerBound = store.clampToInfinity(isBinary ? 0.0 : lowerBound);
    column.upperBound = store.clampToInfinity(isBinary ? 1.0 : upperBound);
    column.type = type;
    TARQ_TRY(readCost(cost, column.cost));
    TARQ_TRY(readNameArgument(name, nameTexts, column.name));
    return store.addColumnRecord(std::move(column));
}

Outcome deleteColumn(ModelStore& store, const Variant& column) {
    std::int32_t position = 0;
    TARQ_TRY(resolveColumn(store, column, position));
    if (store.column(position).family != nullptr) {
        return {status::invalidArgument, "Column is part of a TARQVarSet and cannot be deleted"};
    }
    store.removeColumns(position + 1, position + 1);
    return {};
}

Outcome changeColumn(ModelStore& store, std::int32_t position, const ColumnChange& change) {
    if (position < 0 || position >= store.columnCount()) return indexRangeFailure();
    const auto held = store.gate().edit();
    ColumnRecord& column = store.column(position);
    if (change.type != nullptr) {
        if (!isPublishedType(*change.type)) {
            return {status::invalidArgument, "Invalid type. Column index: " + std::to_string(position + 1)};
        }
        setType(column, *change.type);
    }
    if (change.lowerBound != nullptr || change.upperBound != nullptr) {
        if (column.type == TARQColType::Binary) {
            TARQ_TRY(checkBinaryBounds(store, column, change));
        }
        Outcome outcome = changeBounds(store, column, change.lowerBound, change.upperBound);
        if (!outcome.isOk()) return outcome;
    }
    if (change.cost != nullptr) column.cost = *change.cost;
    return change.name != nullptr ? store.renameColumn(position, *change.name) : Outcome();
}

Outcome getColumnName(const ModelStore& store, std::int32_t number, std::string& name) {
    if (number < 1 || number > store.columnCount()) return indexRangeFailure();
    name = store.column(number - 1).name;
    return {};
}

Outcome putColumnName(ModelStore& store, std::int32_t number, const std::string& name) {
    if (number < 1 || number > store.columnCount()) return indexRangeFailure();
    if (store.column(number - 1).family != nullptr) {
        return {status::invalidArgument,
                "Name could not be changed, because specified column is part of a TARQVarSet."};
    }
    return store.renameColumn(number - 1, name);
}

Outcome getColumnIndex(const ModelStore& store, const Variant& column, std::int32_t& number) {
    std::int32_t position = 0;
    TARQ_TRY(resolveColumn(store, column, position));
    number = position + 1;
    return {};
}

Outcome getColumnCost(const ModelStore& store, const Variant& column, double& cost) {
    return readField(store, column, &ColumnRecord::cost, cost);
}

Outcome putColumnCost(ModelStore& store, const Variant& column, double cost) {
    std::int32_t position = 0;
    TARQ_TRY(resolveColumn(store, column, position));
    const auto held = store.gate().edit();
    store.column(position).cost = cost;
    return {};
}

Outcome getColumnLowerBound(const ModelStore& store, const Variant& column, double& bound) {
    return readField(store, column, &ColumnRecord::lowerBound, bound);
}

Outcome putColumnLowerBound(ModelStore& store, const Variant& column, double bound) {
    std::int32_t position = 0;
    TARQ_TRY(resolveColumn(store, column, position));
    const auto held = store.gate().edit();
    return putLowerBound(store, store.column(position), bound);
}

Outcome getColumnUpperBound(const ModelStore& store, const Variant& column, double& bound) {
    return readField(store, column, &ColumnRecord::upperBound, bound);
}

Outcome putColumnUpperBound(ModelStore& store, const Variant& column, double bound) {
    std::int32_t position = 0;
    TARQ_TRY(resolveColumn(store, column, position));
    const auto held = store.gate().edit();
    return putUpperBound(store, store.column(position), bound);
}

Outcome getColumnType(const ModelStore& store, const Variant& column, TARQColType& type) {
    std::int32_t position = 0;
    TARQ_TRY(resolveColumn(store, column, position));
    type = store.column(position).type;
    return {};
}

Outcome putColumnType(ModelStore& store, const Variant& column, TARQColType type) {
    std::int32_t position = 0;
    TARQ_TRY(resolveColumn(store, column, position));
    if (!isPublishedType(type)) return {status::invalidArgument, "Bad value for type."};
    const auto held = store.gate().edit();
    setType(store.column(position), type);
    return {};
}

}  // namespace tarq
