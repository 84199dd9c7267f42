#include "solvecommand.h"

#include <fmt/format.h>

#include <chrono>
#include <filesystem>
#include <optional>

#include "console.h"
#include "jsonreport.h"
#include "lasterror.h"
#include "modelinput.h"
#include "modelobject.h"
#include "parameterlist.h"
#include "report.h"
#include "run.h"
#include "solutionfile.h"
#include "terminal.h"

namespace tarq::command {

namespace {

/// What the user can do about a parameter that was refused.
std::string parameterHint(ITARQModel& model, const std::string& name, Status status) {
    const std::vector<Parameter> parameters = readParameters(model);
    const Parameter* parameter = findParameter(parameters, name);
    if (parameter == nullptr) {
        Variant ignored;
        if (model.get_Parameter(name, &ignored).isOk())
            return fmt::format("{} is a result of a run and can't be set.", name);
        return suggestion(parameters, name);
    }
    if (status != status::wrongKind) return fmt::format("{} takes {}.", parameter->name, limitsText(*parameter));
    return fmt::format("{} takes {} number, {}.", parameter->name,
                       parameter->type == Parameter::Type::Long ? "a whole" : "a", limitsText(*parameter));
}

std::optional<Failure> setParameters(ITARQModel& model, const std::vector<std::string>& assignments) {
    for (const std::string& assignment : assignments) {
        const std::size_t sign = assignment.find('=');
        const std::string name = assignment.substr(0, sign);
        const Status status = model.put_Parameter(name, Variant(assignment.substr(sign + 1)));
        if (!status.failed()) continue;
        const std::string complaint = lastErrorText(status);
        return Failure{ExitCode::WrongUsage, fmt::format("--set {}: {}\n{}", printable(assignment), complaint,
                                                         parameterHint(model, name, status))};
    }
    return std::nullopt;
}

/// Refuses a solution file that is the model file itself, which opening it would empty.
std::optional<Failure> checkSolutionFile(const SolveOptions& options) {
    std::error_code notThere;
    if (options.solutionFile.empty() || !std::filesystem::equivalent(options.solutionFile, options.file, notThere)) {
        return std::nullopt;
    }
    return Failure{ExitCode::WrongUsage,
                   fmt::format("--solution {}: this would overwrite the model.", options.solutionFile)};
}

std::optional<Failure> prepare(ITARQModel& model, const SolveOptions& options, RunResult& result) {
    TARQFileFormatType format{};
    if (auto failure = chooseFormat(options.file, options.format, format)) return failure;
    if (auto failure = checkSolutionFile(options)) return failure;
    const auto start = std::chrono::steady_clock::now();
    if (auto failure = readModel(model, options.file, format)) return failure;
    result.readSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    result.file = options.file;
    readModelFacts(model, result);
    return setParameters(model, options.assignments);
}

ExitCode fail(const Failure& failure) {
    showMessage(failure.text);
    return failure.code;
}

ExitCode cannotWrite(const SolutionFile& file, const SolveOptions& options) {
    return fail(
        {ExitCode::InputRejected, fmt::format("{} can't be written: {}.", options.solutionFile, file.failure())});
}

ExitCode report(ITARQModel& model, const SolveOptions& options, const RunResult& result) {
    const ExitCode code = result.exitCode();
    if (code == ExitCode::EngineFailed) showMessage(failureText(model, result));
    if (options.json) return writeResult(jsonReport(result), code);
    if (code == ExitCode::EngineFailed) return code;
    return writeResult(options.quiet ? shortReport(result) : fullReport(model, result), code);
}

}  // namespace

ExitCode solve(const SolveOptions& options) {
    const Ref<ITARQModel> model = makeModel(options.engine);
    if (!model) return ExitCode::WrongUsage;
    RunResult result;
    if (const auto failure = prepare(*model, options, result)) return fail(*failure);

    std::optional<SolutionFile> solution;
    if (!options.solutionFile.empty()) {
        solution.emplace(options.solutionFile);
        if (!solution->failure().empty()) return cannotWrite(*solution, options);
    }
    runWatched(*model, !options.json && !options.quiet && canRewriteLines(stderr), result);
    const ExitCode code = report(*model, options, result);
    if (!solution) return code;

    solution->write(*model, result);
    if (!solution->failure().empty()) return cannotWrite(*solution, options);
    if (result.solution() == SolutionKind::None) {
        showMessage(fmt::format("there is no solution, so {} has no lines.", options.solutionFile));
    } else if (result.solution() == SolutionKind::Lp && !result.lpIsAnswer()) {
        showMessage(fmt::format("{} holds the LP relaxation, as there is no integer solution.", options.solutionFile));
    }
    return code;
}

}  // namespace tarq::command
