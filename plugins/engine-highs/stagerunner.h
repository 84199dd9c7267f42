// StageRunner: runs the stages of one run on its model, and can be told to stop.
//
// HiGHS works on a thread of its own (see stagecontrol.h); everything here is for the thread of the run, which is also
// the one that the client is called back on. A stage that was given up leaves nothing behind that the next one uses.
#pragma once

#include <functional>
#include <memory>

#include "lpstage.h"
#include "optionmapping.h"
#include "parametervalues.h"
#include "solvermodel.h"
#include "tarq/engine.h"

namespace tarq::engine {

/// A stage to be run.
struct StageOrder {
    Stage stage;
    int frequency;              ///< break after so many iterations or nodes; 0 and below: none
    double bestPossible = 0.0;  ///< the bound that is known before an IP stage
};

class StageRunner {
public:
    /// Writes progress for the client; called before each callback and at the end of a stage.
    using ShowProgress = std::function<void(const StageControl& control)>;

    /// `parameters` must outlive the runner. `givenUp`, for any thread, tells that the run's thread won't come back.
    StageRunner(const ParameterValues& parameters, std::function<bool()> givenUp)
        : parameters_(parameters), givenUp_(std::move(givenUp)) {}

    /// Whether a stage is under way: then this is its callback.
    [[nodiscard]] bool isAtWork() const { return control_ != nullptr; }
    /// False without a model, or when its stage was given up or ended by an exception.
    [[nodiscard]] bool hasModel() const { return model_ != nullptr; }
    [[nodiscard]] bool hasIntegers() const { return model_ && model_->isInteger(); }

    void setCallback(TarqCallback callback) { callback_ = callback; }

    /// Has the stage under way, or else the next one, end at its next opportunity; false takes that back for the next.
    void requestStop(bool requested);

    /// Without model, log and stop request.
    void clear();

    /// Opens the log of a model's run; false when its file, if it is to have one, can't be written.
    [[nodiscard]] bool openLog();

    /// Hands a model to HiGHS, once its log is open. False when HiGHS refuses it, which the log tells.
    [[nodiscard]] bool load(BuiltModel model, bool maximize);

    /// Runs a stage to its end, on this thread if it is brief. There must be a model. Throws what the stage threw;
    /// then, and when the stage had to be given up, the model is gone.
    [[nodiscard]] StageOutcome run(const StageOrder& order, const ShowProgress& showProgress);

    /// The log of the run; a new one after a stage was given up, which may go on writing to the old one.
    [[nodiscard]] const LogSink& log() const { return *log_; }

private:
    [[nodiscard]] std::shared_ptr<Watch> beginStage(const StageOrder& order);
    [[nodiscard]] StageOutcome runToItsEnd(const StageOrder& order, const std::shared_ptr<Watch>& watch,
                                           const std::function<void()>& tick);
    [[nodiscard]] StageOutcome withoutStageThread(StageEnd end, const Watch& watch);

    const ParameterValues& parameters_;
    const std::function<bool()> givenUp_;
    TarqCallback callback_ = nullptr;
    std::shared_ptr<SolverModel> model_;
    std::shared_ptr<LogSink> log_;
    std::shared_ptr<StageControl> control_;  // of the stage that runs
    bool stopRequested_ = false;             // not yet obeyed
};

}  // namespace tarq::engine
