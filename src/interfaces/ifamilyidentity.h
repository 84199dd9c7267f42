// IFamilyIdentity: by what a model knows a family again. Of the component's own use.
#pragma once

#include <cstdint>

#include "tarq/frame/object.h"

namespace tarq {

class IFamilyIdentity : public IUnknown {
public:
    static constexpr Guid id{0x030EB1AA, 0x1B84, 0x4328, {0xA7, 0x11, 0xC9, 0xC7, 0xDA, 0xF4, 0x91, 0x40}};

    /// The family's number, which no other one of the process has or will have. Not 0.
    virtual std::uint64_t familyNumber() const = 0;

protected:
    ~IFamilyIdentity() = default;
};

}  // namespace tarq
