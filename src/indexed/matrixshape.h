// shapeOfArgument: the dimensions that an operand of array arithmetic has.
#pragma once

#include <cstddef>
#include <vector>

#include "frame/status.h"
#include "frame/variant.h"
#include "indexed/indexset.h"

namespace tarq {

/// The dimensions of an array with their names, of a set or series by the numbers from 1, of a spreadsheet range by the
/// sheet's row and column numbers, of an array of values by the numbers between its bounds. A single value has none.
/// Another object is refused with invalidArgument; a spreadsheet's own failure keeps its status.
Outcome shapeOfArgument(const Variant& argument, std::vector<Indexset>& indexsets);

[[nodiscard]] std::vector<std::size_t> sizesOf(const std::vector<Indexset>& indexsets);

}  // namespace tarq
