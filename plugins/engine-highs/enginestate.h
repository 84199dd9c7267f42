// EngineState: everything the engine holds for one run, and the operations on it.
//
// All of them come from the thread of the run, also the callback during a stage; a state isn't for several threads. The
// C interface in engine.cpp only forwards here.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ipstage.h"
#include "lpstage.h"
#include "modelbuild.h"
#include "optionmapping.h"
#include "parametervalues.h"
#include "reportfiles.h"
#include "resultvalues.h"
#include "solvermodel.h"
#include "tarq/engine.h"

namespace tarq::engine {

/// Results of the interface's operations.
inline constexpr std::int32_t success = 0;
inline constexpr std::int32_t outOfMemory = 1;
inline constexpr std::int32_t inputError = 2;
inline constexpr std::int32_t generalError = 5;
inline constexpr std::int32_t internalError = 6;

struct LpOutputs {
    std::int32_t* iterations;
    std::int32_t* infeasibilities;
    std::int32_t* lpStatus;
    double* objective;
    double* sumOfInfeasibilities;
};

struct IpOutputs {
    std::int32_t* nodes;
    std::int32_t* integerSolutions;
    std::int32_t* stopReason;
    double* objective;
    double* bestPossible;
};

struct SolutionOutputs {
    std::int32_t* status;
    double* objective;
    double* values;
    double* reducedCosts;
    std::int32_t* basisStatus;
};

class EngineState {
public:
    /// `givenUp`, for any thread, tells that the run's thread won't come back.
    explicit EngineState(std::function<bool()> givenUp = {}) : givenUp_(std::move(givenUp)) {}

    /// Whether a stage is under way: then this is its callback, and most operations are refused.
    [[nodiscard]] bool isAtWork() const { return control_ != nullptr; }

    /// An empty model and no results. Parameters set before stay.
    std::int32_t start();

    std::int32_t setParameter(std::string_view assignment);
    /// Value of a parameter or result by its name in lower case; nothing when there is no such one.
    [[nodiscard]] std::optional<std::string> parameter(std::string_view name) const;
    void setCallback(TarqCallback callback) { callback_ = callback; }

    std::int32_t putModel(const ModelArrays& arrays);
    std::int32_t optimizeLp(int iterationFrequency, const LpOutputs& outputs);
    std::int32_t lpSolution(const SolutionOutputs& outputs);
    std::int32_t optimizeIp(int nodeFrequency, const IpOutputs& outputs);
    std::int32_t ipSolution(const SolutionOutputs& outputs);

    /// Keeps `text` as the last message and gives back `result`.
    std::int32_t fail(std::int32_t result, const std::string& text);

private:
    [[nodiscard]] StageOutcome runInThread(Stage stage, const std::shared_ptr<Watch>& watch, int frequency,
                                           const std::function<void()>& showProgress);
    std::shared_ptr<Watch> beginStage(double secondsAllowed, int nodesPerCallback);
    void endStage(const StageOutcome& outcome, const char* stage, std::string_view fileParameter);
    void callClient();
    void takeLpProgress(const StageControl& control);
    void takeIpProgress(const StageControl& control);
    void writeReports(const StageOutcome& outcome, const char* stage, std::string_view fileParameter);
    void report(std::string_view fileParameter, const std::string& content);
    std::int32_t deliver(const std::optional<StageOutcome>& outcome, const SolutionOutputs& outputs);
    void noteFileFailure(std::string_view fileParameter);
    void note(const std::string& text);
    [[nodiscard]] double runSeconds() const;

    const std::function<bool()> givenUp_;
    ParameterValues parameters_;
    TarqCallback callback_ = nullptr;
    std::shared_ptr<SolverModel> model_;  ///< null without a model, or when its stage was given up
    std::shared_ptr<LogSink> log_;
    std::string fileFailures_;               ///< which files of the run can't be written
    std::shared_ptr<StageControl> control_;  ///< of the stage that runs
    bool stopRequested_ = false;             ///< by XCBSTP, not yet obeyed
    ReportedModel reported_{};
    std::optional<StageOutcome> lp_;
    std::optional<StageOutcome> ip_;
    ResultValues results_;
    std::chrono::steady_clock::time_point runStart_{};
    std::string line1_;
    std::string line2_;
};

}  // namespace tarq::engine
