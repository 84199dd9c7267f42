// Calls of members: Python arguments in, the component's answer out.
#pragma once

#include <cstdint>
#include <span>

#include "proxy.h"
#include "python.h"
#include "tarq/frame/membertable.h"

namespace tarq::python {

/// Arguments as the interpreter passes them: the ones by position, then the ones by the names in the tuple `names`,
/// which may be null.
struct PythonArguments {
    PyObject* const* values = nullptr;
    std::size_t positional = 0;
    PyObject* names = nullptr;
};

/// Calls a method or gets a property. Returns its result, or a tuple of it and the out parameters where there are such;
/// None when the status tells that nothing was handed out. Throws tarq.Error.
[[nodiscard]] py::object callMember(const Proxy& proxy, const MemberInfo& member, const PythonArguments& arguments);

/// Puts a property. Throws tarq.Error.
void putMember(const Proxy& proxy, const MemberInfo& member, const PythonArguments& arguments, PyObject* value);

/// What a property of two numbers gives for `first` and each of 1 to `count`, without a call from Python for each.
/// Throws tarq.Error.
[[nodiscard]] py::list getNumbered(const Proxy& proxy, const MemberInfo& member, std::int32_t first,
                                   std::int32_t count);

/// A subscript as arguments: a tuple is several of them, a full slice the missing one.
class SubscriptArguments {
public:
    explicit SubscriptArguments(PyObject* key);
    [[nodiscard]] PythonArguments get() const { return {values_.data(), values_.size(), nullptr}; }

private:
    py::object missing_;
    PyObject* single_ = nullptr;
    std::vector<PyObject*> several_;
    std::span<PyObject* const> values_;
};

}  // namespace tarq::python
