// tarqampl: solves the stub that AMPL has written and hands the solution back in its .sol file.

#include <fmt/format.h>
#include <tarq/tarq.h>

#include <cstdio>
#include <exception>
#include <optional>

#include "commands/commands.h"
#include "driveroptions.h"
#include "files/languageinput.h"
#include "model/modelobject.h"
#include "printing/console.h"
#include "printing/runreport.h"
#include "printing/text.h"
#include "run/run.h"
#include "tarq/component/amplsolutionfile.h"

namespace {

using namespace tarq;
using namespace tarq::command;
using tarq::driver::DriverOptions;

/// Says in one line why there is no solution.
int fail(const std::string& what) {
    fmt::print(stderr, "tarqampl: {}\n", printable(what));
    return 1;
}

/// The failure of a step, with what it was about.
std::optional<std::string> complaint(const std::string& about, Status status) {
    if (!status.failed()) return std::nullopt;
    return about + ": " + lastErrorText(status);
}

std::optional<std::string> complaintOfStub(const std::string& stub, Status status) {
    auto wrong = complaint(stub, status);
    if (!wrong) return wrong;
    if (const std::string reason = reasonOfStub(stub, status); !reason.empty()) *wrong += " " + reason;
    return wrong;
}

/// Everything that precedes the solve, each step with a say over those before.
std::optional<std::string> prepare(ITARQModel& model, const DriverOptions& options) {
    std::optional<std::string> wrong;
    if (!options.engine.empty()) wrong = complaint(options.engine, model.put_LocationOfTARQDLL(options.engine));
    if (!wrong && !options.profile.empty()) wrong = complaint(options.profile, model.ReadProfile(options.profile));
    if (!wrong) wrong = complaintOfStub(options.stub, model.ReadAMPLStub(options.stub));
    for (const auto& [name, value] : options.assignments) {
        if (!wrong) wrong = complaint(fmt::format("{}={}", name, value), model.put_Parameter(name, Variant(value)));
    }
    return wrong;
}

/// What AMPL shows of the solve. The component's model doesn't have the constant of AMPL's objective.
std::string messageOf(const RunResult& result) {
    std::string message = fmt::format("TARQ {}: {}", TARQ_VERSION, result.ending());
    if (const auto objective = result.objective()) {
        message += fmt::format("; objective {}, constant terms not counted", numberText(*objective));
    }
    message += "\n" + counted(result.iterations, "iteration");
    if (result.integer) message += ", " + counted(result.nodes, "node");
    if (!result.failure.empty()) message += "\n" + result.failure;
    return message;
}

int solve(const DriverOptions& options) {
    const Ref<ITARQModel> model = createObject<ITARQModel>("TARQModel");
    if (!model) return fail("out of memory");
    if (const auto wrong = prepare(*model, options)) return fail(*wrong);
    RunResult result;
    result.file = options.stub;
    readModelFacts(*model, result);
    runWatched(*model, !options.calledByAmpl && canRewriteLines(stderr), result);
    // An engine that isn't there, or refuses to start, has solved nothing.
    const bool ran = result.solverStatus != TARQSolverStatusTyp::UndefinedSolverStatus;
    if (result.status.failed() && !ran) return fail(result.failure);

    const Status written = writeAmplSolutionFile(*model, options.stub, messageOf(result));
    if (written.failed()) return fail(*complaint(options.stub + ".sol", written));
    if (options.calledByAmpl) return 0;
    return static_cast<int>(writeResult(fullReport(*model, result)));
}

int run(int count, char** arguments) {
    const DriverOptions options = tarq::driver::readOptions(count, arguments);
    switch (options.task) {
        case DriverOptions::Task::Solve:
            return solve(options);
        case DriverOptions::Task::ShowVersion:
            fmt::print("tarqampl {}\n", TARQ_VERSION);
            return 0;
        case DriverOptions::Task::ListParameters:
            return static_cast<int>(explainParameters({}));
        case DriverOptions::Task::WrongUsage:
            break;
    }
    return fail(options.wrong);
}

}  // namespace

int main(int count, char** arguments) {
    fillStandardStreams();
    try {
        return run(count, arguments);
    } catch (const Failure& failure) {
        return static_cast<int>(show(failure));
    } catch (const std::exception& failure) {
        (void)std::fputs("tarqampl: ", stderr);
        (void)std::fputs(failure.what(), stderr);
        (void)std::fputs("\n", stderr);
    }
    return 1;
}
