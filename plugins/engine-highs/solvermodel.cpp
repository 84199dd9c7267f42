#include "solvermodel.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

namespace tarq::engine {

namespace {

#if defined(_WIN32)
constexpr const char* nullDevice = "NUL";
#else
constexpr const char* nullDevice = "/dev/null";
#endif

constexpr auto relaxed = std::memory_order_relaxed;

LogKind kindOf(int type) {
    if (type == static_cast<int>(HighsLogType::kError)) return LogKind::Error;
    return type == static_cast<int>(HighsLogType::kWarning) ? LogKind::Warning : LogKind::Info;
}

// The log line of the simplex method is the only place where HiGHS tells objective and infeasibilities on the way:
// iterations, objective, and Pr: or Ph1: with the number of infeasibilities and their sum in brackets.
void takeSimplexLine(const char* line, Progress& progress) {
    long long iterations = 0;
    long long infeasibilities = 0;
    double objective = 0.0;
    double sum = 0.0;
    char phase[4] = {};
    // A number out of range would only be shown as it comes out.
    // NOLINTNEXTLINE(cert-err34-c)
    if (std::sscanf(line, "%lld %lf %3[Ph1r]: %lld(%lf)", &iterations, &objective, phase, &infeasibilities, &sum) !=
        5) {
        return;
    }
    progress.objective.store(objective, relaxed);
    progress.infeasibilities.store(infeasibilities, relaxed);
    progress.sumOfInfeasibilities.store(sum, relaxed);
}

void takeMipState(const HighsCallbackDataOut& state, const Watch& watch) {
    Progress& progress = watch.control->progress;
    progress.nodes.store(watch.nodesBefore + state.mip_node_count, relaxed);
    progress.iterations.store(watch.iterationsBefore + state.mip_total_lp_iterations, relaxed);
    if (std::isfinite(state.mip_dual_bound)) progress.bestPossible.store(state.mip_dual_bound, relaxed);
    if (state.mip_node_count > 0 && progress.secondsToBranching.load(relaxed) < 0.0) {
        progress.secondsToBranching.store(watch.control->seconds(), relaxed);
    }
}

void takeImprovement(const HighsCallbackDataOut& state, const Watch& watch, const SolverModel& model) {
    if (!state.mip_solution) return;
    const HighsLp& lp = model.highs.getLp();
    std::vector<double> values(state.mip_solution, state.mip_solution + lp.num_col_);
    std::vector<double> rowValues;
    const PointCheck check = checkPoint(lp, model.integrality, values, model.tolerance, rowValues);
    if (!check.feasible || model.sense() * check.objective >= model.objectiveBound) return;
    Progress& progress = watch.control->progress;
    progress.integerSolutions.fetch_add(1, relaxed);
    progress.objective.store(check.objective, relaxed);
    progress.hasIncumbent.store(true, relaxed);
    const std::lock_guard lock(watch.incumbent->mutex);
    watch.incumbent->columnValues = std::move(values);
    watch.incumbent->rowValues = std::move(rowValues);
    watch.incumbent->objective = check.objective;
    watch.incumbent->found = true;
}

void onCallback(int type, const std::string& message, const HighsCallbackDataOut& out, HighsCallbackDataIn* in,
                const Watch& watch, const SolverModel* model) {
    if (type == kCallbackLogging) {
        watch.log->write(kindOf(out.log_type), message);
        if (watch.control && !watch.incumbent) takeSimplexLine(message.c_str(), watch.control->progress);
        return;
    }
    if (!watch.control) return;
    Progress& progress = watch.control->progress;
    switch (type) {
        case kCallbackSimplexInterrupt:
            // On the way back from presolve HiGHS counts from -1.
            progress.iterations.store(watch.iterationsBefore + std::max<HighsInt>(0, out.simplex_iteration_count),
                                      relaxed);
            break;
        case kCallbackIpmInterrupt:
            if (out.ipm_iteration_count > 0) {
                progress.iterations.store(watch.iterationsBefore + out.ipm_iteration_count, relaxed);
            }
            break;
        case kCallbackMipInterrupt:
            takeMipState(out, watch);
            break;
        case kCallbackMipImprovingSolution:
            if (watch.incumbent && model) takeImprovement(out, watch, *model);
            in->user_interrupt = 0;
            return;
        default:
            return;
    }
    in->user_interrupt = watch.control->atInterruptPoint() != StopReason::None ? 1 : 0;
}

}  // namespace

void observe(Highs& highs, std::shared_ptr<Watch> watch, const SolverModel* model) {
    highs.setCallback([watch = std::move(watch), model](int type, const std::string& message,
                                                        const HighsCallbackDataOut* out, HighsCallbackDataIn* in,
                                                        void*) { onCallback(type, message, *out, in, *watch, model); });
    for (const auto type : {kCallbackLogging, kCallbackSimplexInterrupt, kCallbackIpmInterrupt, kCallbackMipInterrupt,
                            kCallbackMipImprovingSolution}) {
        highs.startCallback(type);
    }
    // HiGHS logs to its callback only when it believes that it has a file or the console; the console is never safe.
    highs.setOptionValue("log_to_console", false);
    highs.setOptionValue("log_file", nullDevice);
}

bool SolverModel::load(BuiltModel model, bool maximize, std::shared_ptr<LogSink> log) {
    auto watch = std::make_shared<Watch>();
    watch->log = std::move(log);
    observe(highs, std::move(watch), nullptr);
    model.lp.sense_ = maximize ? ObjSense::kMaximize : ObjSense::kMinimize;
    integrality = std::move(model.integrality);
    return highs.passModel(std::move(model.lp)) != HighsStatus::kError;
}

void SolverModel::dropIntegrality() {
    if (highs.getLp().integrality_.empty()) return;
    const std::vector<HighsVarType> continuous(integrality.size(), HighsVarType::kContinuous);
    highs.changeColsIntegrality(0, highs.getLp().num_col_ - 1, continuous.data());
}

void allowTimeLeft(Highs& highs, const StageControl& control) {
    highs.zeroAllClocks();
    highs.setOptionValue("time_limit", control.secondsLeft());
}

}  // namespace tarq::engine
