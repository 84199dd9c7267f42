#include "engine/modeltransfer.h"

#include <algorithm>
#include <limits>

#include "engine/sharedvalue.h"

namespace tarq {
namespace {

// The published values are the engine's own, so they pass as they are.
static_assert(static_cast<int>(TARQColType::Continuous) == TarqContinuousColumn);
static_assert(static_cast<int>(TARQColType::Integer) == TarqIntegerColumn);
static_assert(static_cast<int>(TARQColType::Binary) == TarqBinaryColumn);
static_assert(static_cast<int>(TARQColRowStatusType::StatusBasic) == TarqBasic);
static_assert(static_cast<int>(TARQColRowStatusType::StatusSuperBasic) == TarqSuperbasic);

constexpr std::size_t largestCount = std::numeric_limits<std::int32_t>::max();

}  // namespace

ModelDimensions dimensionsOf(const ModelStore& store) {
    const auto nonzeros = std::min(static_cast<std::size_t>(store.nonzeros().size()), largestCount);
    return {.rows = store.rowCount(), .columns = store.columnCount(), .nonzeros = static_cast<std::int32_t>(nonzeros)};
}

bool fitsEngine(const ModelStore& store) {
    return static_cast<std::size_t>(store.nonzeros().size()) <= largestCount &&
           dimensionsOf(store).entries() <= largestCount;
}

ModelArrays::ModelArrays(const ModelStore& store) : dimensions_(dimensionsOf(store)), infinity_(store.infinity()) {
    const auto nonzeros = static_cast<std::size_t>(dimensions_.nonzeros);
    const auto columns = static_cast<std::size_t>(dimensions_.columns);
    rowIndices_ = std::make_unique_for_overwrite<std::int32_t[]>(nonzeros);
    columnIndices_ = std::make_unique_for_overwrite<std::int32_t[]>(nonzeros);
    values_ = std::make_unique_for_overwrite<double[]>(nonzeros);
    lower_ = std::make_unique_for_overwrite<double[]>(dimensions_.entries());
    upper_ = std::make_unique_for_overwrite<double[]>(dimensions_.entries());
    cost_ = std::make_unique_for_overwrite<double[]>(columns);
    type_ = std::make_unique_for_overwrite<std::int32_t[]>(columns);

    fillNonzeros(store.nonzeros());
    for (std::size_t i = 0; i < columns; ++i) {
        const ColumnRecord& column = store.column(static_cast<std::int32_t>(i));
        lower_[i] = column.lowerBound;
        upper_[i] = column.upperBound;
        cost_[i] = column.cost;
        type_[i] = static_cast<std::int32_t>(column.type);
    }
    for (std::size_t i = columns; i < dimensions_.entries(); ++i) {
        const RowRecord& row = store.row(static_cast<std::int32_t>(i - columns));
        lower_[i] = row.lowerBound;
        upper_[i] = row.upperBound;
    }
}

void ModelArrays::fillNonzeros(const NonzeroTable& nonzeros) {
    std::size_t entry = 0;
    for (std::int32_t rowNumber = 1; rowNumber <= nonzeros.rowLimit(); ++rowNumber) {
        const NonzeroRow& row = nonzeros.row(rowNumber);
        for (std::size_t index = 0; index < row.runCount(); ++index) {
            const auto run = row.run(index);
            std::fill_n(&rowIndices_[entry], run.values.size(), rowNumber);
            std::ranges::copy(run.columnNumbers, &columnIndices_[entry]);
            std::ranges::copy(run.values, &values_[entry]);
            entry += run.values.size();
        }
    }
}

std::int32_t ModelArrays::putInto(EngineInterface& engine) const {
    return engine.PutModel(0, infinity_, dimensions_.rows, dimensions_.columns, dimensions_.nonzeros, rowIndices_.get(),
                           columnIndices_.get(), values_.get(), lower_.get(), upper_.get(), cost_.get(), type_.get());
}

SolutionArrays::SolutionArrays(const ModelDimensions& modelDimensions)
    : dimensions(modelDimensions),
      values(dimensions.entries()),
      reducedCosts(dimensions.entries()),
      basisStatus(dimensions.entries()) {}

void SolutionArrays::copyInto(ModelStore& store, double ColumnRecord::*columnValue, double RowRecord::*rowValue) const {
    const auto held = store.gate().moment();
    const std::int32_t columns = std::min(dimensions.columns, store.columnCount());
    const std::int32_t rows = std::min(dimensions.rows, store.rowCount());
    for (std::int32_t position = 0; position < columns; ++position) {
        const auto entry = static_cast<std::size_t>(position);
        ColumnRecord& column = store.column(position);
        writeShared(column.*columnValue, values[entry]);
        writeShared(column.reducedCost, reducedCosts[entry]);
        writeShared(column.status, static_cast<TARQColRowStatusType>(basisStatus[entry]));
    }
    for (std::int32_t position = 0; position < rows; ++position) {
        const auto entry = static_cast<std::size_t>(dimensions.columns) + static_cast<std::size_t>(position);
        RowRecord& row = store.row(position);
        writeShared(row.*rowValue, values[entry]);
        writeShared(row.dual, reducedCosts[entry]);
        writeShared(row.status, static_cast<TARQColRowStatusType>(basisStatus[entry]));
    }
}

}  // namespace tarq
