#include "indexed/arrays/ctarqarray.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "frame/memberguard.h"
#include "frame/result.h"
#include "indexed/arrays/arrayaccess.h"
#include "indexed/arrays/ctarqarrayenum.h"
#include "indexed/values/plainvalue.h"
#include "indexed/values/valueimport.h"

namespace tarq {
namespace {

Outcome refused(std::string message) { return {status::invalidArgument, std::move(message)}; }

std::string argumentText(std::size_t argument) { return std::string("Index ").append(std::to_string(argument + 1)); }

/// Whether an object is the array itself, by the identity of both.
bool isSame(ITARQArray& array, const Variant& value) {
    const Variant plain = value.copyDereferenced();
    if (!plain.isObject()) return false;
    const Ref<ITARQArray> other = Ref<IUnknown>(plain.object()).query<ITARQArray>();
    return other && other.query<IUnknown>() == Ref<ITARQArray>(&array).query<IUnknown>();
}

}  // namespace

Outcome CTARQArray::requireInitialized() const {
    if (store_.isInitialized()) return {};
    return {status::notInitialized, "TARQArray has not been initialized."};
}

Outcome CTARQArray::requireDimension(std::int32_t dimension, std::string_view otherwise) const {
    TARQ_TRY(requireInitialized());
    const auto count = static_cast<std::int32_t>(store_.dimensions()->size());
    return dimension < 1 || dimension > count ? refused(std::string(otherwise)) : Outcome();
}

Outcome CTARQArray::requireElement(std::int32_t dimension, std::int32_t element) const {
    if (element >= 1 && static_cast<std::size_t>(element) <= namesOf(dimension).size()) return {};
    return {status::elementOutOfRange, "Indexset element number is out of valid range."};
}

Outcome CTARQArray::select(const IndexArguments& arguments, Selection& selection) const {
    TARQ_TRY(requireInitialized());
    // Reading the arguments may call the client, which may change this array.
    const Dimensions base = store_.dimensions();
    TARQ_TRY(selectIndexsets(arguments, *base, selection));
    return store_.dimensions() == base ? Outcome() : changedMeanwhile();
}

Outcome CTARQArray::selectByNumber(const IndexArguments& arguments, Selection& selection) const {
    const std::vector<Indexset>& base = *store_.dimensions();
    std::array<std::int32_t, indexArgumentCount> numbers{};
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (isMissingIndex(*arguments[i])) continue;
        if (i >= base.size()) return refused("More indexparameters passed, than TARQArray has dimensions.");
        Variant number = arguments[i]->is(Kind::Long) ? *arguments[i] : arguments[i]->copyDereferenced();
        if (number.isObject() || !number.toInteger())
            return refused(argumentText(i) + " could not be converted to integer value.");
        if (number.integer() < 1) return refused(argumentText(i) + " is less than 1.");
        if (static_cast<std::size_t>(number.integer()) > base[i].size()) {
            return refused(argumentText(i) + " is too high.");
        }
        numbers[i] = number.integer();
    }
    TARQ_TRY(requireInitialized());
    for (std::size_t i = 0; i < base.size(); ++i) {
        if (i < numbers.size() && numbers[i] > 0) {
            selection.append(SelectedDimension(std::vector<std::int32_t>{numbers[i] - 1}));
        } else {
            selection.append(SelectedDimension(base[i].size()));
        }
    }
    return {};
}

Outcome CTARQArray::changedMeanwhile() {
    return {status::wrongState, "TARQArray has been changed while values were read for it."};
}

Outcome CTARQArray::put(const Selection& selection, const Variant& value) {
    const Dimensions selectedFrom = store_.dimensions();
    std::vector<Variant> values;
    // Without any cell nothing is stored, so a single value needs no copies, of which there may be far too many.
    const PlainValue plain(value);
    const bool isRepeated = !plain->isArray() && !plain->isObject();
    const std::size_t count =
        isRepeated && store_.count() == 0 ? std::min<std::size_t>(selection.count(), 1) : selection.count();
    Outcome expanded = expandValues(value, selection.sizes(), count, Kind::Empty, values);
    if (!expanded.isOk()) return expanded;
    if (store_.dimensions() != selectedFrom) return changedMeanwhile();
    return writeCells(store_, selection, values);
}

// NOLINTBEGIN(bugprone-reserved-identifier)
Status CTARQArray::Clear() {
    store_.clear();
    return status::ok;
}

Status CTARQArray::Init(const ValueList& ListOfIndexsets) {
    return guarded(classid::TARQArray, [&] {
        store_.clear();
        std::vector<Indexset> indexsets;
        if (Outcome read = readIndexsetList(ListOfIndexsets, indexsets); !read.isOk()) {
            store_.initializeWithoutCells(std::move(indexsets));
            return read;
        }
        return store_.initialize(std::move(indexsets));
    });
}

