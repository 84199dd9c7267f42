#include "jsonreport.h"

#include "jsondocument.h"
#include "statusnames.h"

namespace tarq::command {

namespace {

template <class Value>
Json namedValue(Value value) {
    return {{"value", static_cast<std::int32_t>(value)}, {"name", nameOf(value)}};
}

/// What the component says of a failure and, behind it, what the engine says.
std::string messageOf(const RunResult& result) {
    if (result.failure.empty() || result.message.empty()) return result.failure + result.message;
    return result.failure + ' ' + result.message;
}

}  // namespace

std::string jsonReport(const RunResult& result) {
    const Json document{
        {"file", result.file},
        {"model",
         {{"name", result.modelName},
          {"columns", result.columns},
          {"rows", result.rows},
          {"nonzeros", result.nonzeros},
          {"integer", result.integer}}},
        {"status", result.status.value()},
        {"solverStatus", namedValue(result.solverStatus)},
        {"solutionStatus", namedValue(result.solutionStatus)},
        {"objective", result.objective()},
        {"lpObjective", result.lpObjective},
        {"ipObjective", result.ipObjective},
        {"bestPossible", result.bestPossible},
        {"iterations", result.iterations},
        {"nodes", result.nodes},
        {"integerSolutions", result.integerSolutions},
        {"seconds", {{"read", result.readSeconds}, {"solve", result.solveSeconds}}},
        {"message", messageOf(result)},
    };
    return documentOf(document);
}

}  // namespace tarq::command
