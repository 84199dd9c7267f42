#include "tarq/frame/valuelist.h"

#include <new>

namespace tarq {

Status ValueList::create(std::int32_t lowerBound, std::int32_t upperBound, ValueList& list) {
    const std::int64_t length = std::int64_t{upperBound} - lowerBound + 1;
    if (length < 0) return status::invalidArgument;
    try {
        list = ValueList(std::vector<Variant>(static_cast<std::size_t>(length)), lowerBound);
    } catch (const std::bad_alloc&) {
        return status::outOfMemory;
    }
    return status::ok;
}

const Variant* ValueList::at(std::int64_t index) const noexcept {
    if (index < lowerBound() || index > upperBound()) return nullptr;
    return &values_[static_cast<std::size_t>(index - lowerBound_)];
}

Status ValueList::put(std::int64_t index, Variant value) {
    if (lockCount_ != 0) return status::wrongState;
    if (index < lowerBound() || index > upperBound()) return status::indexOutOfRange;
    values_[static_cast<std::size_t>(index - lowerBound_)] = std::move(value);
    return status::ok;
}

Status ValueList::append(Variant value) {
    if (lockCount_ != 0) return status::wrongState;
    values_.push_back(std::move(value));
    return status::ok;
}

}  // namespace tarq
