// What every object has: an identity, a count of references and a way to ask for its interfaces.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "tarq/frame/export.h"
#include "tarq/frame/guid.h"
#include "tarq/frame/status.h"

namespace tarq {

/// Base of all interfaces. Objects are born with a count of 0; whoever asks for an interface owns one reference to it.
class IUnknown {
public:
    static constexpr Guid id{0x00000000, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

    /// Sets *out to the interface `interfaceId` with one reference added. wrongClass and a null pointer when the object
    /// doesn't offer it, nullPointer when `out` is null.
    virtual Status QueryInterface(const Guid& interfaceId, void** out) = 0;
    /// Adds a reference and returns the new count. Callable from any thread.
    virtual std::uint32_t AddRef() = 0;
    /// Drops a reference and returns the new count; the last one deletes the object. Callable from any thread.
    virtual std::uint32_t Release() = 0;

protected:
    ~IUnknown() = default;
};

/// Counted reference to an interface.
template <class Interface>
class Ref {
public:
    Ref() = default;
    Ref(std::nullptr_t) {}
    explicit Ref(Interface* object) : object_(object) {
        if (object_ != nullptr) object_->AddRef();
    }
    Ref(const Ref& other) : Ref(other.object_) {}
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Ref& operator=(Ref other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Ref() {
        if (object_ != nullptr) object_->Release();
    }

    /// Takes over a reference that the caller already owns.
    static Ref adopt(Interface* object) {
        Ref reference;
        reference.object_ = object;
        return reference;
    }
    /// Gives up the reference without dropping it.
    [[nodiscard]] Interface* detach() { return std::exchange(object_, nullptr); }

    [[nodiscard]] Interface* get() const { return object_; }
    Interface* operator->() const { return object_; }
    Interface& operator*() const { return *object_; }  // NOLINT(clang-analyzer-core.uninitialized.UndefReturn)
    explicit operator bool() const { return object_ != nullptr; }
    friend bool operator==(const Ref&, const Ref&) = default;

    /// The object's interface `Other`, or an empty reference when it doesn't offer it.
    template <class Other>
    [[nodiscard]] Ref<Other> query() const {
        void* found = nullptr;
        if (object_ == nullptr || !object_->QueryInterface(Other::id, &found).isOk()) return {};
        return Ref<Other>::adopt(static_cast<Other*>(found));
    }

private:
    Interface* object_ = nullptr;
};

}  // namespace tarq
