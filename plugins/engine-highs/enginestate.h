// EngineState: everything one loaded engine library holds, and the operations on it.
//
// All operations of a run come from one thread, and during a stage the callback comes on it; a state isn't for several
// threads. The C interface in engine.cpp only forwards here.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

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
    /// An empty model and no results. Parameters set before stay. Refused from the callback; from another thread a
    /// stage that is still under way is given up.
    std::int32_t start();
    /// Back to the state of a new engine.
    std::int32_t release();

    std::int32_t setParameter(std::string_view assignment);
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
    void endStage(const StageOutcome& outcome);
    void callClient();
    void takeLpProgress(const StageControl& control);
    void takeIpProgress(const StageControl& control);
    void writeReports(const StageOutcome& outcome, const char* stage, std::string_view fileParameter);
    void report(std::string_view fileParameter, const std::string& content);
    std::int32_t deliver(const std::optional<StageOutcome>& outcome, const SolutionOutputs& outputs);
    void note(const std::string& text);
    [[nodiscard]] double runSeconds() const;

    ParameterValues parameters_;
    TarqCallback callback_ = nullptr;
    std::shared_ptr<SolverModel> model_;  ///< null without a model, or when its stage was given up
    std::shared_ptr<LogSink> log_;
    std::string logFailure_;                 ///< why there is no log file though there should be
    std::shared_ptr<StageControl> control_;  ///< of the stage that runs
    std::thread::id stageCaller_;            ///< the thread that called for it
    std::int64_t starts_ = 0;                ///< tells a stage whether the state is still its own
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
