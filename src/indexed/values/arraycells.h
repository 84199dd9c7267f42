// IArrayCells: the cells of an array as they lie in memory, for the component's own readers.
#pragma once

#include <span>

#include "indexed/values/ownpart.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Offered by arrays besides their published interface.
class IArrayCells : public IOwnPart {
public:
    static constexpr Guid id{0x707E5BE5, 0x5343, 0x42B0, {0xAF, 0xEE, 0x65, 0x6B, 0x1C, 0x50, 0xC3, 0x45}};

    /// All cells, the last dimension fastest; empty where the array has none or where they don't lie together. Valid
    /// until the array changes.
    virtual std::span<const Variant> rowMajorCells() = 0;

protected:
    ~IArrayCells() = default;
};

}  // namespace tarq
