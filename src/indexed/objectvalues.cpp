#include "indexed/objectvalues.h"

#include <array>
#include <string>

#include "frame/objecterror.h"
#include "interfaces/itarqarray.h"
#include "interfaces/itarqarrayenum.h"
#include "interfaces/itarqseries.h"
#include "interfaces/itarqseriesenum.h"
#include "interfaces/itarqset.h"
#include "interfaces/itarqsetenum.h"

namespace tarq {
namespace {

struct Opened {
    bool offered = false;
    Status status;
    Ref<IEnumVARIANT> enumerator{};
};

/// Of an object that holds values: the enumerator that it makes.
template <class Interface>
Opened openCollection(const Ref<IUnknown>& object) {
    const Ref<Interface> collection = object.query<Interface>();
    if (!collection) return {};
    Ref<IUnknown> made;
    const Status status = collection->get__NewEnum(&made);
    return {true, status, made.query<IEnumVARIANT>()};
}

/// Of an enumerator: itself.
template <class Interface>
Opened openEnumerator(const Ref<IUnknown>& object) {
    if (!object.query<Interface>()) return {};
    return {true, status::ok, object.query<IEnumVARIANT>()};
}

struct Opening {
    Opened (*open)(const Ref<IUnknown>& object);
    bool isSeries;
};

// The first interface that the object offers decides.
constexpr std::array openings{
    Opening{&openCollection<ITARQSet>, false},   Opening{&openEnumerator<ITARQSetEnum>, false},
    Opening{&openCollection<ITARQSeries>, true}, Opening{&openEnumerator<ITARQSeriesEnum>, true},
    Opening{&openCollection<ITARQArray>, false}, Opening{&openEnumerator<ITARQArrayEnum>, false},
};

}  // namespace

Outcome failureOf(Status status) {
    const ObjectError* const error = lastError();
    const bool told = error != nullptr && error->status == status;
    return {status::invalidArgument, told ? error->description : std::string(status::meaning(status))};
}

Outcome openValueSource(IUnknown* object, ValueSource& source) {
    const Ref<IUnknown> held(object);
    clearLastError();  // what is found there after a failure is then the failure's
    for (const Opening& opening : openings) {
        Opened opened = opening.open(held);
        if (!opened.offered) continue;
        source.offered = true;
        source.isSeries = opening.isSeries;
        if (opened.status.failed()) return failureOf(opened.status);
        if (!opened.enumerator) return failureOf(status::wrongClass);
        if (const Status reset = opened.enumerator->Reset(); reset.failed()) return failureOf(reset);
        source.enumerator = std::move(opened.enumerator);
        return {};
    }
    return {};
}

}  // namespace tarq
