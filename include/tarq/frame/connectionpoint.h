// Connection points: how a client subscribes to the events of an object.
//
// The client asks the object for its IConnectionPointContainer, that for the connection point of the outgoing
// interface, and passes its sink to Advise. The object calls the sinks late-bound, in the order of their slots.
#pragma once

#include <cstdint>
#include <mutex>
#include <vector>

#include "tarq/frame/dispatch.h"
#include "tarq/frame/object.h"

namespace tarq {

class IConnectionPoint : public IUnknown {
public:
    static constexpr Guid id{0xB196B286, 0xBAB4, 0x101A, {0xB6, 0x9C, 0x00, 0xAA, 0x00, 0x34, 0x1D, 0x07}};

    /// Identifier of the outgoing interface.
    virtual Status GetConnectionInterface(Guid* interfaceId) = 0;
    /// The object that has the events, with a reference.
    virtual Status GetConnectionPointContainer(IUnknown** container) = 0;
    /// Subscribes a sink and hands out the number by which the subscription is ended. nullPointer for a null pointer,
    /// cannotConnect when the sink doesn't offer the outgoing interface. Callable from any thread.
    virtual Status Advise(IUnknown* sink, std::uint32_t* cookie) = 0;
    /// Ends a subscription; noConnection when there is none of that number. A call of the sink that is under way on
    /// another thread goes on. Callable from any thread.
    virtual Status Unadvise(std::uint32_t cookie) = 0;

protected:
    ~IConnectionPoint() = default;
};

class IConnectionPointContainer : public IUnknown {
public:
    static constexpr Guid id{0xB196B284, 0xBAB4, 0x101A, {0xB6, 0x9C, 0x00, 0xAA, 0x00, 0x34, 0x1D, 0x07}};

    /// The connection point of an outgoing interface, with a reference; noConnection when the object has no such
    /// events.
    virtual Status FindConnectionPoint(const Guid& interfaceId, IConnectionPoint** point) = 0;

protected:
    ~IConnectionPointContainer() = default;
};

/// The connection point of one outgoing interface, a part of the object that has the events: it shares its life and its
/// count. A subscription takes the first slot that is free; its number is the slot's, from 1.
class TARQ_API ConnectionPoint final : public IConnectionPoint {
public:
    /// `owner` is the object that this is a part of.
    ConnectionPoint(IUnknown& owner, const Guid& interfaceId) : owner_(owner), interfaceId_(interfaceId) {}

    Status QueryInterface(const Guid& interfaceId, void** out) override;
    std::uint32_t AddRef() override { return owner_.AddRef(); }
    std::uint32_t Release() override { return owner_.Release(); }
    Status GetConnectionInterface(Guid* interfaceId) override;
    Status GetConnectionPointContainer(IUnknown** container) override;
    Status Advise(IUnknown* sink, std::uint32_t* cookie) override;
    Status Unadvise(std::uint32_t cookie) override;

    /// Calls member `event` of every sink, on this thread, without arguments. A sink may subscribe, unsubscribe and
    /// release meanwhile. Returns the last call's status.
    Status fire(std::int32_t event);

private:
    [[nodiscard]] Ref<IDispatch> sinkIn(std::size_t slot);

    IUnknown& owner_;
    Guid interfaceId_;
    std::mutex mutex_;                   // of the slots, never held while a sink is called or released
    std::vector<Ref<IDispatch>> slots_;  // empty references are free
};

}  // namespace tarq
