#include "solvecommand.h"

#include <fmt/format.h>

#include <chrono>
#include <filesystem>
#include <optional>

#include "console.h"
#include "fileformat.h"
#include "jsonreport.h"
#include "modelinput.h"
#include "modelobject.h"
#include "parametersetting.h"
#include "readingnotes.h"
#include "report.h"
#include "run.h"
#include "solutionfile.h"
#include "terminal.h"

namespace tarq::command {

namespace {

/// Refuses a solution file that is the model file itself, or one of its data, which opening it would empty.
std::optional<Failure> checkSolutionFile(const SolveOptions& options) {
    if (options.solutionFile.empty()) return std::nullopt;
    std::vector<std::string> inputs{options.language.dataFiles};
    inputs.push_back(options.file == "-" ? "/dev/stdin" : options.file);
    for (const std::string& input : inputs) {
        std::error_code notThere;
        const bool isRegular = std::filesystem::is_regular_file(input, notThere);
        if (!isRegular || !std::filesystem::equivalent(options.solutionFile, input, notThere)) continue;
        return Failure{ExitCode::WrongUsage,
                       fmt::format("--solution {}: this would overwrite the model.", printable(options.solutionFile))};
    }
    return std::nullopt;
}

std::optional<Failure> prepare(ITARQModel& model, const SolveOptions& options, RunResult& result) {
    if (auto failure = useEngine(model, options.engine)) return failure;
    InputFormat format;
    if (auto failure = chooseFormat(options.file, options.format, "--format", format)) return failure;
    if (auto failure = checkSolutionFile(options)) return failure;
    const auto start = std::chrono::steady_clock::now();
    if (auto failure = readModel(model, options.file, format, options.language)) return failure;
    result.readSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    readModelFacts(model, result);
    if (!options.quiet) showReadingNotes(model);
    auto failure = setParameters(model, options.parameters);
    if (!failure) readDirection(model, result);
    return failure;
}

std::optional<Failure> failureOf(const SolutionFile& file, const SolveOptions& options) {
    if (file.failure().empty()) return std::nullopt;
    return Failure{ExitCode::InputRejected,
                   fmt::format("{} can't be written: {}.", printable(options.solutionFile), file.failure())};
}

/// Reports what failed, in place of a result.
ExitCode report(ITARQModel& model, const SolveOptions& options, const RunResult& result, const Failure& failure) {
    const ExitCode code = show(failure);
    return options.json ? writeResult(jsonReport(model, result, failure), code) : code;
}

ExitCode report(ITARQModel& model, const SolveOptions& options, const RunResult& result) {
    if (const auto failure = failureOf(model, result)) return report(model, options, result, *failure);
    const ExitCode code = result.exitCode();
    if (options.json) return writeResult(jsonReport(model, result, std::nullopt), code);
    return writeResult(options.quiet ? shortReport(result) : fullReport(model, result), code);
}

/// Says what else than the answer stands in the solution file.
void explainContent(const SolveOptions& options, const RunResult& result) {
    if (result.solution() == SolutionKind::None) {
        showMessage(fmt::format("there is no solution, so {} has no lines.", printable(options.solutionFile)));
    } else if (!result.objective()) {
        showMessage(fmt::format("{} holds the LP relaxation, as there is no integer solution.",
                                printable(options.solutionFile)));
    }
}

}  // namespace

ExitCode solve(const SolveOptions& options) {
    const Ref<ITARQModel> model = makeModel();
    if (!model) return ExitCode::EngineFailed;
    RunResult result;
    result.file = options.file;
    if (const auto failure = prepare(*model, options, result)) return report(*model, options, result, *failure);

    std::optional<SolutionFile> solution;
    if (!options.solutionFile.empty()) {
        const auto failure = failureOf(solution.emplace(options.solutionFile), options);
        if (failure) return report(*model, options, result, *failure);
    }
    runWatched(*model, !options.quiet && canRewriteLines(stderr), result);
    const ExitCode code = report(*model, options, result);
    if (!solution) return code;

    solution->write(*model, result);
    if (const auto failure = failureOf(*solution, options)) return show(*failure);
    explainContent(options, result);
    return code;
}

}  // namespace tarq::command
