// A run of the engine that the user can watch and stop.
#pragma once

#include <tarq/tarq.h>

#include "run/runresult.h"

namespace tarq::command {

/// Runs Optimize on this thread while another one shows the progress, if that is wanted, and Ctrl-C asks for a stop;
/// fills in the run's outcome.
void runWatched(ITARQModel& model, bool showProgress, RunResult& result);

}  // namespace tarq::command
