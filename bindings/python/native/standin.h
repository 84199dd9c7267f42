// Stand-ins: objects of classes derived from tarq.Dispatch, which the component calls as if they were its own kind.
#pragma once

#include "python.h"
#include "tarq/frame/object.h"

namespace tarq::python {

/// The base class of `tarq.Dispatch`.
[[nodiscard]] py::object makeStandInType();

/// Whether a value is of a class derived from `tarq.Dispatch`.
[[nodiscard]] bool isStandIn(py::handle value);

/// What an argument becomes that isn't a value: a stand-in, always the same one while the component holds it, or an
/// object without members.
[[nodiscard]] Ref<IUnknown> standInOf(py::handle value);

}  // namespace tarq::python
