// The costs of columns from a term list.
#pragma once

#include "frame/status.h"
#include "frame/valuelist.h"
#include "model/modelstore.h"

namespace tarq {

/// Sets the cost of each column that the list names to its coefficient, as it stands; other columns keep theirs. A list
/// that can't be read, or ends with coefficients, changes nothing. A failure further on, a term whose coefficients
/// don't fit its columns (0x80041031) or an unknown name (0x80041026), keeps what was set before it.
[[nodiscard]] Outcome assignCosts(ModelStore& store, const ValueList& coeffsAndCols);

}  // namespace tarq
