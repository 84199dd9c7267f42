// runOptimization: one whole run of the engine on one model.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>

#include "engine/enginebinding.h"
#include "frame/status.h"
#include "interfaces/enumerations.h"
#include "model/modelstore.h"
#include "parameters/parametertable.h"

namespace tarq {

/// Summary of the latest run. The engine writes the counters and objective values while it works and another thread may
/// read them then; all access goes through std::atomic_ref (see readShared).
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
    std::string lastSolverMessage;
};

/// All that a run reads and writes of its model.
struct RunModel {
    ModelStore& store;
    ParameterTable& parameters;
    SolutionSummary& summary;
    EngineBinding& binding;
    std::atomic<bool>& stopRequested;
    std::atomic<bool>& busy;
    Outcome& pendingError;           ///< failure of the run, left for whoever reports it
    std::function<void()> finished;  ///< fires the finish event
};

[[nodiscard]] Status runOptimization(RunModel& model);

}  // namespace tarq
