// SolutionTable: the solution of a run, line by line.
#pragma once

#include <tarq/tarq.h>

#include <string>

#include "run/runresult.h"

namespace tarq::command {

/// What a solution tells of a column or a row.
struct SolutionLine {
    std::string name;
    double value = 0.0;
    double dual = 0.0;  ///< a column's reduced cost, a row's shadow price
    TARQColRowStatusType status = TARQColRowStatusType::UndefinedVarStatus;
};

/// Reads from the model at each call, and owns nothing.
class SolutionTable {
public:
    enum class Side { Columns, Rows };

    /// Without a solution the table has no lines.
    SolutionTable(ITARQModel& model, Side side, SolutionKind kind);

    [[nodiscard]] std::int32_t size() const { return size_; }
    /// The line of a column or row, numbered from 1.
    [[nodiscard]] SolutionLine line(std::int32_t number) const;

private:
    ITARQModel& model_;
    Side side_;
    SolutionKind kind_;
    std::int32_t size_ = 0;
};

}  // namespace tarq::command
