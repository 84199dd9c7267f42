// PlainValue: an argument as an operation looks at it, with one level of indirection removed.
#pragma once

#include "tarq/frame/variant.h"

namespace tarq {

/// What copyDereferenced gives, without a copy where the value is there already: arrays and texts may be large. Neither
/// the value nor what it refers to may change meanwhile.
class PlainValue {
public:
    explicit PlainValue(const Variant& value) : value_(&value) {
        if (const Variant* const referenced = value.referenced<Variant>()) {
            value_ = referenced;
        } else if (value.isByReference() && !value.isArray()) {
            copy_ = value.copyDereferenced();
            value_ = &copy_;
        }
    }
    PlainValue(const PlainValue&) = delete;
    PlainValue& operator=(const PlainValue&) = delete;
    ~PlainValue() = default;

    const Variant& operator*() const noexcept { return *value_; }
    const Variant* operator->() const noexcept { return value_; }

private:
    Variant copy_;
    const Variant* value_;
};

}  // namespace tarq
