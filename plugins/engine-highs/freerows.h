// Rows without bounds. The interior point method of HiGHS 1.10 leaves them out, but reads its arrays as if it hadn't:
// beyond their ends, and with the numbers of other rows. So it gets models without such rows.
#pragma once

#include <vector>

#include "lp_data/HStruct.h"
#include "lp_data/HighsLp.h"

namespace tarq::engine {

/// Numbers of the rows without bounds, from 0. Cost: one pass over the rows.
[[nodiscard]] std::vector<HighsInt> freeRowsOf(const HighsLp& lp);

/// From a point of the model without its `freeRows` to one of the model, in which they are basic. Their activities and
/// duals are set to 0.
void insertFreeRows(const std::vector<HighsInt>& freeRows, HighsSolution& solution, HighsBasis& basis);

}  // namespace tarq::engine
