#include "labels.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace tarq::python {
namespace {

bool isLabelled(PyObject* value) {
    const PyTypeObject* const common[] = {&PyFloat_Type, &PyLong_Type, &PyUnicode_Type, &PyList_Type, &PyTuple_Type};
    if (std::ranges::find(common, Py_TYPE(value)) != std::end(common) || isProxy(value)) return false;
    static auto* const name = PyUnicode_InternFromString("pandas");
    const py::handle pandas = PyDict_GetItemWithError(PyImport_GetModuleDict(), name);
    if (!pandas) return false;
    for (const char* type : {"Series", "DataFrame"}) {
        if (py::hasattr(pandas, type) && py::isinstance(value, pandas.attr(type))) return true;
    }
    return false;
}

/// Whether a member works on the slice that its arguments select.
bool selectsSlice(const MemberInfo& member) {
    return std::ranges::any_of(member.parameters, [](const MemberParameter& info) { return info.name == "Index1"; });
}

}  // namespace

void checkLabels(const Proxy& proxy, const MemberInfo& member, const PythonArguments& arguments, PyObject* value) {
    if (member.kind == MemberKind::Get || !selectsSlice(member)) return;
    const auto named = static_cast<std::size_t>(arguments.names == nullptr ? 0 : PyTuple_GET_SIZE(arguments.names));
    const std::span all(arguments.values, arguments.positional + named);
    if (value != nullptr ? !isLabelled(value) : std::ranges::none_of(all, isLabelled)) return;
    py::list positional;
    for (PyObject* argument : all.first(arguments.positional)) positional.append(py::handle(argument));
    py::dict byName;
    for (std::size_t i = 0; i < named; ++i) {
        const py::handle name = PyTuple_GET_ITEM(arguments.names, static_cast<Py_ssize_t>(i));
        byName[name] = py::handle(all[arguments.positional + i]);
    }
    if (value != nullptr) positional.insert(0, py::handle(value));
    const py::str memberName(member.name.data(), member.name.size());
    py::module_::import("tarq._labels").attr("check")(handleOf(proxy), memberName, positional, byName);
}

}  // namespace tarq::python
