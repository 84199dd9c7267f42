// FamilyMark: by what a column or row knows its family, without holding it.
#pragma once

#include <cstddef>
#include <cstdint>

#include "tarq/frame/object.h"

namespace tarq {

/// A mark may outlive its family, whose address another object can get then. So it is made of the number that each
/// family has for itself. Of objects that are no families, which clients may pass too, it is made of the address, and
/// no family ever has such a mark.
class FamilyMark {
public:
    /// No family.
    FamilyMark() = default;
    /// The mark of an object, through whichever of its interfaces it comes; none of a null one.
    static FamilyMark of(IUnknown* family);

    [[nodiscard]] std::uint64_t value() const noexcept { return value_; }
    friend bool operator==(FamilyMark, FamilyMark) = default;
    friend bool operator==(FamilyMark mark, std::nullptr_t) noexcept { return mark.value_ == 0; }

private:
    explicit FamilyMark(std::uint64_t value) : value_(value) {}

    std::uint64_t value_ = 0;
};

}  // namespace tarq
