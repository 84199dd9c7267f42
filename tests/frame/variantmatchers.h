// Matchers with which tests compare Variants as wholes: the code and what it holds.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <ostream>
#include <string>

#include "tarq/frame/safearray.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Same code and same payload; references are the same when they refer to the same place.
inline bool isSame(const Variant& left, const Variant& right) {
    if (left.code() != right.code()) return false;
    if (left.isByReference()) return &left.array() == &right.array();
    if (left.isArray()) {
        const SafeArray& a = left.array();
        const SafeArray& b = right.array();
        bool same = std::ranges::equal(a.dimensions(), b.dimensions());
        for (std::size_t i = 0; same && i < a.elementCount(); ++i) {
            Variant fromA;
            Variant fromB;
            same = a.getAt(i, fromA).isOk() && b.getAt(i, fromB).isOk() && isSame(fromA, fromB);
        }
        return same;
    }
    switch (left.kind()) {
        case Kind::Empty:
        case Kind::Null:
            return true;
        case Kind::Text:
            return left.text() == right.text();
        case Kind::Object:
            return left.object() == right.object();
        case Kind::Single:
        case Kind::Double:
        case Kind::Date:
            return left.real() == right.real();
        case Kind::Decimal: {
            const Decimal& a = left.decimal();
            const Decimal& b = right.decimal();
            return a.low == b.low && a.middle == b.middle && a.high == b.high && a.scale == b.scale &&
                   a.negative == b.negative;
        }
        default:
            return left.wholeNumber() == right.wholeNumber();
    }
}

inline void PrintTo(const Variant& value, std::ostream* out) {
    *out << "Variant(code " << value.code();
    if (value.isText()) {
        *out << ", \"" << value.text() << '"';
    } else if (value.is(Kind::Double) || value.is(Kind::Single) || value.is(Kind::Date)) {
        *out << ", " << value.real();
    } else if (!value.isByReference() && !value.isArray() && !value.isObject() && !value.is(Kind::Decimal)) {
        *out << ", " << value.wholeNumber();
    }
    *out << ')';
}

MATCHER_P(isVariant, expected, "is the same as " + testing::PrintToString(expected)) { return isSame(arg, expected); }

}  // namespace tarq
