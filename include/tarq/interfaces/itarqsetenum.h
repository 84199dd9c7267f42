// ITARQSetEnum: walking a part of a set, from an item to an item.
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

class ITARQSetEnum : public IDispatch {
public:
    static constexpr Guid id{0x7758AB12, 0x984D, 0x4F44, {0x91, 0x55, 0x4A, 0x7B, 0x1A, 0xB0, 0x46, 0x04}};

    /// The members as data.
    TARQ_API static const InterfaceTable& memberTable();

    /// Starts to walk `TARQSet` from the first element that equals Start (the first one where it is missing) to the
    /// first that equals End (the last one), every Step positions (1), which may be negative.
    virtual Status Init(IUnknown* TARQSet, const Variant& Start = Variant::missing(),
                        const Variant& End = Variant::missing(), const Variant& Step = Variant::missing()) = 0;

    /// Goes to the start.
    virtual Status MoveFirst() = 0;

    /// Goes one item on; status 1 at the end.
    virtual Status MoveNext() = 0;

    /// The enumerator itself (IEnumVARIANT), started anew.
    virtual Status get__NewEnum(Ref<IUnknown>* value) = 0;  // NOLINT(bugprone-reserved-identifier)

    /// The current item; fails as Item of the set does when there is none.
    virtual Status get_CurrentItem(Variant* value) = 0;

    /// Position of the current item in the set, from 1; beyond the end too.
    virtual Status get_CurrentIndex(std::int32_t* value) = 0;

    /// Whether the current item is the last one.
    virtual Status get_IsLast(std::int32_t* value) = 0;

    /// Whether all items have been passed.
    virtual Status get_IsBeyondLast(std::int32_t* value) = 0;

protected:
    ~ITARQSetEnum() = default;
};

}  // namespace tarq
