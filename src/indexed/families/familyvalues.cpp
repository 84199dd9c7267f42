// Family: reading and writing selected members.
#include <algorithm>
#include <type_traits>
#include <utility>

#include "frame/result.h"
#include "indexed/families/family.h"
#include "indexed/values/plainvalue.h"
#include "indexed/values/valueimport.h"
#include "tarq/frame/safearray.h"

namespace tarq {
namespace {

/// How a value is handed out: a double as it is, a published enumeration as a Long.
template <class Value>
using Element = std::conditional_t<std::is_enum_v<Value>, std::int32_t, Value>;

/// One scalar where all values are equal, else an array of the sizes. A single value is one also where it is no number.
template <class Value>
Outcome bulkResult(std::span<const std::size_t> sizes, const std::vector<Value>& values, Variant& result) {
    const auto isFirst = [&](Value value) { return value == values.front(); };
    if (!values.empty() && std::all_of(values.begin() + 1, values.end(), isFirst)) {
        result = Variant(values.front());
        return {};
    }
    std::vector<Dimension> dimensions;
    for (const std::size_t size : sizes) dimensions.push_back({0, static_cast<std::uint32_t>(size)});
    SafeArray array;
    TARQ_TRY(SafeArray::create(elementKindOf<Value>, dimensions, array));
    std::ranges::copy(values, array.elements<Value>().begin());
    result = Variant(std::move(array));
    return {};
}

std::size_t ordinalOf(const std::vector<Indexset>& dimensions, std::span<const std::size_t> positions) {
    std::size_t ordinal = 0;
    for (std::size_t i = 0; i < positions.size(); ++i) ordinal = ordinal * dimensions[i].size() + positions[i];
    return ordinal;
}

}  // namespace

Outcome Family::select(const IndexArguments& indices, SelectedMembers& members) const {
    TARQ_TRY(requireInitialized());
    members.model = model_;
    members.prefix = name_;
    members.dimensions = dimensions_;
    return selectIndexsets(indices, *members.dimensions, members.selection);
}

Outcome Family::memberName(const IndexArguments& indices, std::string& name) const {
    SelectedMembers members;
    TARQ_TRY(select(indices, members));
    if (members.selection.count() != 1) return {status::wrongState, std::string(side_.onlyOne)};
    return members.selection.walk([&](std::span<const std::size_t> positions) -> Outcome {
        name = fullIndexName(members.prefix, *members.dimensions, positions);
        return {};
    });
}

template <class Value>
Outcome Family::read(MemberGet<Value> get, const IndexArguments& indices, Variant* value) const {
    TARQ_TRY(requireInitialized());
    if (value == nullptr) return status::nullPointer;
    SelectedMembers members;
    TARQ_TRY(select(indices, members));
    std::vector<Element<Value>> values;
    // More than there are members are selected where Init failed, and then one of the first isn't there.
    values.reserve(std::min(members.selection.count(), addedCount_));
    Outcome read = members.selection.walk([&](std::span<const std::size_t> positions) -> Outcome {
        Value field{};
        const Variant name(fullIndexName(members.prefix, *members.dimensions, positions));
        const Status got = (members.model.get()->*get)(name, &field);
        if (got.isOk()) values.push_back(static_cast<Element<Value>>(field));
        return got;
    });
    return read.isOk() ? bulkResult(members.selection.sizes(), values, *value) : read;
}

template Outcome Family::read(MemberGet<double>, const IndexArguments&, Variant*) const;
template Outcome Family::read(MemberGet<TARQColType>, const IndexArguments&, Variant*) const;
template Outcome Family::read(MemberGet<TARQColRowStatusType>, const IndexArguments&, Variant*) const;

Outcome Family::write(MemberChange change, Kind target, const IndexArguments& indices, const Variant& value) {
    SelectedMembers members;
    TARQ_TRY(select(indices, members));
    const Selection& selection = members.selection;
    std::vector<Variant> values;
    // Without members, as after an Init that failed, nothing is written, so a single value needs no copies, of which
    // there may be far too many.
    const PlainValue plain(value);
    const bool isRepeated = !plain->isArray() && !plain->isObject();
    const std::size_t count =
        isRepeated && addedCount_ == 0 ? std::min<std::size_t>(selection.count(), 1) : selection.count();
    Outcome expanded = expandValues(value, selection.sizes(), count, target, values);
    if (!expanded.isOk()) return expanded;
    // An object that was read may have called this family.
    if (dimensions_ != members.dimensions) return changedMeanwhile();
    std::int32_t start = 0;
    TARQ_TRY(findStart(*members.model, start));
    std::size_t turn = 0;
    return selection.walk([&](std::span<const std::size_t> positions) -> Outcome {
        std::int32_t number = 0;
        Outcome there = numberInModel(start, ordinalOf(*members.dimensions, positions), number);
        if (!there.isOk()) return there;
        // The model may call the family too, when it is a client's.
        if (turn == values.size()) return changedMeanwhile();
        return change(*members.model, number - 1, values[turn++]);
    });
}

}  // namespace tarq
