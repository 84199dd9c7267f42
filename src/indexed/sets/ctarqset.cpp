#include "indexed/sets/ctarqset.h"

#include "frame/memberguard.h"
#include "frame/result.h"
#include "indexed/sets/ctarqsetenum.h"
#include "indexed/sets/elementenum.h"
#include "indexed/sets/setarithmetic.h"
#include "indexed/sets/setelements.h"
#include "tarq/interfaces/classids.h"

namespace tarq {

Status CTARQSet::Add(const ValueList& ListOfElements) {
    return guarded(classid::TARQSet, [&] { return appendElements(elements_, ListOfElements); });
}

Status CTARQSet::Addition(const Variant& Value) {
    return guarded(classid::TARQSet, [&] { return addToElements(elements_, Value); });
}

Status CTARQSet::Clear() {
    return guarded(classid::TARQSet, [&] {
        elements_.clear();
        return Outcome();
    });
}

Status CTARQSet::InsertAfter(std::int32_t Index, const ValueList& ListOfElements) {
    return guarded(classid::TARQSet, [&] { return insertElementsAfter(elements_, Index, ListOfElements); });
}

Status CTARQSet::InsertBefore(std::int32_t Index, const ValueList& ListOfElements) {
    return guarded(classid::TARQSet, [&] { return insertElementsBefore(elements_, Index, ListOfElements); });
}

Status CTARQSet::Multiplication(const Variant& Value) {
    return guarded(classid::TARQSet, [&] { return multiplyElements(elements_, Value); });
}

Status CTARQSet::Del(const ValueList& varpar) {
    return guarded(classid::TARQSet, [&] { return deleteElements(elements_, varpar); });
}

Status CTARQSet::get__NewEnum(Ref<IUnknown>* value) {
    return guardedGet(value, [&] { return Ref<IUnknown>(ElementEnum::create(elements_.share()).get()); });
}

Status CTARQSet::get_Set(const ValueList& varpar, Ref<IUnknown>* value) {
    if (value == nullptr) return status::nullPointer;
    TARQ_TRY(Clear());
    TARQ_TRY(Add(varpar));
    *value = Ref<IUnknown>(static_cast<ITARQSet*>(this));
    return status::ok;
}

Status CTARQSet::get_Count(std::int32_t* value) {
    return guardedGet(value, [&] { return elements_.count(); });
}

Status CTARQSet::get_DotProduct(const Variant& Vector, double* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQSet, [&] { return dotProduct(elements_, Vector, *value); });
}

Status CTARQSet::get_Enum(const Variant& Start, const Variant& End, const Variant& Step, Ref<IUnknown>* value) {
    if (value == nullptr) return status::nullPointer;
    void* made = nullptr;
    TARQ_TRY(createInstance<CTARQSetEnum>(nullptr, ITARQSetEnum::id, &made));
    const auto enumerator = Ref<ITARQSetEnum>::adopt(static_cast<ITARQSetEnum*>(made));
    TARQ_TRY(enumerator->Init(static_cast<ITARQSet*>(this), Start, End, Step));
    *value = Ref<IUnknown>(enumerator.get());
    return status::ok;
}

Status CTARQSet::get_Index(const Variant& Item, std::int32_t* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQSet, [&] { return findElement(elements_, Item, *value); });
}

// Refused as collections of the platform refuse, without a description.
Status CTARQSet::get_Item(std::int32_t Index, Variant* value) {
    if (value == nullptr) return status::nullPointer;
    if (Index < 1) return status::badArgument;
    if (Index > elements_.count()) return status::generalFailure;
    return guardedGet(value, [&] { return elements_.values()[static_cast<std::size_t>(Index) - 1]; });
}

Status CTARQSet::put_Item(std::int32_t Index, const Variant& value) {
    return guarded(classid::TARQSet, [&] { return putElement(elements_, Index, value); });
}

Status CTARQSet::get_FindNextIndex(const Variant& Item, std::int32_t StartIndex, std::int32_t* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQSet, [&] { return findNextElement(elements_, Item, StartIndex, *value); });
}

Status CTARQSet::get_Contains(const ValueList& varpar, std::int32_t* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQSet, [&] { return containsAll(elements_, varpar, *value); });
}

Status CTARQSet::get_IsIn(const ValueList& varpar, std::int32_t* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQSet, [&] { return isContainedIn(elements_, varpar, *value); });
}

}  // namespace tarq
