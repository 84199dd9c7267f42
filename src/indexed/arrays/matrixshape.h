// shapeOfArgument: the dimensions that an operand of array arithmetic has.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "indexed/dimensions/indexset.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"
#include "tarq/interfaces/itarqarray.h"

namespace tarq {

/// Dimensions that take no memory for names until somebody wants these.
struct ArgumentShape {
    std::vector<std::size_t> sizes;
    std::vector<std::int64_t> firstNumbers;  ///< one a dimension, where the names are numbers
    Ref<ITARQArray> array;                   ///< the array whose names they are, if any
};

/// The dimensions of an array with their names, of a set or series by the numbers from 1, of a spreadsheet range by the
/// sheet's row and column numbers, of an array of values by the numbers between its bounds. A single value has none.
/// Another object is refused with invalidArgument; a spreadsheet's own failure keeps its status.
Outcome shapeOfArgument(const Variant& argument, ArgumentShape& shape);

/// The dimensions with their names. An array's own failure is invalidArgument with its description.
Outcome readNames(const ArgumentShape& shape, std::vector<Indexset>& indexsets);

}  // namespace tarq
