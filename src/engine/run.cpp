#include "engine/run.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "engine/enginecallback.h"
#include "engine/enginetext.h"
#include "engine/modeltransfer.h"
#include "engine/runstatus.h"
#include "parameters/parameterrows.h"
#include "platform/thread.h"
#include "tarq/frame/contained.h"

namespace tarq {
namespace {

constexpr std::int32_t smallestMemory = 64;
constexpr std::int32_t largestMemory = 2000;
constexpr std::int32_t automaticMemory = 300;

/// How a run ends.
struct Ending {
    Outcome outcome;
    bool plainReturn = false;  ///< without releasing, clearing or reporting anything
};

class Run {
public:
    explicit Run(RunModel& model) : model_(model) {}

    Status execute();

private:
    /// A step either ends the run or lets the next one follow.
    using Step = std::optional<Ending>;

    static Ending finish() { return {}; }
    static Ending end(Status status) { return {.outcome = status}; }
    static Ending fail(Status status, std::string_view text) { return {.outcome = {status, std::string(text)}}; }

    Ending runSteps();
    Status close(Ending ending);

    Step bind();
    Step takeMemory();
    Step prepareEmptyModel();
    Step passParameters();
    Step prepareCallback();
    [[nodiscard]] std::optional<ModelArrays> flattened();
    Step transferModel();
    Step resetSummary();
    Step solveLp();
    Step fetchLpSolution();
    Step endAtLpLimit();
    Step decideOnIp();
    Step solveIp();
    Step fetchIpSolution();
    Step endAtIpLimit();

    [[nodiscard]] EngineInterface& engine() { return *model_.engine; }
    [[nodiscard]] std::int32_t longParameter(std::string_view name) const {
        return model_.parameters.longValue(parameterIndex(name));
    }
    [[nodiscard]] bool stopRequested() const { return model_.stopRequested.load(std::memory_order_relaxed); }
    void setSolverStatus(TARQSolverStatusTyp status) { writeShared(model_.summary.solverStatus, status); }
    void setSolutionStatus(TARQSolutionStatusTyp status) { writeShared(model_.summary.solutionStatus, status); }
    Ending failCrucially(TARQSolverStatusTyp status);
    void captureMessage();

