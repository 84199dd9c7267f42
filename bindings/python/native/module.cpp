// _tarq: the part of the package that is written in C++. Its Python part is in tarq/.
#include "python.h"

#include <string>

#include "call.h"
#include "description.h"
#include "enumerator.h"
#include "failures.h"
#include "interpreterlock.h"
#include "member.h"
#include "proxy.h"
#include "servers.h"
#include "sink.h"
#include "standin.h"
#include "tarq/component/classtable.h"
#include "tarq/component/createobject.h"
#include "tarq/frame/module.h"
#include "tarq/frame/objecterror.h"
#include "values.h"

namespace tarq::python {
namespace {

py::object create(const std::string& name) {
    clearLastError();
    const Ref<IUnknown> object = createObject(name);
    const ObjectError* failure = lastError();
    const Status status = object ? status::ok : failure == nullptr ? status::generalFailure : failure->status;
    setLastStatus(status);
    if (!object) throwFailure(status, name);
    return objectToPython(object);
}

/// For tests and extensions that have an object of the component's kind: a capsule named "tarq.IUnknown".
py::object adopt(const py::capsule& capsule) {
    auto* const object = static_cast<IUnknown*>(checked(PyCapsule_GetPointer(capsule.ptr(), "tarq.IUnknown")));
    return objectToPython(Ref<IUnknown>(object));
}

py::dict classTypes() {
    py::dict all;
    for (const ClassEntry& entry : classTable()) {
        if (entry.members == nullptr) continue;
        all[py::str(entry.name.data(), entry.name.size())] = interfaceType(entry.members()).type;
    }
    return all;
}

/// See getNumbered; for the package's own helpers.
py::list numbered(const py::object& object, const std::string& property, std::int32_t first, std::int32_t count) {
    const InterfaceType* type = isProxy(object) ? proxyOf(object).type : nullptr;
    const MemberInfo* get = type == nullptr ? nullptr : type->table->find(property);
    if (get == nullptr || get->kind != MemberKind::Get) throw py::type_error("no property " + property);
    return getNumbered(proxyOf(object), *get, first, count);
}

/// The statuses that the component returns, by name.
py::dict statusTable() {
    py::dict all;
    for (const status::Entry& entry : status::table()) {
        all[py::str(entry.name.data(), entry.name.size())] = entry.status.value();
    }
    return all;
}

void addTypes(py::module_& module) {
    makeMemberTypes();
    makeEnumeratorType();
    module.attr("Object") = makeProxyType();
    module.attr("StandIn") = makeStandInType();
}

void addFunctions(py::module_& module) {
    module.def("create", create, py::arg("name"),
               "Makes an object of a class.\n\nname: a class name (\"TARQModel\") or a ProgID (\"tarq.TARQModel\", "
               "\"tarq.TARQModel.1\"), in any case. Raises tarq.Error when there is no such class.");
    module.def(
        "advise", advise, py::arg("obj"), py::arg("sink"),
        "Subscribes to an object's events and returns the cookie that unadvise takes.\n\nsink: a callable, or an "
        "object that has a method named like the event. It may be called on another thread.");
    module.def("unadvise", unadvise, py::arg("obj"), py::arg("cookie"), "Ends a subscription to an object's events.");
    module.def("register_server", registerServer, py::arg("prog_id"), py::arg("factory"),
               "Enters an automation server for this process, such as \"MPLLib.OptiMax.1\".\n\nfactory: a callable "
               "without arguments that returns a tarq.Dispatch object or one of this package. A server entered under "
               "the name before, in any case, is replaced.");
    module.def("unregister_server", unregisterServer, py::arg("prog_id"),
               "Takes an automation server away; an unknown name does nothing.");
    module.def(
        "last_status", [] { return lastStatus().value(); },
        "Status of the calling thread's last call into the component, as an unsigned number.");
    module.def("live_objects", module::liveObjects, "How many objects of the component are alive in this process.");
    module.def("adopt", adopt, py::arg("capsule"), "A proxy of the object that a capsule points to.");
    module.def("register_enumeration", registerEnumeration, py::arg("name"), py::arg("members"));
    module.def("numbered", numbered, py::arg("object"), py::arg("property"), py::arg("first"), py::arg("count"));
    module.def("described_classes", describedClasses);
    module.def("described_enumerations", describedEnumerations);
    module.def("class_types", classTypes);
    module.def("close", closeInterpreter);
    module.attr("statuses") = statusTable();
}

}  // namespace
}  // namespace tarq::python

PYBIND11_MODULE(_tarq, module) {
    module.doc() = "The part of the package tarq that is written in C++.";
    tarq::python::addTypes(module);
    tarq::python::addFunctions(module);
    module.attr("version") = TARQ_VERSION;
}
