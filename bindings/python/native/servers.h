// Automation servers in Python: what the component creates under a ProgID.
#pragma once

#include <string>

#include "python.h"

namespace tarq::python {

/// Enters a callable without arguments as the factory of the server `progId`. What it returns must be a stand-in or an
/// object of this package; anything else, and an exception, is a failed creation. Throws TypeError for what can't be
/// called.
void registerServer(const std::string& progId, const py::object& factory);

/// Takes a server away; an unknown one does nothing.
void unregisterServer(const std::string& progId);

}  // namespace tarq::python
