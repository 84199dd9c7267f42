#include "indexed/values/objectvalues.h"

#include <array>
#include <string>
#include <type_traits>

#include "frame/memberguard.h"
#include "frame/result.h"
#include "indexed/values/iserieslength.h"
#include "tarq/frame/objecterror.h"
#include "tarq/interfaces/itarqarray.h"
#include "tarq/interfaces/itarqarrayenum.h"
#include "tarq/interfaces/itarqseries.h"
#include "tarq/interfaces/itarqseriesenum.h"
#include "tarq/interfaces/itarqset.h"
#include "tarq/interfaces/itarqsetenum.h"

namespace tarq {
namespace {

/// Of an object that holds values: the enumerator that it makes.
template <class Interface>
Outcome openCollection(const Ref<IUnknown>& object, ValueSource& source) {
    const Ref<Interface> collection = object.query<Interface>();
    source.offered = static_cast<bool>(collection);
    if (!collection) return {};
    Ref<IUnknown> made;
    Outcome asked = askObject([&] { return collection->get__NewEnum(&made); });
    source.enumerator = made.query<IEnumVARIANT>();
    if constexpr (std::is_same_v<Interface, ITARQSeries>) {
        if (!contained([&] { return collection->get_Count(&source.memberCount); }).isOk()) source.memberCount = 0;
    }
    return asked;
}

/// Of an enumerator: itself.
template <class Interface>
Outcome openEnumerator(const Ref<IUnknown>& object, ValueSource& source) {
    source.offered = offersAny<Interface>(object);
    if (!source.offered) return {};
    source.enumerator = object.query<IEnumVARIANT>();
    if constexpr (std::is_same_v<Interface, ITARQSeriesEnum>) {
        const auto length = ownPartOf<ISeriesLength>(object.query<Interface>());
        if (length) source.memberCount = length->memberCount();
    }
    return {};
}

struct Opening {
    Outcome (*open)(const Ref<IUnknown>& object, ValueSource& source);
    bool isSeries;
};

// The first interface that the object offers decides.
constexpr std::array openings{
    Opening{&openCollection<ITARQSet>, false},   Opening{&openEnumerator<ITARQSetEnum>, false},
    Opening{&openCollection<ITARQSeries>, true}, Opening{&openEnumerator<ITARQSeriesEnum>, true},
    Opening{&openCollection<ITARQArray>, false}, Opening{&openEnumerator<ITARQArrayEnum>, false},
};

}  // namespace

std::string ownDescription(Status status) {
    const ObjectError* const error = lastError();
    const bool told = error != nullptr && error->status == status;
    return told ? error->description : std::string(status::meaning(status));
}

Ref<IArrayCells> cellsOf(const Ref<IUnknown>& object) {
    Ref<IArrayCells> cells = ownPartOf<IArrayCells>(object.query<ITARQArray>());
    if (!cells || cells->rowMajorCells().empty()) return {};
    // A client's object around the array may offer what is asked first.
    return offersAny<ITARQSet, ITARQSetEnum, ITARQSeries, ITARQSeriesEnum>(object) ? Ref<IArrayCells>() : cells;
}

Outcome openValueSource(IUnknown* object, ValueSource& source) {
    const Ref<IUnknown> held(object);
    for (const Opening& opening : openings) {
        TARQ_TRY(opening.open(held, source));
        if (!source.offered) continue;
        source.isSeries = opening.isSeries;
        if (!source.enumerator) return {status::invalidArgument, std::string(status::meaning(status::wrongClass))};
        clearLastError();
        const Status reset = source.enumerator->Reset();
        return reset.failed() ? Outcome(status::invalidArgument, ownDescription(reset)) : Outcome();
    }
    return {};
}

}  // namespace tarq
