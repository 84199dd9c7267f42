#include "indexed/sets/elementenum.h"

#include <algorithm>
#include <utility>

#include "frame/memberguard.h"
#include "tarq/interfaces/classids.h"

namespace tarq {

Ref<IEnumVARIANT> ElementEnum::create(Elements elements, std::size_t position) {
    return Ref<IEnumVARIANT>(std::make_unique<ElementEnum>(std::move(elements), position).release());
}

Status ElementEnum::Next(std::uint32_t count, Variant* values, std::uint32_t* fetched) {
    if (values == nullptr) return status::nullPointer;
    if (fetched != nullptr) *fetched = 0;
    return guarded(classid::TARQSet, [&] {
        const std::size_t taken = std::min<std::size_t>(count, left());
        std::copy_n(elements_->begin() + static_cast<std::ptrdiff_t>(position_), taken, values);
        position_ += taken;
        if (fetched != nullptr) *fetched = static_cast<std::uint32_t>(taken);
        return taken == count ? status::ok : fewerLeft;
    });
}

Status ElementEnum::Skip(std::uint32_t count) {
    const std::size_t passed = std::min<std::size_t>(count, left());
    position_ += passed;
    return passed == count ? status::ok : fewerLeft;
}

Status ElementEnum::Reset() {
    position_ = 0;
    return status::ok;
}

Status ElementEnum::Clone(IEnumVARIANT** copy) {
    return guardedGet(copy, [&] { return create(elements_, position_).detach(); });
}

}  // namespace tarq
