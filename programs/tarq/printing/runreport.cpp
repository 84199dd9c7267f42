#include "printing/runreport.h"

#include <fmt/format.h>

#include <cmath>

#include "model/parameterlist.h"
#include "printing/json.h"
#include "printing/table.h"
#include "printing/text.h"
#include "run/solutiontable.h"
#include "tarq/interfaces/failuretexts.h"

namespace tarq::command {

namespace {

std::string fact(std::string_view label, std::string_view value) { return fmt::format("{:<18} {}\n", label, value); }

/// The run's value of the objective, where it has one to show.
std::string objectiveFact(const RunResult& result) {
    const std::optional<double> value = result.objective();
    return fact("Objective", value ? numberText(*value) : "none");
}

std::string integerFacts(const RunResult& result) {
    std::string text;
    if (result.solution() == SolutionKind::Integer) {
        const double gap = relativeGap(result.ipObjective, result.bestPossible);
        text += fact("Best bound", fmt::format("{}{}", numberText(result.bestPossible),
                                               std::isfinite(gap) ? fmt::format(" (gap {:.4g} %)", 100.0 * gap) : ""));
    }
    if (result.solution() != SolutionKind::None) text += fact("LP relaxation", numberText(result.lpObjective));
    text += fact("Iterations", fmt::format("{} (in the LP)", result.iterations));
    text += fact("Nodes", fmt::format("{}", result.nodes));
    return text + fact("Integer solutions", fmt::format("{}", result.integerSolutions));
}

std::string columnTable(ITARQModel& model, const RunResult& result) {
    Table table({{"Column", Align::Left}, {"Value", Align::Point}, {"Reduced cost", Align::Point}});
    const SolutionTable columns(model, SolutionTable::Side::Columns, result.solution());
    std::int32_t shown = 0;
    for (std::int32_t number = 1; number <= columns.size(); ++number) {
        const SolutionLine line = columns.line(number);
        if (line.value == 0.0) continue;
        ++shown;
        table.add({line.name.empty() ? fmt::format("(number {})", number) : printable(line.name),
                   numberText(line.value), numberText(line.dual)});
    }
    const std::string summary = fmt::format("{} of {} are not zero.\n", shown, counted(columns.size(), "column"));
    return fmt::format("\n{}{}", shown == 0 ? "" : table.text() + '\n', summary);
}

std::string failureText(ITARQModel& model, const RunResult& result) {
    if (result.status == status::libraryNotFound) {
        std::string engine;
        if (!model.get_LocationOfTARQDLL(&engine).isOk()) engine.clear();
        return fmt::format(
            "the engine library {} could not be loaded.\n"
            "A name without a folder is looked for beside the component (libtarqcom.so), then on the system's search\n"
            "path; tarq.dll means libtarq.so there. If the file exists, 'ldd FILE' shows whether a library that it "
            "needs\n"
            "is missing. '--engine FILE' uses another one.",
            engine);
    }
    std::string text =
        fmt::format("{}: {}", result.ending(), result.failure.empty() ? "it told no result." : result.failure);
    if (result.solverStatus != TARQSolverStatusTyp::UndefinedSolverStatus) {
        text += fmt::format("\nSolver status: {}", nameOf(result.solverStatus));
    }
    if (!result.message.empty()) text += fmt::format("\nThe engine says: {}", printable(result.message));
    return text;
}

template <class Value>
Json namedValue(Value value) {
    return {{"value", static_cast<std::int32_t>(value)}, {"name", nameOf(value)}};
}

Json valueOrNull(const std::optional<double>& value) { return value ? Json(*value) : Json(); }

/// What the component says of a failure and, behind it, what the engine says.
std::string messageOf(const RunResult& result) {
    if (result.failure.empty() || result.message.empty()) return result.failure + result.message;
    return result.failure + ' ' + result.message;
}

/// Null when there is no engine that tells.
Json engineOf(ITARQModel& model) {
    std::string version;
    const bool isTold = model.get_TARQDLLVersion(&version).isOk() && version != unknownEngineVersion;
    return isTold ? Json(version) : Json();
}

/// The parameters that differ from their defaults.
Json changedParameters(ITARQModel& model) {
    Json changed = Json::object();
    for (const Parameter& parameter : readParameters(model)) {
        Json value = jsonValue(parameter.value);
        if (value != jsonValue(parameter.defaultValue)) changed[parameter.name] = std::move(value);
    }
    return changed;
}

Json modelFacts(const RunResult& result) {
    return {{"name", result.modelName},
            {"columns", result.columns},
            {"rows", result.rows},
            {"nonzeros", result.nonzeros},
            {"integer", result.integer}};
}

Json statusOf(Status status) { return status.isOk() ? Json() : Json(status.value()); }

Json errorOf(const Failure& failure) {
    return {{"status", statusOf(failure.status)},
            {"text", failure.text},
            {"line", failure.line > 0 ? Json(failure.line) : Json()}};
}

}  // namespace

std::string shortReport(const RunResult& result) { return fact("Status", result.ending()) + objectiveFact(result); }

std::string fullReport(ITARQModel& model, const RunResult& result) {
    std::string text =
        fact("Model", fmt::format("{}{}{}, {}, {}", printable(result.modelName), result.modelName.empty() ? "" : ": ",
                                  counted(result.columns, "column"), counted(result.rows, "row"),
                                  counted(result.nonzeros, "nonzero")));
    text += fact("Direction", result.maximizes ? "max" : "min");
    text += shortReport(result);
    text += result.integer ? integerFacts(result) : fact("Iterations", fmt::format("{}", result.iterations));
    text += fact("Time", fmt::format("{:.2f} s (and {:.2f} s to read)", result.solveSeconds, result.readSeconds));
    if (result.objective()) text += columnTable(model, result);
    return text;
}

std::optional<Failure> failureOf(ITARQModel& model, const RunResult& result) {
    const ExitCode code = result.exitCode();
    if (code != ExitCode::EngineFailed && code != ExitCode::InputRejected) return std::nullopt;
    return Failure(code, failureText(model, result), result.status);
}

std::string jsonReport(ITARQModel& model, const RunResult& result, const Failure* failure) {
    const auto since = [&](Progress step, Json value) { return result.progress < step ? Json() : std::move(value); };
    const auto ofRun = [&](Json value) { return since(Progress::Run, std::move(value)); };
    const bool isAsked = result.progress >= Progress::ParametersSet;
    Json document{
        {"file", result.file},
        {"version", TARQ_VERSION},
        {"engine", engineOf(model)},
        {"direction", since(Progress::ParametersSet, result.maximizes ? "max" : "min")},
        {"parameters", isAsked ? changedParameters(model) : Json()},
        {"model", since(Progress::ModelRead, modelFacts(result))},
        {"status", failure != nullptr ? statusOf(failure->status) : Json(result.status.value())},
        {"solverStatus", ofRun(namedValue(result.solverStatus))},
        {"solutionStatus", ofRun(namedValue(result.solutionStatus))},
        {"objective", valueOrNull(result.objective())},
        {"lpObjective", valueOrNull(result.lpValue())},
        {"ipObjective", valueOrNull(result.ipValue())},
        {"bestPossible", valueOrNull(result.bound())},
        {"iterations", ofRun(result.iterations)},
        {"nodes", ofRun(result.nodes)},
        {"integerSolutions", ofRun(result.integerSolutions)},
        {"seconds", {{"read", since(Progress::ModelRead, result.readSeconds)}, {"solve", ofRun(result.solveSeconds)}}},
        {"message", ofRun(messageOf(result))},
    };
    if (failure != nullptr) document["error"] = errorOf(*failure);
    return documentOf(document);
}

}  // namespace tarq::command
