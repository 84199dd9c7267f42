// Walking the values of the objects that have some: sets, series, arrays, and their enumerators.
#pragma once

#include "frame/ienumvariant.h"
#include "frame/object.h"
#include "frame/status.h"
#include "frame/variant.h"

namespace tarq {

/// What an object gives its values through, and whether it gives any.
struct ValueSource {
    bool offered = false;            ///< the object is one of those that have values
    Ref<IEnumVARIANT> enumerator{};  ///< set, and reset, where that succeeded
};

/// The enumerator of a set, series or array, made by its _NewEnum, or of one of their enumerators, which is the object
/// itself; the first in the order ITARQSet, ITARQSetEnum, ITARQSeries, ITARQSeriesEnum, ITARQArray, ITARQArrayEnum
/// decides. A failing _NewEnum or Reset is invalidArgument with the object's own description.
Outcome openValueSource(IUnknown* object, ValueSource& source);

/// Hands the values that are left to `take`, which returns an Outcome, until that fails or there is none left. A
/// failing Next ends the walk as a failing Reset does.
template <class Take>
Outcome walkValues(IEnumVARIANT& enumerator, const Take& take);

/// The failure of an object's own operation, worded by the object: invalidArgument with the calling thread's record as
/// the description.
Outcome failureOf(Status status);

template <class Take>
Outcome walkValues(IEnumVARIANT& enumerator, const Take& take) {
    for (;;) {
        Variant value;
        const Status fetched = enumerator.Next(1, &value, nullptr);
        if (fetched.failed()) return failureOf(fetched);
        if (!fetched.isOk()) return {};
        if (const Outcome taken = take(std::move(value)); !taken.isOk()) return taken;
    }
}

}  // namespace tarq
