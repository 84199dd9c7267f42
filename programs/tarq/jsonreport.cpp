#include "jsonreport.h"

#include <optional>

#include "jsondocument.h"
#include "parameterlist.h"
#include "statusnames.h"

namespace tarq::command {

namespace {

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
    const bool isTold = model.get_TARQDLLVersion(&version).isOk() && version != "unknown";
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

std::string jsonReport(ITARQModel& model, const RunResult& result, const std::optional<Failure>& failure) {
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
        {"status", failure ? statusOf(failure->status) : Json(result.status.value())},
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
    if (failure) document["error"] = errorOf(*failure);
    return documentOf(document);
}

}  // namespace tarq::command
