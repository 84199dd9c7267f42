// The operations of the object interface on columns; modeledit.h tells their common rules.
#pragma once

#include <cstdint>
#include <string>

#include "model/modelstore.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

/// Fields to change; a null pointer leaves a field alone.
struct ColumnChange {
    const double* lowerBound = nullptr;
    const double* upperBound = nullptr;
    const TARQColType* type = nullptr;
    const double* cost = nullptr;
    const std::string* name = nullptr;
};

/// Adds a column behind the last one. Bounds are clamped to infinity, the cost isn't; a Binary column gets bounds 0 and
/// 1. A missing cost is 0.0, a missing name is none, and a number as name becomes its text.
[[nodiscard]] Outcome addColumn(ModelStore& store, double lowerBound, double upperBound, TARQColType type,
                                const Variant& cost, const Variant& name);
/// Deletes a column with its nonzeros. A column of a family is invalidArgument.
[[nodiscard]] Outcome deleteColumn(ModelStore& store, const Variant& column);
/// Changes the column at a 0-based position. A failure keeps what was changed before it, in the order type, bounds,
/// cost, name; and a name that is taken leaves the column without a name. Members of families may be renamed here. A
/// position outside the table is indexOutOfRange.
[[nodiscard]] Outcome changeColumn(ModelStore& store, std::int32_t position, const ColumnChange& change);

/// By plain number. Renaming a member of a family is refused; a name that is taken leaves the column without a name.
[[nodiscard]] Outcome getColumnName(const ModelStore& store, std::int32_t number, std::string& name);
[[nodiscard]] Outcome putColumnName(ModelStore& store, std::int32_t number, const std::string& name);

/// The public number of a column that is given by name or number.
[[nodiscard]] Outcome getColumnIndex(const ModelStore& store, const Variant& column, std::int32_t& number);

/// Costs are stored as they stand.
[[nodiscard]] Outcome getColumnCost(const ModelStore& store, const Variant& column, double& cost);
[[nodiscard]] Outcome putColumnCost(ModelStore& store, const Variant& column, double cost);
/// Bounds are compared as given and stored clamped. The type of the column isn't looked at.
[[nodiscard]] Outcome getColumnLowerBound(const ModelStore& store, const Variant& column, double& bound);
[[nodiscard]] Outcome putColumnLowerBound(ModelStore& store, const Variant& column, double bound);
[[nodiscard]] Outcome getColumnUpperBound(const ModelStore& store, const Variant& column, double& bound);
[[nodiscard]] Outcome putColumnUpperBound(ModelStore& store, const Variant& column, double bound);
/// Binary sets the bounds to 0 and 1.
[[nodiscard]] Outcome getColumnType(const ModelStore& store, const Variant& column, TARQColType& type);
[[nodiscard]] Outcome putColumnType(ModelStore& store, const Variant& column, TARQColType type);

}  // namespace tarq
