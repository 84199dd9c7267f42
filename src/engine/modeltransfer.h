// The flat arrays in which a model goes to the engine and a solution comes back.
//
// Arrays of n + m entries hold the n columns first and the m rows behind them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "engine/engineinterface.h"
#include "model/modelstore.h"

namespace tarq {

struct ModelDimensions {
    std::int32_t rows = 0;
    std::int32_t columns = 0;
    std::int32_t nonzeros = 0;  ///< the largest number there is when the model has more

    [[nodiscard]] std::size_t entries() const {
        return static_cast<std::size_t>(rows) + static_cast<std::size_t>(columns);
    }
};

[[nodiscard]] ModelDimensions dimensionsOf(const ModelStore& store);

/// Whether the engine's 32-bit counts can tell the size of the model.
[[nodiscard]] bool fitsEngine(const ModelStore& store);

/// A model as PutModel takes it: nonzeros row by row with 1-based indices, row bounds as bounds, infinite bounds as
/// they are stored. Costs 16 bytes a nonzero, 28 a column and 16 a row, and one pass over each container. Throws
/// std::bad_alloc.
class ModelArrays {
public:
    explicit ModelArrays(const ModelStore& store);

    [[nodiscard]] const ModelDimensions& dimensions() const { return dimensions_; }

    /// Hands the arrays over and returns the engine's result.
    [[nodiscard]] std::int32_t putInto(EngineInterface& engine) const;

private:
    template <class Value>
    using Array = std::unique_ptr<Value[]>;

    void fillNonzeros(const NonzeroTable& nonzeros);

    ModelDimensions dimensions_;
    double infinity_;
    Array<std::int32_t> rowIndices_;
    Array<std::int32_t> columnIndices_;
    Array<double> values_;
    Array<double> lower_;
    Array<double> upper_;
    Array<double> cost_;
    Array<std::int32_t> type_;
};

/// A solution as GetLPSolution and GetIPSolution deliver it. Throws std::bad_alloc.
struct SolutionArrays {
    explicit SolutionArrays(const ModelDimensions& dimensions);

    ModelDimensions dimensions;
    std::vector<double> values;
    std::vector<double> reducedCosts;  ///< the duals in the row part
    std::vector<std::int32_t> basisStatus;

    /// Writes the values into `columnValue` and `rowValue` of the records, and beside them reduced costs, duals and
    /// statuses, at the gate of the store. Other threads may read these fields meanwhile. Records that were added since
    /// the transfer stay as they are.
    void copyInto(ModelStore& store, double ColumnRecord::*columnValue, double RowRecord::*rowValue) const;
};

}  // namespace tarq
