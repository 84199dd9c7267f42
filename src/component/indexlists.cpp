#include "component/indexlists.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "frame/convertelement.h"
#include "frame/result.h"
#include "indexed/values/objectvalues.h"
#include "indexed/values/plainvalue.h"
#include "indexed/values/valueimport.h"
#include "model/addressing.h"
#include "model/familyedit.h"
#include "tarq/frame/object.h"
#include "tarq/frame/safearray.h"
#include "tarq/interfaces/itarqres.h"
#include "tarq/interfaces/itarqresset.h"
#include "tarq/interfaces/itarqressetenum.h"
#include "tarq/interfaces/itarqseries.h"
#include "tarq/interfaces/itarqseriesenum.h"
#include "tarq/interfaces/itarqset.h"
#include "tarq/interfaces/itarqsetenum.h"
#include "tarq/interfaces/itarqvar.h"
#include "tarq/interfaces/itarqvarset.h"
#include "tarq/interfaces/itarqvarsetenum.h"

namespace tarq {
namespace {

using Resolve = Outcome (*)(const ModelStore& store, const Variant& address, std::int32_t& position);

/// The store and how one of its sides is addressed.
struct AddressedStore {
    const ModelStore& store;
    Resolve resolve;

    Outcome append(std::int32_t number, PositionList& positions) const { return append(Variant(number), positions); }
    Outcome append(const std::string& name, PositionList& positions) const { return append(Variant(name), positions); }
    Outcome append(const Variant& address, PositionList& positions) const {
        std::int32_t position = 0;
        TARQ_TRY(resolve(store, address, position));
        positions.push_back(position);
        return {};
    }
};

/// Appends the positions of an object where it is of the kind that the reader knows, which `known` tells.
using ObjectReader = Outcome (*)(const AddressedStore& addressed, const Ref<IUnknown>& object, PositionList& positions,
                                 bool& known);

/// Each value of a set or series, or of what walks one, is a name or a number. Arrays have values too, but are no list
/// of indices. The values are resolved as they come, since a series may have far more of them than the model has
/// columns.
Outcome readListedValues(const AddressedStore& addressed, const Ref<IUnknown>& object, PositionList& positions,
                         bool& known) {
    known = offersAny<ITARQSeries, ITARQSeriesEnum, ITARQSet, ITARQSetEnum>(object);
    if (!known) return {};
    ValueSource source;
    TARQ_TRY(openValueSource(object.get(), source));
    std::vector<Variant> address;
    std::string message;
    return walkValues(source, [&](Variant value) -> Outcome {
        address.clear();
        if (!convertElement(std::move(value), Kind::Empty, address, message)) {
            return {status::invalidArgument, message};
        }
        return addressed.append(address.front(), positions);
    });
}

/// The number in the object's own model; that a stale number is beyond this one's is found out as with any number.
template <class Interface>
Outcome readItem(const AddressedStore& addressed, const Ref<IUnknown>& object, PositionList& positions, bool& known) {
    const Ref<Interface> item = object.query<Interface>();
    known = static_cast<bool>(item);
    if (!known) return {};
    std::int32_t number = 0;
    TARQ_TRY(item->get_ModelIndex(&number));
    return addressed.append(number, positions);
}

using FamilyStart = Outcome (*)(const ModelStore& store, IUnknown* family, std::int32_t& number);

/// As many positions as the family has members, from its first one on.
template <class Interface, FamilyStart start>
Outcome readFamily(const AddressedStore& addressed, const Ref<IUnknown>& object, PositionList& positions, bool& known) {
    const Ref<Interface> family = object.query<Interface>();
    known = static_cast<bool>(family);
    if (!known) return {};
    std::int32_t number = 0;
    TARQ_TRY(start(addressed.store, family.get(), number));
    std::int32_t count = 0;
    TARQ_TRY(family->get_Count(&count));
    for (; count > 0; --count) {
        TARQ_TRY(addressed.append(number, positions));
        ++number;
    }
    return {};
}

/// The names that a family's enumerator walks.
template <class Interface>
Outcome readFamilyEnum(const AddressedStore& addressed, const Ref<IUnknown>& object, PositionList& positions,
                       bool& known) {
    const Ref<Interface> enumerator = object.query<Interface>();
    known = static_cast<bool>(enumerator);
    if (!known) return {};
    std::int32_t count = 0;
    TARQ_TRY(enumerator->get_Count(&count));
    for (std::int32_t item = 0; item < count; ++item) {
        std::string name;
        TARQ_TRY(enumerator->get_ItemName(item + 1, &name));
        TARQ_TRY(addressed.append(Variant(std::move(name)), positions));
    }
    return {};
}

/// What the two sides differ in. Readers are asked in their order.
struct SideRules {
    Resolve resolve;
    std::span<const ObjectReader> readers;
    std::string_view badObject;
};

constexpr std::array<ObjectReader, 4> columnReaders{&readListedValues, &readItem<ITARQVar>,
                                                    &readFamily<ITARQVarSet, &getFamilyColumnStart>,
                                                    &readFamilyEnum<ITARQVarSetEnum>};
constexpr std::array<ObjectReader, 4> rowReaders{&readListedValues, &readItem<ITARQRes>,
                                                 &readFamily<ITARQResSet, &getFamilyRowStart>,
                                                 &readFamilyEnum<ITARQResSetEnum>};

constexpr SideRules columnRules{&resolveColumn, columnReaders, "Bad type of object for col indices."};
constexpr SideRules rowRules{&resolveRow, rowReaders, "Bad type of object for row indices."};

Outcome readObject(const SideRules& rules, const AddressedStore& addressed, const Ref<IUnknown>& object,
                   PositionList& positions) {
    for (const ObjectReader read : rules.readers) {
        bool known = false;
        if (Outcome outcome = read(addressed, object, positions, known); known || !outcome.isOk()) return outcome;
    }
    return {status::invalidArgument, std::string(rules.badObject)};
}

template <class Element>
Outcome appendEach(const AddressedStore& addressed, std::span<const Element> addresses, PositionList& positions) {
    positions.reserve(addresses.size());
    for (const Element& address : addresses) {
        TARQ_TRY(addressed.append(address, positions));
    }
    return {};
}

Outcome readArray(const AddressedStore& addressed, const SafeArray& array, PositionList& positions) {
    // The usual lists are resolved where they are, as reading them would give the same values again.
    const bool isList = array.dimensions().size() == 1;
    if (isList && array.elementKind() == Kind::Long) {
        return appendEach(addressed, array.elements<std::int32_t>(), positions);
    }
    if (isList && array.elementKind() == Kind::Text) {
        return appendEach(addressed, array.elements<std::string>(), positions);
    }
    const auto isAddress = [](const Variant& value) { return value.isText() || value.is(Kind::Long); };
    if (isList && array.elementKind() == Kind::Variant && std::ranges::all_of(array.elements<Variant>(), isAddress)) {
        return appendEach(addressed, array.elements<Variant>(), positions);
    }
    std::vector<Variant> addresses;
    TARQ_TRY(appendArrayValues(array, Kind::Empty, addresses));
    return appendEach(addressed, std::span<const Variant>(addresses), positions);
}

}  // namespace

Outcome resolveIndexList(const ModelStore& store, const Variant& indices, IndexedSide side, PositionList& positions) {
    const SideRules& rules = side == IndexedSide::Columns ? columnRules : rowRules;
    const AddressedStore addressed{store, rules.resolve};
    const PlainValue value(indices);
    PositionList found;
    Outcome outcome;
    if (value->isArray()) {
        outcome = readArray(addressed, value->array(), found);
    } else if (value->isObject()) {
        outcome = readObject(rules, addressed, Ref<IUnknown>(value->object()), found);
    } else {
        outcome = addressed.append(*value, found);
    }
    if (outcome.isOk()) positions = std::move(found);
    return outcome;
}

}  // namespace tarq
