// The files an engine writes for its user: solutions and statistics. Each is written in one go, and only when it has a
// name.
#pragma once

#include <string>

#include "optionmapping.h"
#include "resultvalues.h"
#include "stageoutcome.h"

namespace tarq::engine {

/// What the files tell of a model.
struct ReportedModel {
    std::int32_t rows;
    std::int32_t columns;
    std::int64_t nonzeros;
    std::int32_t integers;
    bool maximize;
};

/// A solution: its head, the column section, and with `withRows` the row section.
[[nodiscard]] std::string solutionReport(const ReportedModel& model, const StageOutcome& outcome, Stage stage,
                                         bool withRows);

/// The statistics of a run so far; `ip` is null before the IP stage.
[[nodiscard]] std::string statisticsReport(const ReportedModel& model, const ResultValues& results,
                                           const StageOutcome& lp, const StageOutcome* ip);

/// Writes a whole file. False when that wasn't possible.
[[nodiscard]] bool writeFile(const std::string& path, const std::string& content);

}  // namespace tarq::engine
