#include "servers.h"

#include <memory>

#include "heldobject.h"
#include "proxy.h"
#include "standin.h"
#include "tarq/component/serverregistry.h"

namespace tarq::python {
namespace {

Ref<IUnknown> create(const HeldObject& factory) {
    Ref<IUnknown> server;
    // The failure is the component's to word; an exception becomes its cause.
    (void)callIn([&] {
        const py::object made = clientResult([&] { return PyObject_CallNoArgs(factory.object().ptr()); });
        if (isProxy(made)) {
            server = objectOf(made);
        } else if (isStandIn(made)) {
            server = standInOf(made);
        }
        return status::ok;
    });
    return server;
}

}  // namespace

void registerServer(const std::string& progId, const py::object& factory) {
    if (PyCallable_Check(factory.ptr()) == 0) throw py::type_error("the factory of a server is a callable");
    const Ref<HeldObject> held(std::make_unique<HeldObject>(factory).release());
    tarq::registerServer(progId, [held] { return create(*held); });
}

void unregisterServer(const std::string& progId) { tarq::unregisterServer(progId); }

}  // namespace tarq::python
