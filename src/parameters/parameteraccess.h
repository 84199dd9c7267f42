// Checked access to a ParameterTable by the names and values of late-bound clients.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/status.h"
#include "frame/variant.h"
#include "parameters/parametertable.h"

namespace tarq {

/// Reads a parameter or a result by name, without regard to case.
[[nodiscard]] Outcome readParameter(const ParameterTable& table, std::string_view name, Variant& value);

/// Checks and stores a parameter by name, without regard to case. `infinity` is the model's.
[[nodiscard]] Outcome writeParameter(ParameterTable& table, std::string_view name, const Variant& value,
                                     double infinity);

}  // namespace tarq
