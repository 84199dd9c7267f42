#include "indexed/sets/setelements.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "frame/result.h"
#include "indexed/sets/elementlookup.h"
#include "indexed/values/valueimport.h"
#include "tarq/frame/safearray.h"

namespace tarq {
namespace {

Outcome refusedElement() { return {status::invalidArgument, "Only strings or numeric values allowed in TARQSets."}; }
Outcome badPosition() { return {status::indexOutOfRange, "Index out of valid range."}; }

Outcome takeElement(Variant value, std::vector<Variant>& taken) {
    if (!value.normalizeValue()) return refusedElement();
    taken.push_back(std::move(value));
    return {};
}

Variant elementValue(std::uint8_t element) { return Variant(std::int32_t{element}); }
template <class Element>
Variant elementValue(const Element& element) {
    return Variant(element);
}

template <class Element>
Outcome takeArrayElements(const SafeArray& array, std::vector<Variant>& taken) {
    if (array.dimensions().size() > 1) return {status::invalidArgument, "Multidimensional arrays not allowed."};
    const SafeArrayLock lock(array);
    const std::span<const Element> elements = array.elements<Element>();
    if (const std::size_t needed = taken.size() + elements.size(); needed > taken.capacity()) {
        taken.reserve(std::max(needed, 2 * taken.capacity()));
    }
    for (const Element& element : elements) {
        TARQ_TRY(takeElement(elementValue(element), taken));
    }
    return {};
}

struct ArrayReader {
    Kind elementKind;
    Outcome (*take)(const SafeArray& array, std::vector<Variant>& taken);
};

constexpr std::array arrayReaders{
    ArrayReader{Kind::UInt8, &takeArrayElements<std::uint8_t>},
    ArrayReader{Kind::Short, &takeArrayElements<std::int16_t>},
    ArrayReader{Kind::Long, &takeArrayElements<std::int32_t>},
    ArrayReader{Kind::Single, &takeArrayElements<float>},
    ArrayReader{Kind::Double, &takeArrayElements<double>},
    ArrayReader{Kind::Text, &takeArrayElements<std::string>},
    ArrayReader{Kind::Variant, &takeArrayElements<Variant>},
};

Outcome takeArray(const SafeArray& array, std::vector<Variant>& taken) {
    const auto* const reader = std::ranges::find(arrayReaders, array.elementKind(), &ArrayReader::elementKind);
    if (reader == arrayReaders.end()) {
        return {status::invalidArgument, "Passed array contains elements of an unsupported data type."};
    }
    return reader->take(array, taken);
}

Outcome takeObjectValues(IUnknown* object, std::vector<Variant>& taken) {
    std::vector<Variant> values;
    TARQ_TRY(collectObjectValues(object, Kind::Empty, values));
    for (Variant& value : values) {
        TARQ_TRY(takeElement(std::move(value), taken));
    }
    return {};
}

Outcome takeEntry(Variant entry, std::vector<Variant>& taken) {
    if (entry.isArray() && entry.isByReference()) return takeArray(entry.array(), taken);
    if (entry.isObject()) return takeObjectValues(entry.object(), taken);
    return takeElement(std::move(entry), taken);
}

/// Hands the values of a list to `apply` in batches as large as can be: an object has to find the set as the entries
/// before it leave it, since it may be an enumerator of that set.
template <class Apply>
Outcome walkValueBatches(const ValueList& list, const Apply& apply) {
    std::vector<Variant> taken;
    const ValueList::Walk walk = list.walk();
    for (const Variant& listed : walk) {
        Variant entry = listed.copyDereferenced();
        if (entry.isObject()) apply(std::exchange(taken, {}));
        if (Outcome outcome = takeEntry(std::move(entry), taken); !outcome.isOk()) {
            apply(std::move(taken));
            return outcome;
        }
    }
    apply(std::move(taken));
    return {};
}

Outcome insertElements(ElementList& elements, std::size_t position, const ValueList& list) {
    return walkValueBatches(list, [&](std::vector<Variant> values) {
        const std::size_t count = values.size();
        elements.insert(position, std::move(values));
        position += count;
    });
}

bool isPosition(const ElementList& elements, std::int32_t index) { return index >= 1 && index <= elements.count(); }

Outcome normalizedItem(const Variant& item, Variant& sought) {
    sought = item.copyDereferenced();
    if (sought.normalizeValue()) return {};
    return {status::invalidArgument, "Only strigs or numeric values allowed as item."};
}

/// Position from 1 of the first equal element from position `start` on, 0 when there is none.
std::int32_t indexFrom(const ElementList& elements, const Variant& sought, std::int32_t start) {
    const ElementList::Values& values = elements.values();
    const auto found = std::find_if(values.begin() + (start - 1), values.end(),
                                    [&](const Variant& element) { return sameElement(element, sought); });
    return found == values.end() ? 0 : static_cast<std::int32_t>(found - values.begin()) + 1;
}

void removeEqual(ElementList& elements, std::vector<Variant> values) {
    if (values.empty()) return;
    const ElementLookup removed(std::move(values));
    const auto isRemoved = [&](const Variant& element) { return removed.contains(element); };
    if (std::ranges::any_of(elements.values(), isRemoved)) std::erase_if(elements.change(), isRemoved);
}

}  // namespace

Outcome appendElements(ElementList& elements, const ValueList& list) {
    return walkValueBatches(list,
                            [&](std::vector<Variant> values) { elements.insert(elements.size(), std::move(values)); });
}

Outcome insertElementsBefore(ElementList& elements, std::int32_t index, const ValueList& list) {
    if (!isPosition(elements, index)) return badPosition();
    return insertElements(elements, static_cast<std::size_t>(index) - 1, list);
}

Outcome insertElementsAfter(ElementList& elements, std::int32_t index, const ValueList& list) {
    if (!isPosition(elements, index)) return badPosition();
    if (index == elements.count()) return appendElements(elements, list);
    return insertElements(elements, static_cast<std::size_t>(index), list);
}

Outcome deleteElements(ElementList& elements, const ValueList& list) {
    return walkValueBatches(list, [&](std::vector<Variant> values) { removeEqual(elements, std::move(values)); });
}

Outcome putElement(ElementList& elements, std::int32_t index, const Variant& value) {
    if (index < 1) return {status::invalidArgument, "Index may not be smaller than 1."};
    if (index > elements.count()) return {status::invalidArgument, "Index bigger than size of TARQSet."};
    Variant element = value.copyDereferenced();
    if (!element.normalizeValue()) {
        return {status::invalidArgument, "TARQSets may contain only strings or numeric values."};
    }
    elements.change()[static_cast<std::size_t>(index) - 1] = std::move(element);
    return {};
}

Outcome findElement(const ElementList& elements, const Variant& item, std::int32_t& index) {
    Variant sought;
    TARQ_TRY(normalizedItem(item, sought));
    index = indexFrom(elements, sought, 1);
    return {};
}

Outcome findNextElement(const ElementList& elements, const Variant& item, std::int32_t start, std::int32_t& index) {
    Variant sought;
    TARQ_TRY(normalizedItem(item, sought));
    if (!isPosition(elements, start)) return badPosition();
    index = indexFrom(elements, sought, start);
    return {};
}

Outcome containsAll(const ElementList& elements, const ValueList& list, std::int32_t& answer) {
    std::vector<Variant> values;
    TARQ_TRY(flattenValueList(list, values));
    const ElementLookup wanted(std::move(values));
    std::vector<bool> found(wanted.size());
    std::size_t missing = wanted.distinctCount();
    for (const Variant& element : elements.values()) {
        if (missing == 0) break;
        const std::int32_t position = wanted.find(element);
        if (position == ElementLookup::absent || found[static_cast<std::size_t>(position)]) continue;
        found[static_cast<std::size_t>(position)] = true;
        --missing;
    }
    answer = missing == 0 ? 1 : 0;
    return {};
}

Outcome isContainedIn(const ElementList& elements, const ValueList& list, std::int32_t& answer) {
    std::vector<Variant> values;
    TARQ_TRY(flattenValueList(list, values));
    const ElementLookup allowed(std::move(values));
    const bool all =
        std::ranges::all_of(elements.values(), [&](const Variant& element) { return allowed.contains(element); });
    answer = all ? 1 : 0;
    return {};
}

}  // namespace tarq