    RunModel& model_;
    std::optional<NotedRun> noted_;
    bool memoryTaken_ = false;
    bool hasIntegerColumn_ = false;
    ModelDimensions dimensions_;
    std::int32_t lpResult_ = 0;
    std::int32_t ipResult_ = 0;
    std::int32_t ipStopReason_ = 0;
};

Status Run::execute() {
    model_.stopRequested.store(false, std::memory_order_relaxed);
    const auto steps = [this] {
        noted_.emplace(model_);
        return runSteps();
    };
    // Whatever comes, the engine has to be released and the run has to end in order.
    return close(contained(steps, end));
}

Ending Run::runSteps() {
    static constexpr std::array steps{
        &Run::bind,          &Run::takeMemory,   &Run::prepareEmptyModel, &Run::passParameters,  &Run::prepareCallback,
        &Run::transferModel, &Run::resetSummary, &Run::solveLp,           &Run::fetchLpSolution, &Run::endAtLpLimit,
        &Run::decideOnIp,    &Run::solveIp,      &Run::fetchIpSolution,   &Run::endAtIpLimit};
    for (const auto step : steps) {
        if (Step ending = (this->*step)()) return std::move(*ending);
    }
    return finish();
}

Status Run::close(Ending ending) {
    if (model_.ending) model_.ending();
    const Status result = ending.outcome.status();
    if (memoryTaken_ && !ending.plainReturn) engine().FreeMemory();
    noted_.reset();
    model_.engine.reset();
    model_.presence.leave();
    if (ending.plainReturn) return result;
    if (result.failed() && !ending.outcome.description().empty()) model_.pendingError = std::move(ending.outcome);
    model_.busy.store(false, std::memory_order_release);
    // The sink may start the next run, so nothing of this one is touched any more.
    if (model_.finished) model_.finished();
    return result;
}

Run::Step Run::bind() {
    const Status bound = model_.binding.bindEngine();
    if (bound == status::entryPointsMissing) return fail(bound, "Could not get TARQ.DLL function handles.");
    model_.engine = model_.binding.engine();
    if (!bound.isOk() || !model_.engine) return fail(status::libraryNotFound, "Could not find TARQ.DLL.");
    return {};
}

Run::Step Run::takeMemory() {
    engine().SetParameter("xoutlv=1");
    std::int32_t result = 0;
    writeShared(model_.engineThread, currentThreadNumber());
    memoryTaken_ = true;
    if (engine().hasInitialize()) {
        result = engine().Initialize();
    } else {
        const std::int32_t megabytes = longParameter("xmreal");
        const bool usable = megabytes >= smallestMemory && megabytes <= largestMemory;
        result = engine().AllocateMemory(usable ? megabytes : automaticMemory);
    }
    if (!engine().licenceAccepted()) return fail(status::engineSetup, "Error initializing TARQ.DLL.");
    if (result != 0) return fail(status::engineMemory, "Error, cannot allocate requested memory");
    return {};
}

Run::Step Run::prepareEmptyModel() {
    if (engine().hasInitialize()) return {};
    const ModelDimensions needed = [this] {
        const auto held = model_.store.gate().moment();
        return dimensionsOf(model_.store);
    }();
    ModelDimensions maximal;
    engine().GetMaxDim(&maximal.rows, &maximal.columns, &maximal.nonzeros);
    const std::int32_t result =
        engine().SetMaxLPDim(std::max(maximal.rows, needed.rows), std::max(maximal.columns, needed.columns),
                             std::max(maximal.nonzeros, needed.nonzeros));
    if (result != 0) return fail(status::engineSetup, "Error setting max LP dimensions.");
    if (engine().InitModel() != 0) return fail(status::engineSetup, "Error initializing TARQ.DLL.");
    return {};
}

Run::Step Run::passParameters() {
    const auto rows = parameterRows();
    std::string assignment;
    for (int row = 0; row < parameterCount; ++row) {
        const auto& [name, type] =
            std::pair(rows[static_cast<std::size_t>(row)].name, rows[static_cast<std::size_t>(row)].type);
        // The break frequencies go as arguments of the stages.
        if (name == "xfrite" || name == "xfrnds") continue;
        if (name == "xmreal" && engine().hasInitialize()) continue;
        const std::string value = model_.parameters.valueText(row);
        if (name == "xminmx") writeShared(model_.maximizing, value == "max");
        const std::string_view quote = type == ParameterType::String ? "'" : "";
        assignment.assign(name).append("=").append(quote).append(value).append(quote);
        engine().SetParameter(assignment.c_str());
    }
    return {};
}

Run::Step Run::prepareCallback() {
    model_.parameters.clearResults();
    {
        const auto held = model_.store.gate().moment();
        hasIntegerColumn_ = model_.store.hasIntegerColumn();
    }
    if (engine().hasSetCallback()) engine().SetCallback(&tarqEngineCallback, hasIntegerColumn_ ? 0 : 1);
    return {};
}

std::optional<ModelArrays> Run::flattened() {
    const auto held = model_.store.gate().moment();
    return fitsEngine(model_.store) ? std::optional<ModelArrays>(std::in_place, model_.store) : std::nullopt;
}

Run::Step Run::transferModel() {
    constexpr std::int32_t outOfMemory = 1;
    constexpr std::int32_t inputError = 2;
    std::int32_t result = inputError;
    if (const auto arrays = flattened()) {
        dimensions_ = arrays->dimensions();
        result = arrays->putInto(engine());
        captureMessage();
    }
    if (result == outOfMemory) {
        return fail(status::engineMemory, "Not enough memory for model in TARQ.DLL increase XMREAL.");
    }
    if (result == inputError) return fail(status::engineSetup, "Input error while transfering model to TARQ.DLL.");
    return {};
}

Run::Step Run::resetSummary() {
    model_.summary.reset();
    if (stopRequested()) return finish();
    return {};
}

Run::Step Run::solveLp() {
    constexpr std::int32_t infeasible = 1;
    constexpr std::int32_t unbounded = 2;
    SolutionSummary& summary = model_.summary;
    std::int32_t lpStatus = 0;
    lpResult_ = engine().OptimizeLP(longParameter("xfrite"), &summary.lpIterations, &summary.lpInfeasibilities,
                                    &lpStatus, &summary.lpObjectiveValue, &summary.lpSumInfeasibilities);
    captureMessage();
    if (isCrucial(lpResult_)) return failCrucially(lpErrorStatus(lpResult_));
    if (lpResult_ == stageresult::solved && (lpStatus == infeasible || lpStatus == unbounded)) {
        setSolutionStatus(lpSolutionStatus(lpStatus));
        setSolverStatus(TARQSolverStatusTyp::LPFinished);
        return finish();
    }
    return {};
}

Run::Step Run::fetchLpSolution() {
    constexpr std::int32_t optimal = 0;
    std::int32_t status = -1;
    {
        SolutionArrays solution(dimensions_);
        engine().GetLPSolution(&status, &model_.summary.lpObjectiveValue, solution.values.data(),
                               solution.reducedCosts.data(), solution.basisStatus.data());
        if (status == optimal) solution.copyInto(model_.store, &ColumnRecord::lpValue, &RowRecord::lpValue);
    }
    readResultValues(model_);
    setSolutionStatus(lpSolutionStatus(status));
    return {};
}

Run::Step Run::endAtLpLimit() {
    if (lpResult_ == stageresult::limitReached) {
        EngineText limit;
        setSolverStatus(lpLimitStatus(limit.read(engine(), "xertyp") ? limit.integer() : 0));
        return end(status::resourceLimit);
    }
    if (lpResult_ == stageresult::stoppedAtBreak) {
        setSolverStatus(TARQSolverStatusTyp::LPxfriteReached);
        return end(status::stoppedAtBreak);
    }
    return {};
}

Run::Step Run::decideOnIp() {
    if (lpResult_ == stageresult::solved) setSolverStatus(TARQSolverStatusTyp::LPFinished);
    if (!hasIntegerColumn_ || longParameter("xlpmip") == 0 || stopRequested()) return finish();
    // Holds for every status that the LP stage leaves: a run always starts from the beginning, and one that stopped at
    // a break isn't continued.
    const TARQSolverStatusTyp reached = readShared(model_.summary.solverStatus);
    if (reached != TARQSolverStatusTyp::LPFinished && reached != TARQSolverStatusTyp::IPxfrndsReached) {
        return Ending{.outcome = {}, .plainReturn = true};
    }
    return {};
}

Run::Step Run::solveIp() {
    SolutionSummary& summary = model_.summary;
    ipResult_ = engine().OptimizeIP(longParameter("xfrnds"), &summary.nodesProcessed, &summary.integerSolutions,
                                    &ipStopReason_, &summary.ipObjectiveValue, &summary.ipBestPossible);
    captureMessage();
    if (isCrucial(ipResult_)) return failCrucially(ipErrorStatus(ipResult_));
    return {};
}

Run::Step Run::fetchIpSolution() {
    constexpr std::int32_t optimal = 0;
    constexpr std::int32_t suboptimal = 3;
    std::int32_t status = -1;
    {
        SolutionArrays solution(dimensions_);
        engine().GetIPSolution(&status, &model_.summary.ipObjectiveValue, solution.values.data(),
                               solution.reducedCosts.data(), solution.basisStatus.data());
        if (status == optimal || status == suboptimal) {
            solution.copyInto(model_.store, &ColumnRecord::ipValue, &RowRecord::ipValue);
        }
    }
    readResultValues(model_);
    setSolutionStatus(ipSolutionStatus(status));
    return {};
}

Run::Step Run::endAtIpLimit() {
    if (ipResult_ == stageresult::limitReached) {
        setSolverStatus(ipLimitStatus(ipStopReason_));
        return end(status::resourceLimit);
    }
    if (ipResult_ == stageresult::stoppedAtBreak) {
        setSolverStatus(TARQSolverStatusTyp::IPxfrndsReached);
        return end(status::stoppedAtBreak);
    }
    setSolverStatus(TARQSolverStatusTyp::IPFinished);
    return {};
}

Ending Run::failCrucially(TARQSolverStatusTyp solverStatus) {
    setSolverStatus(solverStatus);
    setSolutionStatus(TARQSolutionStatusTyp::UndefinedSolutionStatus);
    return fail(status::crucialError, "Crucial error. Check SolverStatus() and LastSolverMessage() for details.");
}

void Run::captureMessage() {
    EngineText first;
    EngineText second;
    // An engine that refuses leaves the text empty.
    static_cast<void>(first.read(engine(), "xline1"));
    static_cast<void>(second.read(engine(), "xline2"));
    std::string message(first.view());
    if (!second.view().empty()) message.append(" ").append(second.view());
    model_.summary.lastSolverMessage.set(message);
}

}  // namespace

void SolutionSummary::reset() {
    for (double* value : {&lpObjectiveValue, &ipObjectiveValue, &ipBestPossible, &lpSumInfeasibilities}) {
        writeShared(*value, 0.0);
    }
    for (std::int32_t* count : {&lpIterations, &lpInfeasibilities, &nodesProcessed, &integerSolutions}) {
        writeShared(*count, 0);
    }
    writeShared(solverStatus, TARQSolverStatusTyp::UndefinedSolverStatus);
    writeShared(solutionStatus, TARQSolutionStatusTyp::UndefinedSolutionStatus);
    lastSolverMessage.set({});
}

Status runOptimization(RunModel& model) { return Run(model).execute(); }

}  // namespace tarq
