// ISupportErrorInfo: by which a client finds out whether a failing call leaves a description.
#pragma once

#include "tarq/frame/object.h"

namespace tarq {

class ISupportErrorInfo : public IUnknown {
public:
    static constexpr Guid id{0xDF0B3D60, 0x548F, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};

    /// 0 when failures of that interface leave an ObjectError with the calling thread, else 1.
    virtual Status InterfaceSupportsErrorInfo(const Guid& interfaceId) = 0;

protected:
    ~ISupportErrorInfo() = default;
};

}  // namespace tarq
