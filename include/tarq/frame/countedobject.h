// CountedObject: reference count, interface query, aggregation and late binding of an object, written once for all
// classes.
#pragma once

#include <atomic>
#include <concepts>
#include <cstdint>
#include <memory>

#include "tarq/frame/contained.h"
#include "tarq/frame/dispatch.h"
#include "tarq/frame/membertable.h"
#include "tarq/frame/module.h"
#include "tarq/frame/object.h"
#include "tarq/frame/objecterror.h"

namespace tarq {

/// Implements IUnknown for `Derived`, which offers `Interfaces`, the default one first, and IDispatch where the default
/// interface is one. The count starts at 0: the creator takes the first reference. The last release deletes the object,
/// on whatever thread that happens.
///
/// An aggregated object is the inner part of another one: its interfaces count and query by the outer object, which
/// alone holds the inner identity (`identity`) and keeps the object alive by it.
template <class Derived, class DefaultInterface, class... Interfaces>
class CountedObject : public DefaultInterface, public Interfaces... {
public:
    CountedObject(const CountedObject&) = delete;
    CountedObject& operator=(const CountedObject&) = delete;

    Status QueryInterface(const Guid& interfaceId, void** out) final {
        return outer_ != nullptr ? outer_->QueryInterface(interfaceId, out) : queryOwn(interfaceId, out);
    }
    std::uint32_t AddRef() final { return outer_ != nullptr ? outer_->AddRef() : addOwn(); }
    std::uint32_t Release() final { return outer_ != nullptr ? outer_->Release() : releaseOwn(); }

    /// What a creator queries and counts by: the object itself, or of an inner object the part that the outer one
    /// doesn't hide.
    [[nodiscard]] IUnknown& identity() { return identity_; }

    /// Makes this the inner part of `outer`, which isn't counted since it outlives its parts. Before anybody has asked
    /// for an interface.
    void aggregate(IUnknown* outer) { outer_ = outer; }

    /// What is left to do once the object is whole; a failure ends its creation.
    Status finalConstruct() { return status::ok; }

    // Late binding, where the default interface offers it; otherwise these override nothing.
    // NOLINTBEGIN(modernize-use-override)
    const InterfaceTable* GetMemberTable() { return &DefaultInterface::memberTable(); }
    Status GetIDsOfNames(std::span<const std::string_view> names, std::int32_t* ids) {
        return DefaultInterface::memberTable().idsOfNames(names, ids);
    }
    Status Invoke(std::int32_t member, std::uint16_t kinds, const InvokeArguments& arguments, Variant* result,
                  std::uint32_t* argument) {
        clearLastError();
        return contained(
            [&] { return DefaultInterface::memberTable().invoke(*this, member, kinds, arguments, result, argument); });
    }
    // NOLINTEND(modernize-use-override)

protected:
    CountedObject() { module::objectBorn(); }
    ~CountedObject() { module::objectDied(); }

private:
    class Identity final : public IUnknown {
    public:
        explicit Identity(CountedObject& object) : object_(object) {}
        Status QueryInterface(const Guid& interfaceId, void** out) override {
            return object_.queryOwn(interfaceId, out);
        }
        std::uint32_t AddRef() override { return object_.addOwn(); }
        std::uint32_t Release() override { return object_.releaseOwn(); }

    private:
        CountedObject& object_;
    };

    Status queryOwn(const Guid& interfaceId, void** out) {
        if (out == nullptr) return status::nullPointer;
        *out = nullptr;
        if (interfaceId == IUnknown::id && outer_ != nullptr) {
            *out = static_cast<IUnknown*>(&identity_);
            addOwn();
            return status::ok;
        }
        if (interfaceId == IUnknown::id) *out = static_cast<IUnknown*>(static_cast<DefaultInterface*>(this));
        if constexpr (std::derived_from<DefaultInterface, IDispatch>) {
            if (interfaceId == IDispatch::id) *out = static_cast<IDispatch*>(static_cast<DefaultInterface*>(this));
        }
        offer<DefaultInterface>(interfaceId, *out);
        (offer<Interfaces>(interfaceId, *out), ...);
        if (*out == nullptr) return status::wrongClass;
        AddRef();
        return status::ok;
    }

    std::uint32_t addOwn() { return count_.fetch_add(1, std::memory_order_relaxed) + 1; }

    std::uint32_t releaseOwn() {
        // Every use of the object on other threads must happen before it is deleted here.
        const std::uint32_t left = count_.fetch_sub(1, std::memory_order_acq_rel) - 1;
        if (left == 0) std::default_delete<Derived>()(static_cast<Derived*>(this));
        return left;
    }

    template <class Interface>
    void offer(const Guid& interfaceId, void*& out) {
        if (interfaceId == Interface::id) out = static_cast<Interface*>(this);
    }

    std::atomic<std::uint32_t> count_{0};
    IUnknown* outer_ = nullptr;
    Identity identity_{*this};
};

/// Creates an object of a class, free-standing or as the inner part of `outer`, and asks it for an interface.
/// nullPointer when `out` is null, noAggregation when an outer object asks for another interface than IUnknown, by
/// which it keeps its inner part alive, outOfMemory when there is no memory, and what the final construction or the
/// query fails with; there is no object then and *out is null.
template <class Class>
Status createInstance(IUnknown* outer, const Guid& interfaceId, void** out) {
    if (out == nullptr) return status::nullPointer;
    *out = nullptr;
    if (outer != nullptr && interfaceId != IUnknown::id) return status::noAggregation;
    return contained([&]() -> Status {
        Class* const object = std::make_unique<Class>().release();
        object->aggregate(outer);
        // Held while it is made ready, so that a reference taken and dropped meanwhile doesn't end it.
        const Ref<IUnknown> held(&object->identity());
        if (const Status ready = object->finalConstruct(); !ready.isOk()) return ready;
        return held->QueryInterface(interfaceId, out);
    });
}

}  // namespace tarq
