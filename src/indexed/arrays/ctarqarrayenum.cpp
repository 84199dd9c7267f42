#include "indexed/arrays/ctarqarrayenum.h"

#include <string>

namespace tarq {
namespace {

constexpr std::int32_t isTrue = -1;
constexpr std::int32_t isFalse = 0;

Outcome notReady() { return {status::wrongState, "TARQArrayEnum is not initialized."}; }

}  // namespace

// NOLINTBEGIN(bugprone-reserved-identifier)
Status CTARQArrayEnum::Init(IUnknown* TARQArray, const Variant& Index1, const Variant& Index2, const Variant& Index3,
                            const Variant& Index4, const Variant& Index5) {
    return guarded(classid::TARQArrayEnum, [&]() -> Outcome {
        Ref<ITARQArray> array = Ref<IUnknown>(TARQArray).query<ITARQArray>();
        walk_ = SelectionWalk();
        if (!array) return {status::invalidArgument, "First paramter is no TARQArray."};
        return select(std::move(array), {&Index1, &Index2, &Index3, &Index4, &Index5}, {});
    });
}

Status CTARQArrayEnum::Next(std::uint32_t count, Variant* values, std::uint32_t* fetched) {
    if (values == nullptr && count > 0) return status::nullPointer;
    if (!initialized_) return guarded(classid::TARQArrayEnum, notReady);
    return fetchItems(count, values, fetched, [](ITARQArray& array, const std::string& name, Variant& value) {
        return array.get_ValueByFullIndexName(name, &value);
    });
}

Status CTARQArrayEnum::get__NewEnum(Ref<IUnknown>* value) {
    if (!initialized_) return guarded(classid::TARQArrayEnum, notReady);
    if (value == nullptr) return status::nullPointer;
    walk_.reset();
    *value = Ref<IUnknown>(static_cast<IEnumVARIANT*>(this));
    return status::ok;
}

Status CTARQArrayEnum::MoveNext() {
    Variant passed;
    return Next(1, &passed, nullptr);
}

Outcome CTARQArrayEnum::requireItem() const {
    if (walk_.position() < walk_.count()) return {};
    return {status::componentFailure, "No acces beyond last element of enumerator."};
}

Status CTARQArrayEnum::get_CurrentItem(Variant* value) {
    if (value == nullptr) return status::nullPointer;
    std::string name;
    const Status found = guarded(classid::TARQArrayEnum, [&] {
        Outcome item = requireItem();
        if (item.isOk()) name = walk_.name(walk_.position());
        return item;
    });
    if (!found.isOk()) return found;
    const Ref<ITARQArray> parent = parent_;  // which another Init may let go of meanwhile
    return contained([&] { return parent->get_ValueByFullIndexName(name, value); });
}

Status CTARQArrayEnum::get_CurrentIndexName(std::string* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQArrayEnum, [&] {
        Outcome item = requireItem();
        if (item.isOk()) *value = walk_.name(walk_.position());
        return item;
    });
}

Status CTARQArrayEnum::get_IsLast(std::int32_t* value) {
    return guardedGet(value, [&] { return walk_.position() + 1 == walk_.count() ? isTrue : isFalse; });
}

Status CTARQArrayEnum::get_IsBeyondLast(std::int32_t* value) {
    return guardedGet(value, [&] { return walk_.position() + 1 > walk_.count() ? isTrue : isFalse; });
}
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace tarq
