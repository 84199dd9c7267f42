// Python objects in the hands of the component.
#pragma once

#include <atomic>
#include <cstdint>
#include <exception>
#include <new>
#include <span>
#include <string_view>

#include "failures.h"
#include "interpreterlock.h"
#include "python.h"
#include "tarq/frame/dispatch.h"
#include "tarq/frame/objecterror.h"

namespace tarq::python {

/// A Python object as the component holds it: counted, and let go when the last reference is dropped, on whatever
/// thread. By itself it has an identity and no members; the kinds derived from it offer more.
class HeldObject : public IDispatch {
public:
    /// By which this package recognizes its own.
    static constexpr Guid id{0x5C0AF6F5, 0x6F5E, 0x4C55, {0x93, 0x44, 0x58, 0xC9, 0x93, 0x1E, 0x8B, 0x30}};

    explicit HeldObject(py::handle object);
    HeldObject(const HeldObject&) = delete;
    HeldObject& operator=(const HeldObject&) = delete;
    virtual ~HeldObject();

    Status QueryInterface(const Guid& interfaceId, void** out) final;
    std::uint32_t AddRef() final { return count_.fetch_add(1, std::memory_order_relaxed) + 1; }
    std::uint32_t Release() final;
    const InterfaceTable* GetMemberTable() override { return nullptr; }
    Status GetIDsOfNames(std::span<const std::string_view> names, std::int32_t* ids) override;
    Status Invoke(std::int32_t member, std::uint16_t kinds, const InvokeArguments& arguments, Variant* result,
                  std::uint32_t* argument) override;

    [[nodiscard]] py::handle object() const { return object_; }
    /// Adds a reference, unless the last one has just been dropped: the object can't be saved then.
    [[nodiscard]] bool addIfAlive();

protected:
    /// What is left to do with Python before the object is let go.
    virtual void leave() {}
    /// Whether the object answers to another interface than the identity, by its IDispatch.
    [[nodiscard]] virtual bool offers(const Guid& /*interfaceId*/) const { return false; }

private:
    std::atomic<std::uint32_t> count_{0};
    py::handle object_;  // one reference
};

/// The Python object that the component hands back, when it is one; else an empty one.
[[nodiscard]] py::object heldIn(const Ref<IUnknown>& object);

/// Runs Python code for the component: takes the interpreter lock, and makes an exception the failure of the call.
template <class Body>
Status callIn(const Body& body) noexcept {
    const InterpreterLock lock;
    if (!lock) return raise(Guid{}, "The interpreter is ending.", status::generalFailure);
    return withoutUnwinding([&] {
        try {
            return body();
        } catch (py::error_already_set& error) {
            return recordException(error);
        } catch (const std::bad_alloc&) {
            return status::outOfMemory;
        } catch (const std::exception& error) {
            return raise(Guid{}, error.what(), status::generalFailure);
        }
    });
}

/// The arguments of a call as a tuple of Python values.
[[nodiscard]] py::tuple pythonArguments(std::span<const Variant> values);

}  // namespace tarq::python