Status CTARQArray::SetValues(const ValueList& ListOfValues) {
    return guarded(classid::TARQArray, [&]() -> Outcome {
        TARQ_TRY(requireInitialized());
        std::vector<Variant> values;
        TARQ_TRY(flattenValueList(ListOfValues, values));
        return storeValues(store_, values);
    });
}

Status CTARQArray::get__NewEnum(Ref<IUnknown>* value) {
    const Variant missing = Variant::missing();
    return get_Enum(missing, missing, missing, missing, missing, value);
}

Status CTARQArray::get_Enum(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                            const Variant& Index5, Ref<IUnknown>* value) {
    if (value == nullptr) return status::nullPointer;
    void* made = nullptr;
    const Status created = createInstance<CTARQArrayEnum>(nullptr, ITARQArrayEnum::id, &made);
    if (!created.isOk()) return created;
    const Ref<ITARQArrayEnum> enumerator = Ref<ITARQArrayEnum>::adopt(static_cast<ITARQArrayEnum*>(made));
    const Status ready = enumerator->Init(static_cast<ITARQArray*>(this), Index1, Index2, Index3, Index4, Index5);
    if (ready.isOk()) *value = enumerator.query<IUnknown>();
    return ready;
}

Status CTARQArray::get_Value(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, Variant* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQArray, [&] {
        Selection selection;
        Outcome selected = select({&Index1, &Index2, &Index3, &Index4, &Index5}, selection);
        return selected.isOk() ? readCells(store_, selection, *value) : selected;
    });
}

Status CTARQArray::put_Value(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, const Variant& value) {
    return guarded(classid::TARQArray, [&]() -> Outcome {
        TARQ_TRY(requireInitialized());
        if (isSame(*this, value)) return {status::wrongState, "Cyclic reference to TARQArray."};
        Selection selection;
        Outcome selected = select({&Index1, &Index2, &Index3, &Index4, &Index5}, selection);
        return selected.isOk() ? put(selection, value) : selected;
    });
}

Status CTARQArray::get_ValueByNumIndex(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                                       const Variant& Index4, const Variant& Index5, Variant* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQArray, [&] {
        Selection selection;
        Outcome selected = selectByNumber({&Index1, &Index2, &Index3, &Index4, &Index5}, selection);
        return selected.isOk() ? readCells(store_, selection, *value) : selected;
    });
}

Status CTARQArray::put_ValueByNumIndex(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                                       const Variant& Index4, const Variant& Index5, const Variant& value) {
    return guarded(classid::TARQArray, [&]() -> Outcome {
        Selection selection;
        Outcome selected = selectByNumber({&Index1, &Index2, &Index3, &Index4, &Index5}, selection);
        if (!selected.isOk()) return selected;
        if (isSame(*this, value)) return {status::wrongState, "Cyclic reference to TARQArray."};
        return put(selection, value);
    });
}

Status CTARQArray::get_NumberOfIndexsets(std::int32_t* value) {
    return guardedGet(value, [&] { return static_cast<std::int32_t>(store_.dimensions()->size()); });
}

Status CTARQArray::get_SizeOfIndexset(std::int32_t Indexset, std::int32_t* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQArray, [&]() -> Outcome {
        TARQ_TRY(requireDimension(Indexset, "Illegal indexset specified."));
        *value = static_cast<std::int32_t>(namesOf(Indexset).size());
        return {};
    });
}

Status CTARQArray::get_IndexsetElement(std::int32_t Indexset, std::int32_t Element, std::string* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQArray, [&]() -> Outcome {
        TARQ_TRY(requireDimension(Indexset, "Illegal indexset specified."));
        TARQ_TRY(requireElement(Indexset, Element));
        *value = namesOf(Indexset)[static_cast<std::size_t>(Element) - 1];
        return {};
    });
}

Status CTARQArray::put_IndexsetElement(std::int32_t Indexset, std::int32_t Element, const std::string& value) {
    return guarded(classid::TARQArray, [&]() -> Outcome {
        TARQ_TRY(requireDimension(Indexset, "Bad indexset specified."));
        TARQ_TRY(requireElement(Indexset, Element));
        store_.rename(static_cast<std::size_t>(Indexset) - 1, static_cast<std::size_t>(Element) - 1, value);
        return {};
    });
}

Status CTARQArray::get_ValueByFullIndexName(const std::string& Indexname, Variant* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQArray, [&]() -> Outcome {
        TARQ_TRY(requireInitialized());
        const Variant* const cell = store_.cellNamed(Indexname);
        if (cell == nullptr) return refused("Index name not found.");
        *value = *cell;
        return {};
    });
}

Status CTARQArray::get_Count(std::int32_t* value) {
    return guardedGet(value, [&] { return store_.count(); });
}
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace tarq
