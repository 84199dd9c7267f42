// The operations of the object interface on many nonzeros at once.
//
// Column indices are resolved before row indices, and all positions and values are read before any is stored, so that a
// failure leaves the matrix as it was. Only when memory runs out while storing may some be stored and others not.
#pragma once

#include "frame/result.h"
#include "model/modelstore.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// The coefficients of all rows and columns of two index lists: one Double for one place, else an array of Doubles with
/// a row for each row and lower bounds 1. 0.0 where there is no nonzero.
[[nodiscard]] Result<Variant> getNonzeros(const ModelStore& store, const Variant& rows, const Variant& columns);
/// Replaces them, row by row, from one value for all, a list of values, or an array of as many rows and columns or
/// more. 0.0 removes a coefficient; of a place named twice the last value stays.
[[nodiscard]] Outcome putNonzeros(ModelStore& store, const Variant& rows, const Variant& columns,
                                  const Variant& values);
/// Replaces the coefficients of the first row and column, the second row and column, and so on to the end of the
/// shorter list.
[[nodiscard]] Outcome setNonzeroStair(ModelStore& store, const Variant& rows, const Variant& columns,
                                      const Variant& values);

}  // namespace tarq
