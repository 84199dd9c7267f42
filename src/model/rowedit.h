// The operations of the object interface on rows; modeledit.h tells their common rules.
#pragma once

#include <cstdint>
#include <string>

#include "model/modelstore.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Fields to change; a null pointer leaves a field alone.
struct RowChange {
    const double* lowerBound = nullptr;
    const double* upperBound = nullptr;
    const std::string* name = nullptr;
};

/// Adds a row behind the last one, with bounds clamped to infinity. A missing name is none, and a number as name
/// becomes its text.
[[nodiscard]] Outcome addRow(ModelStore& store, double lowerBound, double upperBound, const Variant& name);
/// Deletes a row with its nonzeros. A row of a family is invalidArgument.
[[nodiscard]] Outcome deleteRow(ModelStore& store, const Variant& row);
/// Changes the row at a 0-based position. The bounds stay changed when the name fails; a name that is taken leaves the
/// row without a name. Members of families may be renamed here. A position outside the table is indexOutOfRange.
[[nodiscard]] Outcome changeRow(ModelStore& store, std::int32_t position, const RowChange& change);

/// By plain number. Renaming a member of a family is refused; a name that is taken leaves the row without a name.
[[nodiscard]] Outcome getRowName(const ModelStore& store, std::int32_t number, std::string& name);
[[nodiscard]] Outcome putRowName(ModelStore& store, std::int32_t number, const std::string& name);

/// The public number of a row that is given by name or number.
[[nodiscard]] Outcome getRowIndex(const ModelStore& store, const Variant& row, std::int32_t& number);

/// Bounds are compared as given and stored clamped.
[[nodiscard]] Outcome getRowLowerBound(const ModelStore& store, const Variant& row, double& bound);
[[nodiscard]] Outcome putRowLowerBound(ModelStore& store, const Variant& row, double bound);
[[nodiscard]] Outcome getRowUpperBound(const ModelStore& store, const Variant& row, double& bound);
[[nodiscard]] Outcome putRowUpperBound(ModelStore& store, const Variant& row, double bound);

}  // namespace tarq
