// Walking the values of the objects that have some: sets, series, arrays, and their enumerators.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <string>
#include <utility>

#include "frame/result.h"
#include "indexed/values/arraycells.h"
#include "tarq/frame/ienumvariant.h"
#include "tarq/frame/object.h"
#include "tarq/frame/objecterror.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// What an object gives its values through, and whether it gives any.
struct ValueSource {
    bool offered = false;            ///< the object is one of those that have values
    bool isSeries = false;           ///< a sequence in which no two neighbours are equal
    std::int32_t memberCount = 0;    ///< of a series that tells it; the most that 32 bits hold where it has no end
    Ref<IEnumVARIANT> enumerator{};  ///< set, and reset, where it has been opened
};

/// The enumerator of a set, series or array, made by its _NewEnum, or of one of their enumerators, which is the object
/// itself; the first in the order ITARQSet, ITARQSetEnum, ITARQSeries, ITARQSeriesEnum, ITARQArray, ITARQArrayEnum
/// decides. A failing _NewEnum or Reset is invalidArgument with the object's own description.
Outcome openValueSource(IUnknown* object, ValueSource& source);

/// The cells of an array of this component as they lie in memory, where they are what the enumerator would give; else
/// none.
Ref<IArrayCells> cellsOf(const Ref<IUnknown>& object);

/// Whether an object offers one of the interfaces.
template <class... Interfaces>
[[nodiscard]] bool offersAny(const Ref<IUnknown>& object) {
    return (static_cast<bool>(object.query<Interfaces>()) || ...);
}

/// Hands the values that are left to `take`, which returns an Outcome, until that fails or there is none left. A
/// failing Next ends the walk as a failing Reset does; so does a series whose step is too small to make headway.
template <class Take>
Outcome walkValues(const ValueSource& source, const Take& take);

/// Walks values that `take` appends to a list. A series that no list can hold ends as soon as it makes headway, with
/// std::bad_alloc, and not after it has filled all memory.
template <class List, class Take>
Outcome walkIntoList(const ValueSource& source, List& list, const Take& take);

/// What an object says of a failure of its own that has just been returned: the calling thread's record, or the meaning
/// of the status where the object left none. A record from before the call must have been cleared.
[[nodiscard]] std::string ownDescription(Status status);

/// Asks an object, whoever made it, for something: any answer but success is the failure invalidArgument with the
/// object's own description. `operation` calls it and returns its Status.
template <class Operation>
Outcome askObject(const Operation& operation) {
    clearLastError();
    const Status answer = operation();
    return answer.isOk() ? Outcome() : Outcome(status::invalidArgument, ownDescription(answer));
}

template <class Take>
Outcome walkValues(const ValueSource& source, const Take& take) {
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    double last = none;
    clearLastError();
    for (std::int32_t left = std::numeric_limits<std::int32_t>::max(); left > 0; --left) {
        Variant value;
        const Status fetched = source.enumerator->Next(1, &value, nullptr);
        if (fetched.failed()) return {status::invalidArgument, ownDescription(fetched)};
        if (!fetched.isOk()) return {};
        const bool isMember = source.isSeries && value.is(Kind::Double);
        const double number = isMember ? value.real() : none;
        TARQ_TRY(take(std::move(value)));
        // What is no number stays so with every step.
        if (isMember && (number == last || number != number)) {
            return {status::invalidArgument, "Step of series is too small."};
        }
        last = number;
    }
    return status::outOfMemory;
}

template <class List, class Take>
Outcome walkIntoList(const ValueSource& source, List& list, const Take& take) {
    std::int32_t taken = 0;
    return walkValues(source, [&](Variant value) {
        if (source.memberCount > taken && taken == 2) {
            if (source.memberCount == std::numeric_limits<std::int32_t>::max()) throw std::bad_alloc();
            list.reserve(static_cast<std::size_t>(source.memberCount));
        }
        ++taken;
        return take(std::move(value));
    });
}

}  // namespace tarq
