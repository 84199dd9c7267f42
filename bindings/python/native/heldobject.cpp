#include "heldobject.h"

#include <memory>

#include "tarq/frame/module.h"
#include "values.h"

namespace tarq::python {

HeldObject::HeldObject(py::handle object) : object_(object) {
    object_.inc_ref();
    module::objectBorn();
}

HeldObject::~HeldObject() { module::objectDied(); }

Status HeldObject::QueryInterface(const Guid& interfaceId, void** out) {
    if (out == nullptr) return status::nullPointer;
    *out = nullptr;
    const bool offered = interfaceId == IUnknown::id || interfaceId == id || offers(interfaceId);
    if (!offered) return status::wrongClass;
    if (interfaceId == id) {
        *out = this;
    } else {
        *out = static_cast<IDispatch*>(this);
    }
    AddRef();
    return status::ok;
}

std::uint32_t HeldObject::Release() {
    const std::uint32_t left = count_.fetch_sub(1, std::memory_order_acq_rel) - 1;
    if (left > 0) return left;
    // Without the interpreter the Python object is lost with it.
    if (const InterpreterLock lock; lock) {
        withoutUnwinding([this] {
            leave();
            object_.dec_ref();
        });
    }
    std::default_delete<HeldObject>()(this);
    return 0;
}

bool HeldObject::addIfAlive() {
    std::uint32_t count = count_.load(std::memory_order_relaxed);
    while (count > 0) {
        if (count_.compare_exchange_weak(count, count + 1, std::memory_order_acq_rel)) return true;
    }
    return false;
}

Status HeldObject::GetIDsOfNames(std::span<const std::string_view> /*names*/, std::int32_t* /*ids*/) {
    return status::unknownName;
}

Status HeldObject::Invoke(std::int32_t /*member*/, std::uint16_t /*kinds*/, const InvokeArguments& /*arguments*/,
                          Variant* /*result*/, std::uint32_t* /*argument*/) {
    return status::unknownMember;
}

py::object heldIn(const Ref<IUnknown>& object) {
    const auto held = object.query<HeldObject>();
    return held ? py::reinterpret_borrow<py::object>(held->object()) : py::object();
}

py::tuple pythonArguments(std::span<const Variant> values) {
    py::tuple arguments(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) arguments[i] = toPython(values[i]);
    return arguments;
}

}  // namespace tarq::python
