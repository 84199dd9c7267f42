// The one importer: what turns a caller's arrays, objects, spreadsheet ranges and scalars into a flat list of values.
//
// Every value passes through convertElement for the kind that is wanted: Empty for any text or number, Long, Double or
// Text. Failures are worded here and have the status invalidArgument; a spreadsheet's own failing call ends the import
// with that call's status. On failure `values` holds what was read until then.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "tarq/frame/object.h"
#include "tarq/frame/safearray.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Appends all elements of an array of one dimension, in bound order, whether it came by value or by reference.
Outcome appendArrayValues(const SafeArray& array, Kind target, std::vector<Variant>& values);

/// Replaces `values` by all values of an object: set, series, array, one of their enumerators, or a spreadsheet range
/// of one area, read row by row.
Outcome collectObjectValues(IUnknown* object, Kind target, std::vector<Variant>& values);

/// Appends all values of a list, any text or number: those of arrays that came by reference and of objects, and single
/// ones.
Outcome flattenValueList(const ValueList& list, std::vector<Variant>& values);

/// Replaces `values` by at least `count` values for a selection of the sizes `shape`, in row-major order: a single
/// value `count` times, the elements of a vector, the leading block of an array (by value) of as many dimensions or of
/// a spreadsheet range of one or two, or the values of an object. `count` is the product of `shape`, 0 without
/// dimensions.
Outcome expandValues(const Variant& value, std::span<const std::size_t> shape, std::size_t count, Kind target,
                     std::vector<Variant>& values);

}  // namespace tarq
