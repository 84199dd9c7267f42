#include "sink.h"

#include <memory>
#include <string>
#include <utility>

#include "callwatch.h"
#include "failures.h"
#include "heldobject.h"
#include "proxy.h"
#include "tarq/component/classtable.h"
#include "tarq/frame/connectionpoint.h"
#include "tarq/frame/membertable.h"
#include "values.h"

namespace tarq::python {
namespace {

/// The method of a sink for an event; empty when there is none.
py::object methodFor(py::handle sink, std::string_view event) {
    const py::str name(event.data(), event.size());
    if (py::hasattr(sink, name)) return sink.attr(name);
    const py::object wanted = name.attr("lower")();
    for (const py::handle candidate : py::module_::import("builtins").attr("dir")(sink)) {
        if (py::object(candidate.attr("lower")()).equal(wanted)) return sink.attr(candidate);
    }
    return {};
}

class Sink final : public HeldObject {
public:
    Sink(py::handle sink, const InterfaceTable& events) : HeldObject(sink), events_(events) {}

    Status Invoke(std::int32_t member, std::uint16_t /*kinds*/, const InvokeArguments& arguments, Variant* /*result*/,
                  std::uint32_t* /*argument*/) override {
        const MemberInfo* event = events_.find(member, invoke::method);
        if (event == nullptr) return status::unknownMember;
        return callIn([&] { return deliver(*event, arguments.values); });
    }

private:
    bool offers(const Guid& interfaceId) const override {
        return interfaceId == IDispatch::id || interfaceId == events_.id();
    }

    /// Nobody waits for the outcome of an event, so Python's own hook for lost exceptions gets them.
    Status deliver(const MemberInfo& event, std::span<const Variant> values) const {
        settleSignals();
        try {
            py::object handler = methodFor(object(), event.name);
            if (!handler) handler = py::reinterpret_borrow<py::object>(object());
            const py::tuple arguments = pythonArguments(values);
            clientResult([&] { return PyObject_CallObject(handler.ptr(), arguments.ptr()); });
            return status::ok;
        } catch (py::error_already_set& error) {
            if (keepInterrupt(error)) return status::generalFailure;
            error.restore();
            PyErr_WriteUnraisable(object().ptr());
            return status::generalFailure;
        }
    }

    const InterfaceTable& events_;
};

struct Source {
    Ref<IConnectionPoint> point;
    const InterfaceTable* events = nullptr;
    std::string name;
};

Source sourceOf(const py::object& object) {
    if (!isProxy(object)) throw py::type_error("an object of this package was expected");
    Source source;
    source.name = sourceName(object);
    const ClassEntry* entry = classOf(object);
    const auto container = objectOf(object).query<IConnectionPointContainer>();
    if (!container || entry == nullptr || entry->events == nullptr) {
        setLastStatus(status::noConnection);
        throwFailure(status::noConnection, source.name, "The object has no events.");
    }
    source.events = &entry->events();
    IConnectionPoint* found = nullptr;
    const Status result = container->FindConnectionPoint(source.events->id(), &found);
    source.point = Ref<IConnectionPoint>::adopt(found);
    setLastStatus(result);
    if (result.failed()) throwFailure(result, source.name);
    return source;
}

}  // namespace

std::uint32_t advise(const py::object& object, const py::object& sink) {
    const Source source = sourceOf(object);
    bool isSink = PyCallable_Check(sink.ptr()) != 0;
    for (const MemberInfo& event : source.events->members()) isSink = isSink || methodFor(sink, event.name);
    if (!isSink) {
        std::string names;
        for (const MemberInfo& event : source.events->members()) {
            names.append(names.empty() ? "" : " or ").append(event.name);
        }
        throw py::type_error("a sink is a callable or has a method named " + names);
    }
    const Ref<IUnknown> held(std::make_unique<Sink>(sink, *source.events).release());
    std::uint32_t cookie = 0;
    const Status result = source.point->Advise(held.get(), &cookie);
    setLastStatus(result);
    if (result.failed()) throwFailure(result, source.name);
    return cookie;
}

void unadvise(const py::object& object, std::uint32_t cookie) {
    const Source source = sourceOf(object);
    const Status result = source.point->Unadvise(cookie);
    setLastStatus(result);
    if (result.failed()) throwFailure(result, source.name, "There is no subscription with this cookie.");
}

}  // namespace tarq::python
