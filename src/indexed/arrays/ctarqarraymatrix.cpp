// CTARQArray: arithmetic.
#include <string>
#include <utility>
#include <vector>

#include "frame/memberguard.h"
#include "frame/result.h"
#include "indexed/arrays/arrayaccess.h"
#include "indexed/arrays/ctarqarray.h"
#include "indexed/arrays/matrixproduct.h"
#include "indexed/arrays/matrixshape.h"
#include "indexed/values/valueimport.h"

namespace tarq {
namespace {

Outcome refused(std::string message) { return {status::invalidArgument, std::move(message)}; }

/// Combines a numeric cell with a number; false for a cell that isn't numeric. An integer cell stays one where the
/// result is whole, a double stays a double.
template <class Combine>
bool combineCell(Variant& cell, const Combine& combine) {
    if (cell.is(Kind::Double)) {
        cell = Variant(combine(cell.real()));
        return true;
    }
    if (!cell.is(Kind::Long)) return false;
    cell = Variant(combine(static_cast<double>(cell.integer())));
    return cell.normalizeValue();
}

template <class Combine>
Status combineCells(ArrayStore& store, const Combine& combine) {
    bool all = true;
    store.forEachCell([&](Variant& cell) { all = combineCell(cell, combine) && all; });
    return all ? status::ok : status::arrayCondition;
}

/// An operand of a product: its dimensions and its values in row-major order.
struct Operand {
    std::vector<std::size_t> sizes;
    std::vector<double> values;

    [[nodiscard]] MatrixView view() const { return {values, sizes[0], sizes[1]}; }
};

Outcome readShape(const Variant& argument, Operand& operand) {
    ArgumentShape shape;
    Outcome read = shapeOfArgument(argument, shape);
    operand.sizes = std::move(shape.sizes);
    return read;
}

Outcome readValues(const Variant& argument, Operand& operand) {
    std::vector<Variant> values;
    const std::size_t count = combinationCount(operand.sizes);
    TARQ_TRY(expandValues(argument, operand.sizes, count, Kind::Double, values));
    operand.values.reserve(count);
    for (std::size_t i = 0; i < count; ++i) operand.values.push_back(values[i].real());
    return {};
}

}  // namespace

Status CTARQArray::AddScalar(double Value) {
    return guarded(classid::TARQArray,
                   [&] { return Outcome(combineCells(store_, [&](double cell) { return cell + Value; })); });
}

Status CTARQArray::MultiplyScalar(double Value) {
    return guarded(classid::TARQArray,
                   [&] { return Outcome(combineCells(store_, [&](double cell) { return cell * Value; })); });
}

Status CTARQArray::AddMatrix(const Variant& Matrix) {
    return guarded(classid::TARQArray, [&]() -> Outcome {
        ArgumentShape shape;
        TARQ_TRY(shapeOfArgument(Matrix, shape));
        const std::vector<std::size_t> sizes = store_.sizes();
        if (shape.sizes != sizes) return refused("Matrices do not have the same dimensions");
        const Dimensions before = store_.dimensions();
        std::vector<Variant> values;
        // Combinations may share a cell, which then is counted once.
        const std::size_t count = store_.count() == 0 ? 0 : combinationCount(sizes);
        TARQ_TRY(expandValues(Matrix, sizes, count, Kind::Double, values));
        if (store_.dimensions() != before) return changedMeanwhile();
        return addValues(std::span(values).first(count));
    });
}

Outcome CTARQArray::addValues(std::span<const Variant> values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        Variant* const cell = store_.cellOfCombination(i);
        const double summand = values[i].real();
        if (cell == nullptr || !combineCell(*cell, [&](double value) { return value + summand; })) {
            return refused("Matrix addition faild. Some elements of the TARQArray are strings.");
        }
    }
    return {};
}

Status CTARQArray::MultiplyMatrices(const Variant& Matrix1, const Variant& Matrix2) {
    return guarded(classid::TARQArray, [&]() -> Outcome {
        Operand left;
        Operand right;
        TARQ_TRY(readShape(Matrix1, left));
        TARQ_TRY(readShape(Matrix2, right));
        if (left.sizes.size() != 2 || right.sizes.size() != 2) {
            return refused("Matrix multiplication only for 2-dimensional arrays allowed.");
        }
        if (left.sizes[1] != right.sizes[0]) {
            return refused("Dimensions of Matrix1 do not fit dimensions of Matrix2.");
        }
        const Variant rows(static_cast<std::int32_t>(left.sizes[0]));
        const Variant columns(static_cast<std::int32_t>(right.sizes[1]));
        // An operand that is this array is empty from here on.
        TARQ_TRY(Init(ValueList({rows, columns})));
        const Dimensions target = store_.dimensions();
        TARQ_TRY(readValues(Matrix1, left));
        TARQ_TRY(readValues(Matrix2, right));
        if (store_.dimensions() != target) return changedMeanwhile();
        const std::vector<double> product = multiply(left.view(), right.view());
        for (std::size_t i = 0; i < product.size(); ++i) {
            Variant value(product[i]);
            (void)value.normalizeValue();
            store_.block()[i] = std::move(value);
        }
        return {};
    });
}

Status CTARQArray::TransposeMatrix() {
    return guarded(classid::TARQArray, [&]() -> Outcome {
        TARQ_TRY(requireInitialized());
        if (store_.dimensions()->size() != 2) {
            return {status::wrongState, "Only 2-dimensional matrices can be transposed."};
        }
        store_.transpose();
        return {};
    });
}

Status CTARQArray::CloneFrom(const Variant& Array) {
    return guarded(classid::TARQArray, [&]() -> Outcome {
        store_.clear();
        ArgumentShape shape;
        TARQ_TRY(shapeOfArgument(Array, shape));
        const std::vector<std::size_t>& sizes = shape.sizes;
        if (sizes.empty()) return {};
        std::vector<Indexset> indexsets;
        TARQ_TRY(readNames(shape, indexsets));
        TARQ_TRY(store_.initialize(std::move(indexsets)));
        const Dimensions target = store_.dimensions();
        std::vector<Variant> values;
        const std::size_t count = combinationCount(sizes);
        TARQ_TRY(expandValues(Array, sizes, count, Kind::Empty, values));
        if (store_.dimensions() != target) return changedMeanwhile();
        values.resize(count);
        return storeValues(store_, values);
    });
}

}  // namespace tarq
