// Unpredictable bits from the operating system.
#pragma once

#include <cstdint>

namespace tarq {

/// A random word that no input can be made to fit. One cheap system call.
[[nodiscard]] std::uint64_t entropyWord();

}  // namespace tarq
