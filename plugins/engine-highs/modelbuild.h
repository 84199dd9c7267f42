// From the arrays of PutModel to the model that HiGHS solves, with every check on the way.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "lp_data/HighsLp.h"

namespace tarq::engine {

/// The arrays as they were handed over; indices are 1-based, bounds hold the columns first and the rows behind them.
struct ModelArrays {
    double infinity;
    std::int32_t rows;
    std::int32_t columns;
    std::int32_t nonzeros;
    const std::int32_t* rowIndices;
    const std::int32_t* columnIndices;
    const double* values;
    const double* lower;
    const double* upper;
    const double* cost;
    const std::int32_t* type;  ///< a TarqColumnType each
};

struct BuiltModel {
    HighsLp lp;                             ///< the continuous model, column-wise, to be minimized
    std::vector<HighsVarType> integrality;  ///< one a column, empty when no column is integer
};

/// Builds the model; elements below `smallest` in absolute value are left out. The result is empty, or says what is
/// wrong with the arrays. Linear in the size of the arrays.
[[nodiscard]] std::string buildModel(const ModelArrays& arrays, double smallest, BuiltModel& model);

}  // namespace tarq::engine
