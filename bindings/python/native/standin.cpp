#include "standin.h"

#include <algorithm>
#include <memory>
#include <new>
#include <string>

#include "heldobject.h"
#include "tarq/component/classtable.h"
#include "tarq/frame/guid.h"
#include "text.h"
#include "values.h"

namespace tarq::python {
namespace {

class StandIn;

/// An object of a class derived from tarq.Dispatch: knows its stand-in while there is one.
struct Dispatch {
    PyObject_HEAD StandIn* standIn;
};

py::object& standInType() {
    static auto* const type = new py::object;  // NOLINT(cppcoreguidelines-owning-memory)
    return *type;
}

bool isMethod(py::handle value) {
    return PyMethod_Check(value.ptr()) || PyFunction_Check(value.ptr()) || PyCFunction_Check(value.ptr());
}

class StandIn final : public HeldObject {
public:
    explicit StandIn(py::handle object) : HeldObject(object) {}

    Status GetIDsOfNames(std::span<const std::string_view> names, std::int32_t* ids) override {
        return callIn([&] { return findNames(names, ids); });
    }

    Status Invoke(std::int32_t member, std::uint16_t kinds, const InvokeArguments& arguments, Variant* result,
                  std::uint32_t* /*argument*/) override {
        return callIn([&] { return call(member, kinds, arguments, result); });
    }

private:
    void leave() override {
        auto* const known = reinterpret_cast<Dispatch*>(object().ptr());
        if (known->standIn == this) known->standIn = nullptr;
    }

    bool offers(const Guid& interfaceId) const override {
        if (interfaceId == IDispatch::id) return true;
        if (isCalledDirectly(interfaceId)) return false;
        bool found = false;
        // What isn't a list of texts lists no interface; the failure of that is the component's wrong-class answer.
        (void)callIn([&] {
            for (const py::handle listed : object().attr("_interfaces_")) {
                Guid known;
                found = found || (parseGuid(listed.cast<std::string>(), known) && known == interfaceId);
            }
            return status::ok;
        });
        return found;
    }

    Status findNames(std::span<const std::string_view> names, std::int32_t* ids) const {
        if (names.empty()) return status::ok;
        for (std::size_t i = 0; i < names.size(); ++i) ids[i] = memberid::unknown;
        const py::object wanted = textToPython(names.front()).attr("lower")();
        for (const auto& [number, name] : py::dict(object().attr("_dispids_"))) {
            if (py::object(name.attr("lower")()).equal(wanted)) ids[0] = number.cast<std::int32_t>();
        }
        // Python's methods take their arguments by position only: the caller can't know their parameters' names.
        return ids[0] == memberid::unknown || names.size() > 1 ? status::unknownName : status::ok;
    }

    Status call(std::int32_t member, std::uint16_t kinds, const InvokeArguments& arguments, Variant* result) const {
        const py::dict members(object().attr("_dispids_"));
        const py::int_ number(member);
        if (!members.contains(number)) return status::unknownMember;
        const py::str name(members[number]);
        const bool isPut = (kinds & invoke::put) != 0;
        // A put's new value is the only argument that comes by name and means its last parameter.
        if (arguments.names.size() > 0) return status::unknownParameterName;
        const py::tuple values = pythonArguments(arguments.values);
        return isPut ? put(name, values) : get(name, values, result);
    }

    Status put(const py::str& name, const py::tuple& values) const {
        const py::str putter = py::str("put_{}").format(name);
        if (py::hasattr(object(), putter)) {
            const py::object method = object().attr(putter);
            clientResult([&] { return PyObject_CallObject(method.ptr(), values.ptr()); });
            return status::ok;
        }
        if (values.size() != 1) return status::argumentCount;
        checked(withoutUnwinding(
            [&] { return PyObject_SetAttr(object().ptr(), name.ptr(), py::object(values[0]).ptr()); }));
        return status::ok;
    }

    Status get(const py::str& name, const py::tuple& values, Variant* result) const {
        py::object value = clientResult([&] { return PyObject_GetAttr(object().ptr(), name.ptr()); });
        if (isMethod(value)) {
            value = clientResult([&] { return PyObject_CallObject(value.ptr(), values.ptr()); });
        } else if (!values.empty()) {
            return status::argumentCount;
        }
        if (result != nullptr) *result = toVariant(value);
        return status::ok;
    }
};

PyObject* newDispatch(PyTypeObject* type, PyObject* /*arguments*/, PyObject* /*keywords*/) {
    PyObject* const made = type->tp_alloc(type, 0);
    if (made != nullptr) reinterpret_cast<Dispatch*>(made)->standIn = nullptr;
    return made;
}

void deallocateDispatch(PyObject* self) {
    PyTypeObject* const type = Py_TYPE(self);
    type->tp_free(self);
    Py_DECREF(type);
}

}  // namespace

py::object makeStandInType() {
    PyType_Slot slots[] = {
        slot(Py_tp_new, newDispatch),
        slot(Py_tp_dealloc, deallocateDispatch),
        slot(Py_tp_doc, "Base of classes whose objects stand in where the component calls late-bound."),
        {0, nullptr},
    };
    PyType_Spec spec{"tarq._tarq.StandIn", sizeof(Dispatch), 0, Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE, slots};
    standInType() = owned(PyType_FromSpec(&spec));
    return standInType();
}

bool isStandIn(py::handle value) {
    return PyObject_TypeCheck(value.ptr(), reinterpret_cast<PyTypeObject*>(standInType().ptr())) != 0;
}

Ref<IUnknown> standInOf(py::handle value) {
    if (!isStandIn(value)) return Ref<IUnknown>(std::make_unique<HeldObject>(value).release());
    auto* const known = reinterpret_cast<Dispatch*>(value.ptr());
    if (known->standIn != nullptr && known->standIn->addIfAlive()) return Ref<IUnknown>::adopt(known->standIn);
    known->standIn = std::make_unique<StandIn>(value).release();
    return Ref<IUnknown>(known->standIn);
}

}  // namespace tarq::python
