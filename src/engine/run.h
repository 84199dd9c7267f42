// runOptimization: one whole run of the engine on one model.
//
// The engine's state is process-wide. What comes of several runs at once is the engine's to say: ours lets the later
// ones wait in their start. Nothing refuses an edit of the model during a run; it stays out of the moments in which the
// run reads the model or copies a solution into it (see model/rungate.h).
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

#include "engine/enginebinding.h"
#include "engine/sharedvalue.h"
#include "model/modelstore.h"
#include "parameters/parametertable.h"
#include "tarq/frame/status.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

/// Summary of the latest run. The engine writes the counters and objective values while it works and another thread may
/// read them then; all access goes through readShared and writeShared.
struct SolutionSummary {
    double lpObjectiveValue = 0.0;
    double ipObjectiveValue = 0.0;
    double ipBestPossible = 0.0;
    double lpSumInfeasibilities = 0.0;
    std::int32_t lpIterations = 0;
    std::int32_t lpInfeasibilities = 0;
    std::int32_t nodesProcessed = 0;
    std::int32_t integerSolutions = 0;
    TARQSolverStatusTyp solverStatus = TARQSolverStatusTyp::UndefinedSolverStatus;
    TARQSolutionStatusTyp solutionStatus = TARQSolutionStatusTyp::UndefinedSolutionStatus;
    SharedText lastSolverMessage;

    /// Back to the state before any run.
    void reset();
};

/// A model as a run sees it: what the run reads, and where it leaves its traces. It must outlive the run; the fields
/// are set before it.
struct RunnableModel {
    ModelStore& store;
    ParameterTable& parameters;
    SolutionSummary& summary;
    EngineBinding& binding;
    std::atomic<bool>& stopRequested;
    std::atomic<bool>& busy;
    std::function<void()> finished;  ///< fires the finish event; may be empty, must not throw
    RunPresence presence{};          ///< at the gate of `store`; the run leaves before `finished` is called

    /// Called by the engine's callback, and when the run begins to end. Whoever stops a run for good does so there,
    /// where nothing is locked. May be empty, must not throw.
    std::function<void(EngineInterface&)> breakPoint{};
    std::function<void()> ending{};

    Outcome pendingError{};  ///< failure of the run, left for whoever reports it; untouched by other endings

    /// The engine of the run in progress, set and cleared by the run: it keeps its engine even when the client moves
    /// the location meanwhile.
    std::shared_ptr<EngineInterface> engine{};

    /// Written by the run, read through readShared.
    bool maximizing = false;        ///< whether the run passed "max" as its direction
    std::int32_t engineThread = 0;  ///< number of the thread that takes the engine, once it asks for it
};

/// Binds the engine, hands over parameters and model, solves the LP and, if wanted, the integer program, and copies the
/// solution into the store. Runs to its end on the calling thread, however long that takes.
///
/// Returns 0 when the run ended normally, also when it was stopped between stages; resourceLimit or stoppedAtBreak when
/// a limit or a break ended it, with the best result so far in the store; libraryNotFound or entryPointsMissing when no
/// engine is bound; engineMemory, engineSetup or crucialError, with pendingError set, when the engine failed; and
/// outOfMemory, without a pendingError, when this process has no memory for the transfer. A failure before the summary
/// is reset leaves the statuses of the latest run.
///
/// In every ending the engine's memory is released first, then `busy` is cleared, then `finished` is called, on this
/// thread; it may start the next run.
[[nodiscard]] Status runOptimization(RunnableModel& model);

}  // namespace tarq
