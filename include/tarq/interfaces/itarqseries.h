// ITARQSeries: an arithmetic sequence of doubles, told by its start, its end and its step.
//
// The order of the functions is the published one and is part of the binary interface.
#pragma once

#include <cstdint>
#include <string>

#include "tarq/frame/dispatch.h"
#include "tarq/frame/export.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"

namespace tarq {

class ITARQSeries : public IDispatch {
public:
    static constexpr Guid id{0xC69D863D, 0xA459, 0x467E, {0x82, 0xDE, 0x1A, 0x45, 0x27, 0x63, 0x88, 0x03}};

    /// The members as data.
    TARQ_API static const InterfaceTable& memberTable();

    /// Sets the sequence. A missing Step is 1, or -1 where Start isn't below End. On failure the series stays as it
    /// was.
    virtual Status Init(double Start, double End, const Variant& Step = Variant::missing()) = 0;

    /// A new enumerator (ITARQSeriesEnum, IEnumVARIANT) over the members.
    virtual Status get__NewEnum(Ref<IUnknown>* value) = 0;  // NOLINT(bugprone-reserved-identifier)

    /// Sets the sequence as Init does and hands back the series itself.
    virtual Status get_Series(double Start, double End, const Variant& Step, Ref<IUnknown>* value) = 0;

    /// Number of members; 1 before Init.
    virtual Status get_Count(std::int32_t* value) = 0;

protected:
    ~ITARQSeries() = default;
};

}  // namespace tarq
