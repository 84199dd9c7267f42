// SolverModel: the model of a run inside HiGHS, and how a stage watches HiGHS at work.
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

#include "Highs.h"
#include "logsink.h"
#include "modelbuild.h"
#include "solutioncheck.h"
#include "stagecontrol.h"

namespace tarq::engine {

/// The best integer solution of a stage so far, checked against the model. Kept apart from HiGHS, so that it is there
/// even when the stage is given up.
struct Incumbent {
    std::mutex mutex;
    std::vector<double> columnValues;
    std::vector<double> rowValues;
    double objective = 0.0;
    bool found = false;
};

/// What the callbacks of HiGHS need; shared with the callbacks themselves, which may outlive a stage.
struct Watch {
    std::shared_ptr<LogSink> log;
    std::shared_ptr<StageControl> control;  ///< null outside a stage: then only the log is kept
    std::shared_ptr<Incumbent> incumbent;   ///< null in the LP stage
    std::int64_t iterationsBefore = 0;      ///< of earlier attempts at the same stage
    std::int64_t nodesBefore = 0;
};

class SolverModel;

/// Silences a Highs object towards the outside and sends its log and its interrupt points to `watch`. `model` is told
/// of improving solutions; null for the LPs solved on the way.
void observe(Highs& highs, std::shared_ptr<Watch> watch, const SolverModel* model);

/// One a run. Used by one thread at a time: that of PutModel, then those of the stages.
class SolverModel {
public:
    Highs highs;                            ///< the continuous model, until the IP stage makes columns integer
    std::vector<HighsVarType> integrality;  ///< empty for an LP
    CheckTolerance tolerance{};
    double objectiveBound = kHighsInf;  ///< in minimization form; integer solutions have to lie below it

    [[nodiscard]] bool isInteger() const { return !integrality.empty(); }
    [[nodiscard]] double sense() const { return highs.getLp().sense_ == ObjSense::kMaximize ? -1.0 : 1.0; }

    /// Hands the model over to HiGHS. False when HiGHS refuses it; the reason is in the log.
    [[nodiscard]] bool load(BuiltModel model, bool maximize, std::shared_ptr<LogSink> log);

    /// Makes the model continuous again after an IP stage.
    void dropIntegrality();
};

/// Sets what is left of the time a stage is allowed as the limit of the next run.
void allowTimeLeft(Highs& highs, const StageControl& control);

}  // namespace tarq::engine
