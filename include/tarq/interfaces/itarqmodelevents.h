// _ITARQModelEvents: what a model tells its clients.
#pragma once

#include "tarq/frame/dispatch.h"
#include "tarq/frame/export.h"

namespace tarq {

/// The outgoing interface of a model. A client implements it: an object whose Invoke is called, with the method flag
/// and without arguments, on the thread of the run.
class _ITARQModelEvents : public IDispatch {  // NOLINT(bugprone-reserved-identifier): the published name
public:
    static constexpr Guid id{0xA0EE6BAF, 0xCFCA, 0x4F6F, {0x9F, 0x46, 0x19, 0x8B, 0x0E, 0x4F, 0x9D, 0xEE}};

    /// Number of the event that every ending of a run fires.
    static constexpr std::int32_t optimizationFinished = 1;

    /// The events as data.
    TARQ_API static const InterfaceTable& memberTable();

protected:
    ~_ITARQModelEvents() = default;
};

}  // namespace tarq
