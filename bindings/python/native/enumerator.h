// Iteration: the component's enumerators as Python's iterators.
#pragma once

#include "python.h"
#include "tarq/frame/object.h"

namespace tarq::python {

/// The type of iterators, made once.
void makeEnumeratorType();

/// An iterator over the elements that an enumerator hands out; `source` is the ProgID that failures bear. Throws
/// TypeError when the object isn't an enumerator.
[[nodiscard]] py::object iteratorOf(const Ref<IUnknown>& enumerator, const std::string& source);

}  // namespace tarq::python
