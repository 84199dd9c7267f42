#include "indexed/matrixshape.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "frame/safearray.h"
#include "indexed/objectvalues.h"
#include "indexed/spreadsheetrange.h"
#include "interfaces/itarqarray.h"
#include "interfaces/itarqseries.h"
#include "interfaces/itarqset.h"

namespace tarq {
namespace {

Indexset numbersFrom(std::int64_t first, std::size_t count) {
    Indexset names;
    names.reserve(count);
    for (std::size_t i = 0; i < count; ++i) names.append(std::to_string(first + static_cast<std::int64_t>(i)));
    return names;
}

struct Shaped {
    bool offered = false;
    Outcome outcome{};
};

Shaped shapeOfArray(const Ref<IUnknown>& object, std::vector<Indexset>& indexsets) {
    const Ref<ITARQArray> array = object.query<ITARQArray>();
    if (!array) return {};
    std::int32_t dimensions = 0;
    if (const Status read = array->get_NumberOfIndexsets(&dimensions); read.failed()) return {true, failureOf(read)};
    for (std::int32_t dimension = 1; dimension <= dimensions; ++dimension) {
        std::int32_t size = 0;
        if (const Status read = array->get_SizeOfIndexset(dimension, &size); read.failed()) {
            return {true, failureOf(read)};
        }
        Indexset& names = indexsets.emplace_back();
        for (std::int32_t element = 1; element <= size; ++element) {
            std::string name;
            const Status read = array->get_IndexsetElement(dimension, element, &name);
            if (read.failed()) return {true, failureOf(read)};
            names.append(std::move(name));
        }
    }
    return {true, {}};
}

template <class Interface>
Shaped shapeOfVector(const Ref<IUnknown>& object, std::vector<Indexset>& indexsets) {
    const Ref<Interface> vector = object.query<Interface>();
    if (!vector) return {};
    std::int32_t count = 0;
    if (const Status read = vector->get_Count(&count); read.failed()) return {true, failureOf(read)};
    indexsets.push_back(Indexset::numbered(count));
    return {true, {}};
}

Shaped shapeOfRange(const Ref<IUnknown>& object, std::vector<Indexset>& indexsets) {
    const SpreadsheetRange range(object.get());
    if (!range) return {};
    std::int32_t row = 0;
    std::int32_t column = 0;
    std::int32_t rows = 0;
    std::int32_t columns = 0;
    if (Outcome read = range.firstRow(row); !read.isOk()) return {true, read};
    if (Outcome read = range.rowCount(rows); !read.isOk()) return {true, read};
    if (Outcome read = range.firstColumn(column); !read.isOk()) return {true, read};
    if (Outcome read = range.columnCount(columns); !read.isOk()) return {true, read};
    indexsets.push_back(numbersFrom(row, static_cast<std::size_t>(std::max(rows, 0))));
    indexsets.push_back(numbersFrom(column, static_cast<std::size_t>(std::max(columns, 0))));
    return {true, {}};
}

constexpr std::array shapes{&shapeOfArray, &shapeOfVector<ITARQSet>, &shapeOfVector<ITARQSeries>, &shapeOfRange};

}  // namespace

Outcome shapeOfArgument(const Variant& argument, std::vector<Indexset>& indexsets) {
    if (argument.isArray()) {
        for (const Dimension& dimension : argument.array().dimensions()) {
            indexsets.push_back(numbersFrom(dimension.lowerBound, dimension.length));
        }
        return {};
    }
    const Variant plain = argument.copyDereferenced();
    if (plain.isArray()) return shapeOfArgument(plain, indexsets);
    if (!plain.isObject()) return {};
    const Ref<IUnknown> object(plain.object());
    for (const auto& shapeOf : shapes) {
        Shaped shaped = shapeOf(object, indexsets);
        if (shaped.offered) return shaped.outcome;
    }
    return {status::invalidArgument, "Bad Object. Only TARQArray, TARQSet and TARQSeries allowed."};
}

std::vector<std::size_t> sizesOf(const std::vector<Indexset>& indexsets) {
    std::vector<std::size_t> sizes;
    for (const Indexset& names : indexsets) sizes.push_back(names.size());
    return sizes;
}

}  // namespace tarq
