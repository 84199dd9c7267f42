// ITARQSeriesEnum: walking a series. What clients use is the object's other interface, IEnumVARIANT.
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

class ITARQSeriesEnum : public IDispatch {
public:
    static constexpr Guid id{0x1E88BCB6, 0xEE7E, 0x4C0C, {0xB3, 0x67, 0xD5, 0x95, 0xF0, 0x46, 0x75, 0xAA}};

    /// The members as data.
    TARQ_API static const InterfaceTable& memberTable();

    /// For series: sets what is walked, without any check.
    virtual Status Init(double Start, double End, double Step) = 0;

protected:
    ~ITARQSeriesEnum() = default;
};

}  // namespace tarq
