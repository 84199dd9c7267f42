// Arrays on their way between Python and the component.
#pragma once

#include <optional>

#include "python.h"
#include "tarq/frame/safearray.h"

namespace tarq::python {

/// Whether a value is a NumPy array or scalar, or has one to offer. NumPy isn't imported to find that out.
[[nodiscard]] bool isFromNumPy(py::handle value);

/// A NumPy array as a typed array of its shape, copied as a block; bool, text and object arrays and such of other kinds
/// become arrays of Variants. A NumPy scalar or an array without dimensions becomes its Python value.
[[nodiscard]] Variant numPyToVariant(py::handle value);

/// A sequence as an array of Variants with lower bounds 0: of several dimensions when its elements are lists or tuples
/// of one shape all the way down.
[[nodiscard]] SafeArray sequenceToArray(py::handle sequence);

/// A numeric array as a NumPy array of its shape that takes over the storage, any other as nested lists.
[[nodiscard]] py::object arrayToPython(SafeArray array);

}  // namespace tarq::python
