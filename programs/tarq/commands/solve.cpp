#include <fmt/format.h>

#include <chrono>
#include <filesystem>
#include <optional>

#include "commands/commands.h"
#include "files/format.h"
#include "files/modelinput.h"
#include "model/modelobject.h"
#include "model/parametersetting.h"
#include "printing/console.h"
#include "printing/runreport.h"
#include "printing/solutionfile.h"
#include "printing/text.h"
#include "run/run.h"

namespace tarq::command {

namespace {

/// Refuses a solution file that is the model file itself, or one of its data, which opening it would empty.
void checkSolutionFile(const SolveOptions& options) {
    if (options.solutionFile.empty()) return;
    std::vector<std::string> inputs{options.language.dataFiles};
    inputs.push_back(options.file == "-" ? "/dev/stdin" : options.file);
    for (const std::string& input : inputs) {
        std::error_code notThere;
        const bool isRegular = std::filesystem::is_regular_file(input, notThere);
        if (!isRegular || !std::filesystem::equivalent(options.solutionFile, input, notThere)) continue;
        throw Failure(ExitCode::WrongUsage,
                      fmt::format("--solution {}: this would overwrite the model.", printable(options.solutionFile)));
    }
}

/// All that precedes the run. What is known by then stands in `result`, also behind a failure.
void prepare(ITARQModel& model, const SolveOptions& options, RunResult& result) {
    useEngine(model, options.engine);
    const InputFormat format = chooseInputFormat(options.file, options.format, "--format");
    checkSolutionFile(options);
    const auto start = std::chrono::steady_clock::now();
    readModel(model, options.file, format, options.language);
    result.readSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    readModelFacts(model, result);
    if (!options.quiet) showReadingNotes(model);
    setParameters(model, options.parameters);
    readDirection(model, result);
}

/// Reports what failed, in place of a result.
ExitCode report(ITARQModel& model, const SolveOptions& options, const RunResult& result, const Failure& failure) {
    const ExitCode code = show(failure);
    return options.json ? writeResult(jsonReport(model, result, &failure), code) : code;
}

ExitCode report(ITARQModel& model, const SolveOptions& options, const RunResult& result) {
    if (const auto failure = failureOf(model, result)) return report(model, options, result, *failure);
    const ExitCode code = result.exitCode();
    if (options.json) return writeResult(jsonReport(model, result, nullptr), code);
    return writeResult(options.quiet ? shortReport(result) : fullReport(model, result), code);
}

/// Says what else than the answer stands in the solution file.
void explainContent(const SolveOptions& options, const RunResult& result) {
    const std::string file = printable(options.solutionFile);
    if (result.solution() == SolutionKind::None) {
        showMessage(fmt::format("there is no solution, so {} has no lines.", file));
    } else if (!result.objective()) {
        showMessage(fmt::format("{} holds the LP relaxation, as there is no integer solution.", file));
    }
}

}  // namespace

ExitCode solve(const SolveOptions& options) {
    const Ref<ITARQModel> model = makeModel();
    RunResult result;
    result.file = options.file;
    std::optional<SolutionFile> solution;
    try {
        prepare(*model, options, result);
        if (!options.solutionFile.empty()) solution.emplace(options.solutionFile);
    } catch (const Failure& failure) {
        return report(*model, options, result, failure);
    }
    runWatched(*model, !options.quiet && canRewriteLines(stderr), result);
    const ExitCode code = report(*model, options, result);
    if (!solution) return code;
    solution->write(*model, result);
    explainContent(options, result);
    return code;
}

}  // namespace tarq::command
