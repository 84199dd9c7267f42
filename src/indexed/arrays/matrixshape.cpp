#include "indexed/arrays/matrixshape.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "indexed/values/objectvalues.h"
#include "indexed/values/spreadsheetrange.h"
#include "tarq/frame/safearray.h"
#include "tarq/interfaces/itarqarray.h"
#include "tarq/interfaces/itarqseries.h"
#include "tarq/interfaces/itarqset.h"

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

void addNumbered(ArgumentShape& shape, std::int64_t first, std::size_t count) {
    shape.sizes.push_back(count);
    shape.firstNumbers.push_back(first);
}

Shaped shapeOfArray(const Ref<IUnknown>& object, ArgumentShape& shape) {
    shape.array = object.query<ITARQArray>();
    if (!shape.array) return {};
    std::int32_t dimensions = 0;
    Outcome counted = askObject([&] { return shape.array->get_NumberOfIndexsets(&dimensions); });
    if (!counted.isOk()) return {true, counted};
    for (std::int32_t dimension = 1; dimension <= dimensions; ++dimension) {
        std::int32_t size = 0;
        Outcome read = askObject([&] { return shape.array->get_SizeOfIndexset(dimension, &size); });
        if (!read.isOk()) return {true, read};
        shape.sizes.push_back(static_cast<std::size_t>(std::max(size, 0)));
    }
    return {true, {}};
}

template <class Interface>
Shaped shapeOfVector(const Ref<IUnknown>& object, ArgumentShape& shape) {
    const Ref<Interface> vector = object.query<Interface>();
    if (!vector) return {};
    std::int32_t count = 0;
    if (Outcome read = askObject([&] { return vector->get_Count(&count); }); !read.isOk()) return {true, read};
    addNumbered(shape, 1, static_cast<std::size_t>(std::max(count, 0)));
    return {true, {}};
}

Shaped shapeOfRange(const Ref<IUnknown>& object, ArgumentShape& shape) {
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
    addNumbered(shape, row, static_cast<std::size_t>(std::max(rows, 0)));
    addNumbered(shape, column, static_cast<std::size_t>(std::max(columns, 0)));
    return {true, {}};
}

constexpr std::array shapes{&shapeOfArray, &shapeOfVector<ITARQSet>, &shapeOfVector<ITARQSeries>, &shapeOfRange};

}  // namespace

Outcome shapeOfArgument(const Variant& argument, ArgumentShape& shape) {
    if (argument.isArray()) {
        for (const Dimension& dimension : argument.array().dimensions()) {
            addNumbered(shape, dimension.lowerBound, dimension.length);
        }
        return {};
    }
    const Variant plain = argument.copyDereferenced();
    if (plain.isArray()) return shapeOfArgument(plain, shape);
    if (!plain.isObject()) return {};
    const Ref<IUnknown> object(plain.object());
    for (const auto& shapeOf : shapes) {
        Shaped shaped = shapeOf(object, shape);
        if (shaped.offered) return shaped.outcome;
    }
    return {status::invalidArgument, "Bad Object. Only TARQArray, TARQSet and TARQSeries allowed."};
}

Outcome readNames(const ArgumentShape& shape, std::vector<Indexset>& indexsets) {
    for (std::size_t i = 0; i < shape.sizes.size(); ++i) {
        if (!shape.array) {
            indexsets.push_back(numbersFrom(shape.firstNumbers[i], shape.sizes[i]));
            continue;
        }
        Indexset& names = indexsets.emplace_back();
        for (std::size_t element = 1; element <= shape.sizes[i]; ++element) {
            std::string name;
            Outcome read = askObject([&] {
                return shape.array->get_IndexsetElement(static_cast<std::int32_t>(i) + 1,
                                                        static_cast<std::int32_t>(element), &name);
            });
            if (!read.isOk()) return read;
            names.append(std::move(name));
        }
    }
    return {};
}

}  // namespace tarq
