// What the engine's callback does, and the only process-wide values of the component: the callback gets no argument, so
// it finds its run through them.
#pragma once

#include <atomic>

#include "engine/engineinterface.h"
#include "parameters/parametertable.h"

namespace tarq {

struct RunModel;

/// Shared by all runs of the process. Two runs at once overwrite each other's values: a stop request and the result
/// values then go to the later one.
struct ProcessRunState {
    /// Model of the run in progress, the latest one if there are several; null between runs. Stored with release and
    /// read with acquire, since an engine may call back on a thread of its own making.
    std::atomic<RunModel*> currentRunModel = nullptr;
    /// Whether the latest run passed "max" as its direction.
    std::atomic<bool> maximizing = false;
};

[[nodiscard]] ProcessRunState& processRunState();

/// Registered with the engine, which calls it at its break points: passes on a requested stop and refreshes the result
/// values. Does nothing when no run is in progress.
extern "C" void tarqEngineCallback();

/// Asks the engine for the 14 result values and stores what it delivers. The engine holds xzlbnd, xzubnd and xzbest in
/// minimization form, so they change sign when maximizing.
void readResultValues(EngineInterface& engine, ParameterTable& parameters);

}  // namespace tarq
