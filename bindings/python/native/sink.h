// Events: Python sinks on the connection points of objects.
#pragma once

#include <cstdint>

#include "python.h"

namespace tarq::python {

/// Has `sink` called with an object's events: a callable with every one, another object by its methods of the events'
/// names, in any case. Returns the cookie of the subscription. Throws tarq.Error when the object has no events.
[[nodiscard]] std::uint32_t advise(const py::object& object, const py::object& sink);

/// Ends a subscription; throws tarq.Error when there is none of that cookie.
void unadvise(const py::object& object, std::uint32_t cookie);

}  // namespace tarq::python
