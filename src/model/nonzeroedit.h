// The operations of the object interface on single nonzeros; modeledit.h tells their common rules.
//
// The members disagree on the order of row and column, and so do these functions; the column is always resolved first.
#pragma once

#include "frame/result.h"
#include "model/modelstore.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Adds to a coefficient. A sum of 0.0 removes it.
[[nodiscard]] Outcome addNonzero(ModelStore& store, const Variant& row, const Variant& column, double delta);
/// Removes a coefficient. When there is none: noSuchNonzero, which is no failure, with a description.
[[nodiscard]] Outcome deleteNonzero(ModelStore& store, const Variant& column, const Variant& row);
/// The coefficient, 0.0 when there is none.
[[nodiscard]] Result<double> getNonzero(const ModelStore& store, const Variant& row, const Variant& column);
/// Replaces a coefficient. 0.0 removes it.
[[nodiscard]] Outcome putNonzero(ModelStore& store, const Variant& row, const Variant& column, double value);

}  // namespace tarq
