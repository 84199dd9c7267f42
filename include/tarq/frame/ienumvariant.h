// IEnumVARIANT: walking the elements of a collection from outside.
#pragma once

#include <cstdint>

#include "tarq/frame/object.h"
#include "tarq/frame/variant.h"

namespace tarq {

class IEnumVARIANT : public IUnknown {
public:
    static constexpr Guid id{0x00020404, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
    /// What Next and Skip return when fewer elements are left than were asked for: success, but not all of it.
    static constexpr Status fewerLeft = status::none;

    /// Hands out the next `count` elements. `values` has room for as many; *fetched, which may be null when `count` is
    /// 1, gets how many were written. `fewerLeft` at the end.
    virtual Status Next(std::uint32_t count, Variant* values, std::uint32_t* fetched) = 0;
    /// Passes over the next `count` elements; `fewerLeft` at the end.
    virtual Status Skip(std::uint32_t count) = 0;
    /// Starts anew before the first element.
    virtual Status Reset() = 0;
    /// Another enumerator that goes on where this one is, with a reference.
    virtual Status Clone(IEnumVARIANT** copy) = 0;

protected:
    ~IEnumVARIANT() = default;
};

}  // namespace tarq
