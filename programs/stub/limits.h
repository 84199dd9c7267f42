// What a stub may cost: no more than one of its size can need.
#pragma once

#include <string>

namespace tarq::stub {

/// Limits the processor time and the memory of this process by the size of the stub's files; a process that goes beyond
/// is ended. False when the stub's files are there but are no regular ones, which could keep a reader waiting for ever.
[[nodiscard]] bool limitCosts(const std::string& stub);

}  // namespace tarq::stub
