// How a C++ client subscribes to a model's event with a function.
#pragma once

#include <cstdint>
#include <functional>

#include "tarq/frame/export.h"
#include "tarq/frame/object.h"
#include "tarq/frame/status.h"

namespace tarq {

/// Has `handler` called at the end of every run of `model`, on the thread of the run: the caller's own for Optimize,
/// the run's for OptimizeAsync. It must not throw; it may start the next run. *cookie gets the number for unadvise.
/// noConnection when the object has no such event.
TARQ_API Status adviseFinished(IUnknown& model, std::function<void()> handler, std::uint32_t* cookie);

/// Ends a subscription; a call that is under way goes on. noConnection when there is none of that number.
TARQ_API Status unadviseFinished(IUnknown& model, std::uint32_t cookie);

}  // namespace tarq
