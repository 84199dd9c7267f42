// Reading and writing selected cells of a store.
#pragma once

#include <span>
#include <vector>

#include "indexed/arrays/arraystore.h"
#include "indexed/dimensions/indexarguments.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// The cell of a selection of one, else an array of Variants of the selection's sizes with lower bounds 0. Fails with
/// "Index '.a.b' does not exist.", invalidArgument, where a combination has no cell.
Outcome readCells(ArrayStore& store, const Selection& selection, Variant& value);

/// Stores the values, one for each selected cell in their order, and takes them; there may be more. Fails as readCells,
/// with what was stored until then.
Outcome writeCells(ArrayStore& store, const Selection& selection, std::vector<Variant>& values);

/// Stores the values in the cells in their order, from the first one on; cells without a value stay as they are. Fails
/// as readCells, and without storing anything where there are more values than combinations of elements.
Outcome storeValues(ArrayStore& store, std::span<Variant> values);

}  // namespace tarq
