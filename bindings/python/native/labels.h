// Data of pandas, which has labels, on its way into slices, which take values by position.
#pragma once

#include "call.h"
#include "proxy.h"
#include "python.h"

namespace tarq::python {

/// Throws ValueError for a Series or DataFrame that is about to go into a slice of an array or a family, and whose
/// labels are the names of that slice in another order. `value` is the new value of a put, null for a method.
void checkLabels(const Proxy& proxy, const MemberInfo& member, const PythonArguments& arguments, PyObject* value);

}  // namespace tarq::python
