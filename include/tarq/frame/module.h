// What holds the component's library in memory: its live objects and the locks that clients put on it.
#pragma once

#include <cstdint>

#include "tarq/frame/export.h"

namespace tarq::module {

/// Counted by every object at its birth and death. Callable from any thread.
TARQ_API void objectBorn() noexcept;
TARQ_API void objectDied() noexcept;

/// Puts a lock on the module or takes one off.
TARQ_API void lock() noexcept;
TARQ_API void unlock() noexcept;

[[nodiscard]] TARQ_API std::int64_t liveObjects() noexcept;
/// True when neither an object nor a lock holds the module.
[[nodiscard]] TARQ_API bool canUnload() noexcept;

/// A number that the process hasn't seen before and won't see again, from 1. Callable from any thread.
[[nodiscard]] TARQ_API std::uint64_t uniqueNumber() noexcept;

}  // namespace tarq::module
