// ITARQArrayEnum: walking selected cells of an array, the last dimension fastest.
//
// The object is an IEnumVARIANT too. IsLast and IsBeyondLast give -1 for true and 0 for false. The order of the
// functions is the published one and is part of the binary interface.
#pragma once

#include <cstdint>
#include <string>

#include "tarq/frame/dispatch.h"
#include "tarq/frame/export.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"

namespace tarq {

class ITARQArrayEnum : public IDispatch {
public:
    static constexpr Guid id{0x3FF09D21, 0x8458, 0x4728, {0xB0, 0x17, 0x11, 0x26, 0xAE, 0xD8, 0x46, 0xA5}};

    /// The members as data.
    TARQ_API static const InterfaceTable& memberTable();

    /// The enumerator itself (IEnumVARIANT), started anew.
    virtual Status get__NewEnum(Ref<IUnknown>* value) = 0;  // NOLINT(bugprone-reserved-identifier)

    /// Starts to walk the cells of `TARQArray` that the indices select. The selection is fixed now.
    virtual Status Init(IUnknown* TARQArray, const Variant& Index1 = Variant::missing(),
                        const Variant& Index2 = Variant::missing(), const Variant& Index3 = Variant::missing(),
                        const Variant& Index4 = Variant::missing(), const Variant& Index5 = Variant::missing()) = 0;

    /// Goes to the first cell.
    virtual Status MoveFirst() = 0;

    /// Goes one cell on; status 1 at the end.
    virtual Status MoveNext() = 0;

    /// Value of the current cell.
    virtual Status get_CurrentItem(Variant* value) = 0;

    /// Full name of the current cell, as ".a.3".
    virtual Status get_CurrentIndexName(std::string* value) = 0;

    /// Whether the current cell is the last one.
    virtual Status get_IsLast(std::int32_t* value) = 0;

    /// Whether all cells have been passed.
    virtual Status get_IsBeyondLast(std::int32_t* value) = 0;

protected:
    ~ITARQArrayEnum() = default;
};

}  // namespace tarq
