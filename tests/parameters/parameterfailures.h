// The failures that several tests of this folder expect.
#pragma once

#include "tests/support/outcomematchers.h"

namespace tarq {

inline auto isOutOfRange() { return failsWith(status::valueOutOfRange, "Passed value is not within valid range."); }
inline auto isTooLong() { return failsWith(status::textTooLong, "Passed string is to long."); }
inline auto isWrongType() { return failsWith(status::wrongKind, "Variant argument is of wrong type."); }

}  // namespace tarq
