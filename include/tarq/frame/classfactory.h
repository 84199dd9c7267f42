// IClassFactory: how a client that knows a class by its identifier makes its objects.
#pragma once

#include "tarq/frame/object.h"

namespace tarq {

class IClassFactory : public IUnknown {
public:
    static constexpr Guid id{0x00000001, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

    /// Makes an object and asks it for an interface. With `outer`, the object becomes an inner part of that one, which
    /// must ask for IUnknown, the inner identity (else noAggregation). nullPointer when `out` is null; on a failure
    /// there is no object and *out is null.
    virtual Status CreateInstance(IUnknown* outer, const Guid& interfaceId, void** out) = 0;

    /// Holds the library in memory, or lets it go again.
    virtual Status LockServer(bool locked) = 0;

protected:
    ~IClassFactory() = default;
};

}  // namespace tarq
