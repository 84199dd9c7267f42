// ITARQResSetEnum: walking selected members of a family of rows, the last dimension fastest.
//
// The object is an IEnumVARIANT too. Each item is a new row object (ITARQRes). The order of the functions is the
// published one and is part of the binary interface.
#pragma once

#include <cstdint>
#include <string>

#include "tarq/frame/dispatch.h"
#include "tarq/frame/export.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"

namespace tarq {

class ITARQResSetEnum : public IDispatch {
public:
    static constexpr Guid id{0xADA730FE, 0x4C52, 0x4E0D, {0x8F, 0x47, 0xD4, 0x6E, 0x20, 0x45, 0xCA, 0x5F}};

    /// The members as data.
    TARQ_API static const InterfaceTable& memberTable();

    /// The enumerator itself (IEnumVARIANT), started anew.
    virtual Status get__NewEnum(Ref<IUnknown>* value) = 0;  // NOLINT(bugprone-reserved-identifier)

    /// Starts to walk the members of `TARQResSet` that the indices select. Selection and names are fixed now.
    virtual Status Init(IUnknown* TARQResSet, const Variant& Index1 = Variant::missing(),
                        const Variant& Index2 = Variant::missing(), const Variant& Index3 = Variant::missing(),
                        const Variant& Index4 = Variant::missing(), const Variant& Index5 = Variant::missing()) = 0;

    /// Starts anew.
    virtual Status VB_Reset() = 0;

    /// Passes over items; status 1, without a move, where that would reach the end.
    virtual Status VB_Skip(std::int32_t ItemsToSkip) = 0;

    /// The next item; status 1 at the end.
    virtual Status VB_Next(Variant* Items, std::int32_t* NumberOfItemsFetched) = 0;

    /// Number of selected members.
    virtual Status get_Count(std::int32_t* value) = 0;

    /// Name of the selected member with this number, from 1.
    virtual Status get_ItemName(std::int32_t ItemIndex, std::string* value) = 0;

protected:
    ~ITARQResSetEnum() = default;
};

}  // namespace tarq
