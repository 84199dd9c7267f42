#include "solvecommand.h"

#include <fmt/format.h>

#include <chrono>
#include <filesystem>
#include <optional>

#include "console.h"
#include "fileformat.h"
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

std::optional<Failure> setParameter(ITARQModel& model, const std::string& assignment) {
    const std::size_t sign = assignment.find('=');
    const std::string name = assignment.substr(0, sign);
    const Status status = model.put_Parameter(name, Variant(assignment.substr(sign + 1)));
    if (!status.failed()) return std::nullopt;
    const std::string complaint = lastErrorText(status);
    return Failure{ExitCode::WrongUsage, fmt::format("--set {}: {}\n{}", printable(assignment), complaint,
                                                     parameterHint(model, name, status))};
}

std::optional<Failure> readProfile(ITARQModel& model, const std::string& file) {
    const Status status = model.ReadProfile(file);
    if (!status.failed()) return std::nullopt;
    return Failure{ExitCode::InputRejected, fmt::format("--profile {}: {}", printable(file), lastErrorText(status))};
}

std::optional<Failure> setParameters(ITARQModel& model, const std::vector<ParameterSource>& sources) {
    for (const ParameterSource& source : sources) {
        auto failure = source.isProfile ? readProfile(model, source.text) : setParameter(model, source.text);
        if (failure) return failure;
    }
    return std::nullopt;
}

/// Refuses a solution file that is the model file itself, which opening it would empty.
std::optional<Failure> checkSolutionFile(const SolveOptions& options) {
    const std::string input = options.file == "-" ? "/dev/stdin" : options.file;
    std::error_code notThere;
    const bool isRegular = std::filesystem::is_regular_file(input, notThere);
    if (options.solutionFile.empty() || !isRegular ||
        !std::filesystem::equivalent(options.solutionFile, input, notThere)) {
        return std::nullopt;
    }
    return Failure{ExitCode::WrongUsage,
                   fmt::format("--solution {}: this would overwrite the model.", printable(options.solutionFile))};
}

std::optional<Failure> prepare(ITARQModel& model, const SolveOptions& options, RunResult& result) {
    TARQFileFormatType format{};
    if (auto failure = chooseFormat(options.file, options.format, "--format", format)) return failure;
    if (auto failure = checkSolutionFile(options)) return failure;
    const auto start = std::chrono::steady_clock::now();
    if (auto failure = readModel(model, options.file, format)) return failure;
    result.readSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    result.file = options.file;
    readModelFacts(model, result);
    return setParameters(model, options.parameters);
}

ExitCode cannotWrite(const SolutionFile& file, const SolveOptions& options) {
    return show({ExitCode::InputRejected,
                 fmt::format("{} can't be written: {}.", printable(options.solutionFile), file.failure())});
}

ExitCode report(ITARQModel& model, const SolveOptions& options, const RunResult& result) {
    const ExitCode code = result.exitCode();
    const bool failed = code == ExitCode::EngineFailed || code == ExitCode::InputRejected;
    if (failed) showMessage(failureText(model, result));
    if (options.json) return writeResult(jsonReport(result), code);
    if (failed) return code;
    return writeResult(options.quiet ? shortReport(result) : fullReport(model, result), code);
}

}  // namespace

ExitCode solve(const SolveOptions& options) {
    const Ref<ITARQModel> model = makeModel();
    if (!model) return ExitCode::EngineFailed;
    if (const auto failure = useEngine(*model, options.engine)) return show(*failure);
    RunResult result;
    if (const auto failure = prepare(*model, options, result)) return show(*failure);

    std::optional<SolutionFile> solution;
    if (!options.solutionFile.empty()) {
        solution.emplace(options.solutionFile);
        if (!solution->failure().empty()) return cannotWrite(*solution, options);
    }
    runWatched(*model, !options.quiet && canRewriteLines(stderr), result);
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
