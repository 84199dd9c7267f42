// Proxies: the component's objects as Python sees them.
//
// Each interface has one Python type, named after its class, whose attributes are the members of the interface's table.
// A proxy holds one reference to its object. Two proxies of one object are equal.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "python.h"
#include "tarq/component/classtable.h"
#include "tarq/frame/dispatch.h"
#include "tarq/frame/membertable.h"

namespace tarq::python {

/// What the Python type of an interface knows of it.
struct InterfaceType {
    const InterfaceTable* table = nullptr;
    const ClassEntry* entry = nullptr;  ///< null for an interface without a class of its own
    py::object type;
    std::string source;                      ///< versioned ProgID, of failures that don't tell theirs
    std::vector<py::object> members;         ///< descriptors by the position of the first member of their name
    const MemberInfo* defaultGet = nullptr;  ///< get or method
    const MemberInfo* defaultPut = nullptr;
    const MemberInfo* enumerator = nullptr;
    const MemberInfo* count = nullptr;

    /// The descriptor of a member by name, in any case; null when there is none.
    [[nodiscard]] PyObject* descriptor(std::string_view name) const;
};

struct Proxy {
    PyObject_HEAD IUnknown* object;  // one reference
    IDispatch* dispatch;             // one reference; null for an object without late binding
    const InterfaceType* type;       // null likewise
    PyObject* weakReferences;
};

/// Makes `tarq.Object`, the base of all proxies.
[[nodiscard]] py::object makeProxyType();

/// The type of an interface, made when it is first asked for.
[[nodiscard]] const InterfaceType& interfaceType(const InterfaceTable& table);

/// A proxy of an object, or the Python object that stands behind it, or None for a null object.
[[nodiscard]] py::object objectToPython(const Ref<IUnknown>& object);

[[nodiscard]] bool isProxy(py::handle value);
[[nodiscard]] inline Proxy& proxyOf(py::handle value) { return *reinterpret_cast<Proxy*>(value.ptr()); }
[[nodiscard]] inline py::handle handleOf(const Proxy& proxy) {
    return const_cast<PyObject*>(&proxy.ob_base);  // Python knows no const
}
/// The object behind a proxy.
[[nodiscard]] Ref<IUnknown> objectOf(py::handle proxy);
/// The class of a proxy's object, null when it has none of its own.
[[nodiscard]] const ClassEntry* classOf(py::handle proxy);
/// The versioned ProgID of a proxy's class.
[[nodiscard]] std::string sourceName(py::handle proxy);

}  // namespace tarq::python
