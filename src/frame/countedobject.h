// CountedObject: the reference count and the interface query of an object, written once for all classes.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>

#include "frame/object.h"

namespace tarq {

/// Implements IUnknown for `Derived`, which offers `Interfaces`, the default one first. The count starts at 0: the
/// creator takes the first reference. The last release deletes the object, on whatever thread that happens.
template <class Derived, class DefaultInterface, class... Interfaces>
class CountedObject : public DefaultInterface, public Interfaces... {
public:
    CountedObject(const CountedObject&) = delete;
    CountedObject& operator=(const CountedObject&) = delete;

    Status QueryInterface(const Guid& interfaceId, void** out) final {
        if (out == nullptr) return status::nullPointer;
        *out = interfaceId == IUnknown::id ? static_cast<DefaultInterface*>(this) : nullptr;
        offer<DefaultInterface>(interfaceId, *out);
        (offer<Interfaces>(interfaceId, *out), ...);
        if (*out == nullptr) return status::wrongClass;
        AddRef();
        return status::ok;
    }

    std::uint32_t AddRef() final { return count_.fetch_add(1, std::memory_order_relaxed) + 1; }

    std::uint32_t Release() final {
        // Every use of the object on other threads must happen before it is deleted here.
        const std::uint32_t left = count_.fetch_sub(1, std::memory_order_acq_rel) - 1;
        if (left == 0) std::default_delete<Derived>()(static_cast<Derived*>(this));
        return left;
    }

protected:
    CountedObject() = default;
    ~CountedObject() = default;

private:
    template <class Interface>
    void offer(const Guid& interfaceId, void*& out) {
        if (interfaceId == Interface::id) out = static_cast<Interface*>(this);
    }

    std::atomic<std::uint32_t> count_{0};
};

}  // namespace tarq
