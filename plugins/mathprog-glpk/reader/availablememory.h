// How much memory this process may still take without harm to others.
#pragma once

#include <cstdint>

namespace tarq::mathprog {

/// Bytes that are free now, on the machine and, where there is one, in the container; a guess where the system doesn't
/// tell.
[[nodiscard]] std::uint64_t availableMemory();

}  // namespace tarq::mathprog
