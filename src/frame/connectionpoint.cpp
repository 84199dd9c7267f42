#include "tarq/frame/connectionpoint.h"

#include <algorithm>

#include "tarq/frame/contained.h"

namespace tarq {

Status ConnectionPoint::QueryInterface(const Guid& interfaceId, void** out) {
    if (out == nullptr) return status::nullPointer;
    *out = nullptr;
    if (interfaceId != IUnknown::id && interfaceId != IConnectionPoint::id) return status::wrongClass;
    *out = static_cast<IConnectionPoint*>(this);
    AddRef();
    return status::ok;
}

Status ConnectionPoint::GetConnectionInterface(Guid* interfaceId) {
    if (interfaceId == nullptr) return status::nullPointer;
    *interfaceId = interfaceId_;
    return status::ok;
}

Status ConnectionPoint::GetConnectionPointContainer(IUnknown** container) {
    if (container == nullptr) return status::nullPointer;
    owner_.AddRef();
    *container = &owner_;
    return status::ok;
}

Status ConnectionPoint::Advise(IUnknown* sink, std::uint32_t* cookie) {
    if (sink == nullptr || cookie == nullptr) return status::nullPointer;
    *cookie = 0;
    return contained([&] {
        // A sink answers to the outgoing interface with what its events are called by.
        void* found = nullptr;
        if (!sink->QueryInterface(interfaceId_, &found).isOk()) return status::cannotConnect;
        Ref<IDispatch> subscriber = Ref<IDispatch>::adopt(static_cast<IDispatch*>(found));
        const std::lock_guard lock(mutex_);
        auto slot = std::ranges::find_if(slots_, [](const Ref<IDispatch>& taken) { return !taken; });
        if (slot == slots_.end()) slot = slots_.emplace(slots_.end());
        *slot = std::move(subscriber);
        *cookie = static_cast<std::uint32_t>(slot - slots_.begin()) + 1;
        return status::ok;
    });
}

Status ConnectionPoint::Unadvise(std::uint32_t cookie) {
    Ref<IDispatch> dropped;  // after the lock is gone: the release may call back
    const std::lock_guard lock(mutex_);
    if (cookie == 0 || cookie > slots_.size() || !slots_[cookie - 1]) return status::noConnection;
    std::swap(dropped, slots_[cookie - 1]);
    return status::ok;
}

Ref<IDispatch> ConnectionPoint::sinkIn(std::size_t slot) {
    const std::lock_guard lock(mutex_);
    return slot < slots_.size() ? slots_[slot] : Ref<IDispatch>();
}

Status ConnectionPoint::fire(std::int32_t event) {
    Status last;
    for (std::size_t slot = 0;; ++slot) {
        {
            const std::lock_guard lock(mutex_);
            if (slot >= slots_.size()) return last;
        }
        const Ref<IDispatch> sink = sinkIn(slot);
        if (!sink) continue;
        // A sink's exception is its own; the run goes on.
        last = contained([&] { return sink->Invoke(event, invoke::method, {}, nullptr, nullptr); });
    }
}

}  // namespace tarq
