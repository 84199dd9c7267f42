// A run of the engine that the user can watch and stop.
#pragma once

#include <tarq/tarq.h>

#include "runresult.h"

namespace tarq::command {

/// Runs Optimize while a thread of its own shows the progress and listens for Ctrl-C, and fills in the run's outcome.
/// Blocks until the run has ended.
void runWatched(ITARQModel& model, bool showProgress, RunResult& result);

}  // namespace tarq::command
