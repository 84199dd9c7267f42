// convertElement: the conversion of list elements, which words its own failure.
#pragma once

#include <string>
#include <vector>

#include "tarq/frame/variant.h"

namespace tarq {

/// Appends `value`, converted to `target`, to `list`. Empty as the target stands for any scalar and gives the form of
/// normalizeValue; Long, Double and Text convert to that kind, with a missing value giving 0, 0.0 or the empty text;
/// for other targets the value is appended unchanged. On failure the result is false, `message` says why and `list` is
/// unchanged.
[[nodiscard]] bool convertElement(Variant value, Kind target, std::vector<Variant>& list, std::string& message);

}  // namespace tarq
