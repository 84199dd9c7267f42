// IDimensions: the dimensions of an array or family as a whole, which its public members tell name by name. Of the
// component's own use.
#pragma once

#include "indexed/dimensions/indexset.h"
#include "indexed/values/ownpart.h"

namespace tarq {

class IDimensions : public IOwnPart {
public:
    static constexpr Guid id{0x5B0E7C94, 0x63A1, 0x4D0F, {0x9A, 0x27, 0xE4, 0x18, 0xB5, 0x0C, 0x72, 0x3D}};

    /// Never null.
    virtual Dimensions sharedDimensions() const = 0;

protected:
    ~IDimensions() = default;
};

}  // namespace tarq
