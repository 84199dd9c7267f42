// RunResult: all that the command reports of a model and its run.
#pragma once

#include <tarq/tarq.h>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "model/failure.h"

namespace tarq::command {

/// The published name of a value, such as "LPFinished"; "Unknown" for a number that none has.
template <class Enumeration>
[[nodiscard]] std::string_view nameOf(Enumeration value) {
    const auto values = enumerationTableOf<Enumeration>->values;
    const auto found = std::ranges::find(values, static_cast<std::int32_t>(value), &EnumerationValue::value);
    return found == values.end() ? "Unknown" : found->name;
}

/// Which of its solutions a run leaves for the user.
enum class SolutionKind { None, Lp, Integer };

/// How far a solve came, each step behind the one before.
enum class Progress { Begun, ModelRead, ParametersSet, Run };

struct RunResult {
    std::string file;
    Progress progress = Progress::Begun;

    std::string modelName;
    std::int32_t columns = 0;
    std::int32_t rows = 0;
    std::int32_t nonzeros = 0;
    bool integer = false;
    bool maximizes = false;  ///< known once the parameters are set

    Status status;              ///< what Optimize returned
    std::string failure;        ///< description of a failed status
    bool modelRefused = false;  ///< the engine wouldn't take the model's data
    bool onlyRelaxation = false;
    bool interrupted = false;

    TARQSolverStatusTyp solverStatus = TARQSolverStatusTyp::UndefinedSolverStatus;
    TARQSolutionStatusTyp solutionStatus = TARQSolutionStatusTyp::UndefinedSolutionStatus;
    double lpObjective = 0.0;
    double ipObjective = 0.0;
    double bestPossible = 0.0;
    std::int32_t iterations = 0;
    std::int32_t nodes = 0;
    std::int32_t integerSolutions = 0;
    double readSeconds = 0.0;
    double solveSeconds = 0.0;
    std::string message;

    /// The integer solution if there is one; else the LP's, which for an integer model is that of the relaxation.
    [[nodiscard]] SolutionKind solution() const;
    /// True if the LP's solution answers what was asked, and is not only a bound for an integer model.
    [[nodiscard]] bool lpIsAnswer() const { return !integer || onlyRelaxation; }
    // Values of the objective; nothing where the run left no such solution.
    /// Of what was asked for: the integer solution, or the LP's where that is the answer.
    [[nodiscard]] std::optional<double> objective() const;
    [[nodiscard]] std::optional<double> lpValue() const;
    [[nodiscard]] std::optional<double> ipValue() const;
    /// The bound on every integer solution: while it has not come out that there is none.
    [[nodiscard]] std::optional<double> bound() const;
    [[nodiscard]] ExitCode exitCode() const;
    /// How the run ended, in words: "optimal", "infeasible", "stopped at the node limit (xmxnod)".
    [[nodiscard]] std::string ending() const;

private:
    [[nodiscard]] std::string earlyEnding() const;
};

/// Fills in what the model is.
void readModelFacts(ITARQModel& model, RunResult& result);

/// Fills in what a run will be asked for.
void readDirection(ITARQModel& model, RunResult& result);

/// Fills in what the latest run left.
void readRunFacts(ITARQModel& model, RunResult& result);

/// |best - bound| as a part of |best|; infinite when best is 0 and the bound isn't.
[[nodiscard]] double relativeGap(double best, double bound);

}  // namespace tarq::command
