// The costs of columns from a term list.
#pragma once

#include "model/modelstore.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"

namespace tarq {

/// Sets the cost of each column that the list names to its coefficient, as it stands; other columns keep theirs. A list
/// that can't be read, or ends with coefficients, changes nothing. A failure further on, a term whose coefficients
/// don't fit its columns (invalidArgument) or an unknown name (badColumnName), keeps what was set before it.
[[nodiscard]] Outcome assignCosts(ModelStore& store, const ValueList& coeffsAndCols);

}  // namespace tarq
