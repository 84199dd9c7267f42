// The run of a thread: from its start to FreeMemory the engine belongs to the thread that started it.
//
// Each run has operations and values of its own, which no other thread touches. So a run that is given up while its
// thread is still at work in it leaves the next one alone.
#pragma once

#include <cstdint>

#include "runoperations.h"

namespace tarq::engine {

/// Waits for the calling thread's turn and begins a run. False when the thread is in a run already.
[[nodiscard]] bool beginRun();

/// The run of the calling thread; null when it has none, or one that was given up.
[[nodiscard]] RunOperations* ownRun() noexcept;

/// Ends the run of the calling thread, if there is one.
void endRun() noexcept;

/// Gives up the run of a thread that won't come back to end it, wherever it is. False when it has none. From any
/// thread.
bool abandonRun(std::int32_t thread) noexcept;

}  // namespace tarq::engine
