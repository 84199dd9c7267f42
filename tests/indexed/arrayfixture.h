// Arrays as tests make, read and write them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "indexed/arrays/ctarqarray.h"
#include "indexed/arrays/ctarqarrayenum.h"
#include "tests/indexed/datafixture.h"

namespace tarq {

inline Ref<ITARQArray> newArray(const ValueList& indexsets) {
    Ref<ITARQArray> array = make<CTARQArray, ITARQArray>();
    EXPECT_THAT(array->Init(indexsets), succeeds());
    return array;
}

/// Five index arguments, the last ones missing.
template <class... Indices>
std::array<Variant, 5> indices(const Indices&... given) {
    std::array<Variant, 5> all;
    all.fill(Variant::missing());
    std::size_t i = 0;
    ((all[i++] = valueOf(given)), ...);
    return all;
}

template <class... Indices>
Status readInto(Variant& value, const Ref<ITARQArray>& array, const Indices&... given) {
    const std::array<Variant, 5> i = indices(given...);
    return array->get_Value(i[0], i[1], i[2], i[3], i[4], &value);
}

template <class Value, class... Indices>
Status putAt(const Ref<ITARQArray>& array, const Value& value, const Indices&... given) {
    const std::array<Variant, 5> i = indices(given...);
    return array->put_Value(i[0], i[1], i[2], i[3], i[4], valueOf(value));
}

/// "2x3: 1 2 3 4 5 6" of an array, the value alone of one cell.
inline std::string shownCells(const Variant& value) {
    if (!value.isArray()) return shown(value);
    std::string all;
    for (const Dimension& dimension : value.array().dimensions()) {
        EXPECT_EQ(dimension.lowerBound, 0);
        all.append(all.empty() ? "" : "x").append(std::to_string(dimension.length));
    }
    all.append(":");
    for (const Variant& element : value.array().elements<Variant>()) all.append(" ").append(shown(element));
    return all;
}

template <class... Indices>
std::string cells(const Ref<ITARQArray>& array, const Indices&... given) {
    Variant value;
    EXPECT_THAT(readInto(value, array, given...), succeeds());
    return shownCells(value);
}

/// An array of values with as many dimensions as lengths, filled with 1, 2 and so on.
inline SafeArray counted(const std::vector<Dimension>& dimensions, Kind kind = Kind::Double) {
    SafeArray array;
    EXPECT_TRUE(SafeArray::create(kind, dimensions, array).isOk());
    for (std::size_t i = 0; i < array.elementCount(); ++i) {
        Variant element(static_cast<double>(i + 1));
        const bool made = kind == Kind::Long ? element.toInteger() : kind != Kind::Text || element.toText();
        EXPECT_TRUE(made);
        EXPECT_TRUE(array.putAt(i, element).isOk());
    }
    return array;
}

/// Names in an array by reference to `array`, as dimensions are passed.
inline SafeArray namesOf(std::vector<std::string> names) { return SafeArray::of(std::move(names)); }

}  // namespace tarq
