#include "values.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>

#include "arrays.h"
#include "proxy.h"
#include "standin.h"
#include "tarq/interfaces/enumerationtables.h"
#include "text.h"

namespace tarq::python {
namespace {

/// From an enumeration to the dict of its members. Kept to the end of the process: the interpreter may be gone by then.
std::unordered_map<std::string_view, py::dict>& enumerations() {
    static auto* const all =
        new std::unordered_map<std::string_view, py::dict>;  // NOLINT(cppcoreguidelines-owning-memory)
    return *all;
}

Variant integerToVariant(PyObject* value) {
    int overflow = 0;
    const long long whole = PyLong_AsLongLongAndOverflow(value, &overflow);
    if (whole == -1 && overflow == 0 && PyErr_Occurred() != nullptr) throw py::error_already_set();
    if (overflow == 0 && whole >= std::numeric_limits<std::int32_t>::min() &&
        whole <= std::numeric_limits<std::int32_t>::max()) {
        return Variant(static_cast<std::int32_t>(whole));
    }
    const double real = PyLong_AsDouble(value);
    if (real == -1.0 && PyErr_Occurred() != nullptr) throw py::error_already_set();
    return Variant(real);
}

bool isOtherSequence(py::handle value) {
    // The protocol alone won't do: every class that can be subscripted fulfils it.
    static auto* const sequence = py::object(py::module_::import("collections.abc").attr("Sequence")).release().ptr();
    return checked(PyObject_IsInstance(value.ptr(), sequence)) != 0;
}

py::object errorToPython(std::uint32_t code) {
    return code == missingCode ? missingArgument() : owned(PyLong_FromUnsignedLong(code));
}

}  // namespace

Variant toVariant(py::handle value, NoneMeaning none) {
    PyObject* const object = value.ptr();
    if (PyFloat_CheckExact(object)) return Variant(PyFloat_AS_DOUBLE(object));
    if (PyBool_Check(object)) return Variant(object == Py_True);
    if (PyLong_Check(object)) return integerToVariant(object);
    if (PyUnicode_Check(object)) return Variant(TextBytes(value).copy());
    if (object == Py_None) return none == NoneMeaning::Missing ? Variant::missing() : Variant();
    if (isProxy(value)) return Variant(objectOf(value));
    if (PyList_Check(object) || PyTuple_Check(object)) return Variant(sequenceToArray(value));
    if (PyFloat_Check(object)) return Variant(PyFloat_AsDouble(object));
    if (value.is(missingArgument())) return Variant::missing();
    // Whatever else such a class offers, its objects are there to be called.
    if (isStandIn(value)) return Variant(standInOf(value));
    if (isFromNumPy(value)) return numPyToVariant(value);
    if (isOtherSequence(value)) return Variant(sequenceToArray(value));
    return Variant(standInOf(value));
}

py::object toPython(Variant value) {
    if (value.isByReference()) {
        if (value.isArray()) return arrayToPython(value.array());
        if (const bool* truth = value.referenced<bool>(); truth != nullptr) return py::bool_(*truth);
        return toPython(value.copyDereferenced());
    }
    if (value.isArray()) return arrayToPython(std::move(value.array()));
    switch (value.kind()) {
        case Kind::Empty:
        case Kind::Null:
            return py::none();
        case Kind::Bool:
            return py::bool_(value.truth());
        case Kind::Double:
        case Kind::Single:
        case Kind::Date:
            return owned(PyFloat_FromDouble(value.real()));
        case Kind::Text:
            return textToPython(value.text());
        case Kind::Object:
            return objectToPython(Ref<IUnknown>(value.object()));
        case Kind::Error:
            return errorToPython(value.errorCode());
        case Kind::Short:
        case Kind::Long:
        case Kind::Int8:
        case Kind::UInt8:
        case Kind::UInt16:
        case Kind::UInt32:
        case Kind::Int64:
        case Kind::Int:
        case Kind::UInt:
            return owned(PyLong_FromLongLong(value.wholeNumber()));
        case Kind::NarrowPointer:
        case Kind::WidePointer:
            return value.toText() ? textToPython(value.text()) : py::none();
        case Kind::Currency:
        case Kind::Decimal:
        case Kind::Variant:
            break;
    }
    return value.toReal() ? owned(PyFloat_FromDouble(value.real())) : py::none();
}

py::object toPython(Variant value, const EnumerationTable* enumeration) {
    if (enumeration != nullptr && value.is(Kind::Long)) {
        if (const auto found = enumerations().find(enumeration->name); found != enumerations().end()) {
            const py::int_ number(value.integer());
            PyObject* const member = PyDict_GetItemWithError(found->second.ptr(), number.ptr());
            if (member == nullptr) return number;
            return py::reinterpret_borrow<py::object>(member);
        }
    }
    return toPython(std::move(value));
}

void registerEnumeration(const std::string& name, py::dict members) {
    for (const EnumerationTable* table : publishedEnumerations) {
        if (table->name == name) enumerations()[table->name] = std::move(members);
    }
}

py::object missingArgument() {
    static auto* const missing = py::object(py::module_::import("tarq._missing").attr("Missing")).release().ptr();
    return py::reinterpret_borrow<py::object>(missing);
}

}  // namespace tarq::python
