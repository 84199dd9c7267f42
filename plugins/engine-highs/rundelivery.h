// RunDelivery: what the client gets of a run: result values and progress, the two lines of the message, the solutions,
// and the files.
//
// It keeps the outcomes of the stages until the next model. For the thread of the run.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "logsink.h"
#include "lpstage.h"
#include "optionmapping.h"
#include "parametervalues.h"
#include "reportfiles.h"
#include "resultvalues.h"
#include "runoutputs.h"

namespace tarq::engine {

class RunDelivery {
public:
    /// `parameters`, which must outlive this, name the files and say what goes into them.
    explicit RunDelivery(const ParameterValues& parameters) : parameters_(parameters) {}

    /// Without results, message and outcomes; the time of the run begins.
    void clear();
    void setModel(const ReportedModel& model) { model_ = model; }

    /// Replaces the message. Line ends become blanks, and what has no room in the two lines is left out.
    void note(const std::string& text);
    /// Has the message of every stage from now on name the file of this parameter as one that can't be written. A
    /// client may read the last message only.
    void noteFileFailure(std::string_view fileParameter);
    /// Replaces the message by the files that can't be written.
    void noteFileFailures() { note(fileFailures_); }

    /// A line of the message or a result value by its name in lower case; nothing for any other name.
    [[nodiscard]] std::optional<std::string> value(std::string_view name) const;

    /// Write the progress of a stage into the outputs, which another thread may read meanwhile, and into the results.
    void showLp(const StageControl& control, const LpOutputs& outputs);
    void showIp(const StageControl& control, const IpOutputs& outputs);

    /// Forgets the outcome of a stage, and of the one behind it.
    void beginStage(Stage stage);
    /// Keeps the outcome of a stage, writes its files, and makes its message.
    void endStage(Stage stage, StageOutcome outcome, const LogSink& log);
    /// The outcome of a stage; null when it hasn't ended.
    [[nodiscard]] const StageOutcome* outcome(Stage stage) const;

    /// Fills the outputs, the arrays with zeros when the outcome has no point. False, with a message, when an output is
    /// missing.
    [[nodiscard]] bool deliver(const StageOutcome& outcome, const SolutionOutputs& outputs);

private:
    void writeReports(Stage stage);
    void report(std::string_view fileParameter, const std::string& content);
    [[nodiscard]] double runSeconds() const;

    const ParameterValues& parameters_;
    ReportedModel model_{};
    std::optional<StageOutcome> lp_;
    std::optional<StageOutcome> ip_;
    ResultValues results_;
    std::chrono::steady_clock::time_point runStart_{};
    std::string fileFailures_;
    std::string line1_;
    std::string line2_;
};

/// Writes an output that another thread may read at the same time.
void show(std::int32_t* output, std::int32_t value);
void show(double* output, double value);

}  // namespace tarq::engine
