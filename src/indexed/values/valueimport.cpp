#include "indexed/values/valueimport.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>
#include <utility>

#include "frame/convertelement.h"
#include "frame/result.h"
#include "indexed/dimensions/indexset.h"
#include "indexed/values/elementreader.h"
#include "indexed/values/objectvalues.h"
#include "indexed/values/plainvalue.h"
#include "indexed/values/spreadsheetrange.h"
#include "tarq/interfaces/itarqarray.h"

namespace tarq {
namespace {

Outcome refused(std::string message) { return {status::invalidArgument, std::move(message)}; }

Outcome appendConverted(Variant value, Kind target, std::vector<Variant>& values) {
    std::string message;
    return convertElement(std::move(value), target, values, message) ? Outcome() : refused(std::move(message));
}

/// Room for `count` more values, so that many short arrays don't move the list each time.
void reserveMore(std::vector<Variant>& values, std::size_t count) {
    const std::size_t needed = values.size() + count;
    if (needed > values.capacity()) values.reserve(std::max(needed, 2 * values.capacity()));
}

/// One element of an array; numbers that are wanted as doubles need no conversion.
Outcome appendElement(const ElementReader& reader, std::size_t position, Kind target, std::vector<Variant>& values) {
    if (target == Kind::Double && reader.isNumeric()) {
        values.emplace_back(reader.number(position));
        return {};
    }
    return appendConverted(reader.value(position), target, values);
}

/// What normalizeValue makes of a double.
Variant normalized(double number) {
    constexpr double least = std::numeric_limits<std::int32_t>::min();
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    if (number >= least && number <= most) {
        const auto whole = static_cast<std::int32_t>(number);
        if (static_cast<double>(whole) == number) return Variant(whole);
    }
    return Variant(number);
}

Outcome appendAllElements(const ElementReader& reader, std::size_t count, Kind target, std::vector<Variant>& values) {
    reserveMore(values, count);
    if (reader.isNumeric() && (target == Kind::Double || target == Kind::Empty)) {
        for (std::size_t position = 0; position < count; ++position) {
            const double number = reader.number(position);
            values.push_back(target == Kind::Double ? Variant(number) : normalized(number));
        }
        return {};
    }
    for (std::size_t position = 0; position < count; ++position) {
        TARQ_TRY(appendElement(reader, position, target, values));
    }
    return {};
}

// ---- The leading block of an array

Outcome checkBlock(const SafeArray& array, std::span<const std::size_t> shape) {
    const std::span<const Dimension> dimensions = array.dimensions();
    if (dimensions.size() != shape.size()) return refused("Dimension of array does not fit.");
    for (std::size_t i = 0; i < shape.size(); ++i) {
        if (dimensions[i].length >= shape[i]) continue;
        return refused(std::string("Dimension ").append(std::to_string(i + 1)).append(" of array is too small."));
    }
    return {};
}

/// The block of the sizes `shape` at the lower bounds of an array of more than one dimension.
Outcome appendBlock(const SafeArray& array, const ElementReader& reader, std::span<const std::size_t> shape,
                    Kind target, std::vector<Variant>& values) {
    const std::size_t count = combinationCount(shape);
    if (count == 0) return {};
    values.reserve(count);
    std::vector<std::size_t> positions(shape.size(), 0);
    do {
        std::size_t position = 0;
        for (std::size_t i = 0; i < shape.size(); ++i)
            position = position * array.dimensions()[i].length + positions[i];
        TARQ_TRY(appendElement(reader, position, target, values));
    } while (nextIndexCombination(shape, positions));
    return {};
}

Outcome expandArray(const Variant& value, std::span<const std::size_t> shape, std::size_t count, Kind target,
                    std::vector<Variant>& values) {
    const SafeArray& array = value.array();
    const ElementReader reader(array);
    if (value.isByReference() || !reader.isReadable()) return refused("Array has wrong data type.");
    if (array.dimensions().empty()) return {};
    if (array.dimensions().size() == 1) {
        if (array.elementCount() < count) return refused("Not enough elements in value array.");
        return appendAllElements(reader, array.elementCount(), target, values);
    }
    TARQ_TRY(checkBlock(array, shape));
    const bool isWhole = array.elementCount() == combinationCount(shape);
    if (isWhole) return appendAllElements(reader, array.elementCount(), target, values);
    return appendBlock(array, reader, shape, target, values);
}

// ---- Single values

bool convertScalar(Variant& value, Kind target) {
    switch (target) {
        case Kind::Empty:
            return value.normalizeValue();
        case Kind::Long:
            return value.toInteger();
        case Kind::Double:
            return value.toReal();
        case Kind::Text:
            return value.toText();
        default:
            return true;
    }
}

// ---- Spreadsheet ranges

Outcome appendCells(const SpreadsheetRange& range, std::int32_t rows, std::int32_t columns, Kind target,
                    std::vector<Variant>& values) {
    for (std::int32_t row = 1; row <= rows; ++row) {
        for (std::int32_t column = 1; column <= columns; ++column) {
            Variant value;
            TARQ_TRY(range.cell(row, column, value));
            TARQ_TRY(appendConverted(std::move(value), target, values));
        }
    }
    return {};
}

Outcome sizesOf(const SpreadsheetRange& range, std::int32_t& rows, std::int32_t& columns) {
    TARQ_TRY(range.requireSingleArea());
    TARQ_TRY(range.rowCount(rows));
    return range.columnCount(columns);
}

/// The cells of a range that a selection of the sizes `shape` takes.
Outcome expandRange(const SpreadsheetRange& range, std::span<const std::size_t> shape, Kind target,
                    std::vector<Variant>& values) {
    std::int32_t rows = 0;
    std::int32_t columns = 0;
    TARQ_TRY(sizesOf(range, rows, columns));
    const auto sizeOf = [](std::int32_t count) { return static_cast<std::size_t>(std::max(count, 0)); };
    if (shape.empty()) return {};
    if (shape.size() > 2) return refused("Excel Ranges cannot be read into objects with more than 2 dimensions.");
    if (shape.size() == 1) {
        if (shape[0] > sizeOf(rows) * sizeOf(columns)) return refused("Not enough values in Excel Range.");
        return appendCells(range, rows, columns, target, values);
    }
    if (sizeOf(rows) < shape[0]) return refused("Not enough rows in Excel Range.");
    if (sizeOf(columns) < shape[1]) return refused("Not enough columns in Excel Range.");
    return appendCells(range, static_cast<std::int32_t>(shape[0]), static_cast<std::int32_t>(shape[1]), target, values);
}

// ---- Arrays of this component

Outcome appendArrayCells(std::span<const Variant> cells, Kind target, std::vector<Variant>& values) {
    reserveMore(values, cells.size());
    for (const Variant& cell : cells) {
        TARQ_TRY(appendConverted(cell, target, values));
    }
    return {};
}

Outcome checkArrayShape(ITARQArray& array, std::span<const std::size_t> shape) {
    std::int32_t dimensions = 0;
    Outcome counted = askObject([&] { return array.get_NumberOfIndexsets(&dimensions); });
    if (!counted.isOk()) return counted;
    if (static_cast<std::size_t>(dimensions) != shape.size()) return refused("Dimension of TARQArray does not fit.");
    for (std::size_t i = 0; i < shape.size(); ++i) {
        std::int32_t size = 0;
        const auto dimension = static_cast<std::int32_t>(i) + 1;
        Outcome asked = askObject([&] { return array.get_SizeOfIndexset(dimension, &size); });
        if (!asked.isOk()) return asked;
        if (static_cast<std::size_t>(size) >= shape[i]) continue;
        return refused(std::string("Dimension ").append(std::to_string(i + 1)).append(" of TARQArray is too small."));
    }
    return {};
}

/// Reads the leading block cell by cell, which fails where a cell of it isn't there or can't be converted.
Outcome checkArrayBlock(ITARQArray& array, std::span<const std::size_t> shape, Kind target) {
    constexpr std::size_t mostIndices = 5;
    // No member reaches one cell of an array of more dimensions; its values are read all the same.
    if (combinationCount(shape) == 0 || shape.size() > mostIndices) return {};
    std::array<Variant, mostIndices> indices;
    indices.fill(Variant::missing());
    std::vector<std::size_t> positions(shape.size(), 0);
    std::vector<Variant> block;
    do {
        for (std::size_t i = 0; i < shape.size(); ++i) {
            indices[i] = Variant(static_cast<std::int32_t>(positions[i]) + 1);
        }
        Variant value;
        Outcome asked = askObject([&] {
            return array.get_ValueByNumIndex(indices[0], indices[1], indices[2], indices[3], indices[4], &value);
        });
        if (!asked.isOk()) return asked;
        block.clear();
        TARQ_TRY(appendConverted(std::move(value), target, block));
    } while (nextIndexCombination(shape, positions));
    return {};
}

/// What an array has to offer for a selection of the sizes `shape`. Its values are read by the caller afterwards, all
/// of them in their own order, so that of a larger array the first ones are taken and not the leading block.
Outcome checkArray(const Ref<IUnknown>& object, ITARQArray& array, std::span<const std::size_t> shape, Kind target) {
    TARQ_TRY(checkArrayShape(array, shape));
    // Cells that lie together are all read afterwards, and a failure would be the same.
    return cellsOf(object) ? Outcome() : checkArrayBlock(array, shape, target);
}

}  // namespace

Outcome appendArrayValues(const SafeArray& array, Kind target, std::vector<Variant>& values) {
    const ElementReader reader(array);
    if (!reader.isReadable()) return refused("Array contains elements of wrong type.");
    if (array.dimensions().size() != 1) return refused("Multidimensional arrays not allowed.");
    return appendAllElements(reader, array.elementCount(), target, values);
}

Outcome collectObjectValues(IUnknown* object, Kind target, std::vector<Variant>& values) {
    values.clear();
    const Ref<IUnknown> held(object);
    if (const Ref<IArrayCells> cells = cellsOf(held)) return appendArrayCells(cells->rowMajorCells(), target, values);
    ValueSource source;
    TARQ_TRY(openValueSource(object, source));
    if (source.offered) {
        return walkIntoList(source, values,
                            [&](Variant value) { return appendConverted(std::move(value), target, values); });
    }
    const SpreadsheetRange range(object);
    if (!range) return refused("Passed object is not allowed.");
    std::int32_t rows = 0;
    std::int32_t columns = 0;
    TARQ_TRY(sizesOf(range, rows, columns));
    return appendCells(range, rows, columns, target, values);
}

Outcome flattenValueList(const ValueList& list, std::vector<Variant>& values) {
    for (const Variant& entry : list.walk()) {
        const PlainValue plain(entry);
        if (plain->isArray()) {
            if (!plain->isByReference()) return refused("Unsupported argument type.");
            TARQ_TRY(appendArrayValues(plain->array(), Kind::Empty, values));
            continue;
        }
        if (plain->isObject()) {
            std::vector<Variant> collected;
            Outcome read = collectObjectValues(plain->object(), Kind::Empty, collected);
            if (!read.isOk()) return read;
            std::ranges::move(collected, std::back_inserter(values));
            continue;
        }
        Variant value = *plain;
        if (!value.normalizeValue()) return refused("Unsupported argument type.");
        values.push_back(std::move(value));
    }
    return {};
}

Outcome expandValues(const Variant& value, std::span<const std::size_t> shape, std::size_t count, Kind target,
                     std::vector<Variant>& values) {
    values.clear();
    if (value.isArray()) {
        TARQ_TRY(expandArray(value, shape, count, target, values));
    } else if (Variant plain = value.copyDereferenced(); plain.isArray()) {
        return expandValues(plain, shape, count, target, values);
    } else if (!plain.isObject()) {
        if (!convertScalar(plain, target)) return refused("Parameter for value is of wrong type.");
        values.assign(count, plain);
        return {};
    } else {
        const Ref<IUnknown> object(plain.object());
        const SpreadsheetRange range(object.get());
        if (const Ref<ITARQArray> array = object.query<ITARQArray>()) {
            TARQ_TRY(checkArray(object, *array, shape, target));
        }
        Outcome read = range && !object.query<ITARQArray>() ? expandRange(range, shape, target, values)
                                                            : collectObjectValues(object.get(), target, values);
        if (!read.isOk()) return read;
    }
    if (values.size() < count) return refused("Not enough values passed.");
    return {};
}

}  // namespace tarq
