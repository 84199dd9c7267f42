#include "runoperations.h"

#include <algorithm>
#include <utility>

namespace tarq::engine {

namespace {

ReportedModel reportedModel(const ModelArrays& arrays, const BuiltModel& built, bool maximize) {
    const auto integers = std::count(built.integrality.begin(), built.integrality.end(), HighsVarType::kInteger);
    return {.rows = arrays.rows,
            .columns = arrays.columns,
            .nonzeros = static_cast<std::int64_t>(built.lp.a_matrix_.value_.size()),
            .integers = static_cast<std::int32_t>(integers),
            .maximize = maximize};
}

}  // namespace

std::int32_t RunOperations::fail(std::int32_t result, const std::string& text) {
    delivery_.note(text);
    return result;
}

std::int32_t RunOperations::start() {
    if (isAtWork()) return failAtWork();
    runner_.clear();
    delivery_.clear();
    return TarqSuccess;
}

std::int32_t RunOperations::setParameter(std::string_view assignment) {
    const auto equals = assignment.find('=');
    if (lowerCase(trimmed(assignment.substr(0, equals))) == "xcbstp" && equals != std::string_view::npos) {
        runner_.requestStop(parseNumber(trimmed(assignment.substr(equals + 1))).value_or(0.0) != 0.0);
        return TarqSuccess;
    }
    const std::string failure = parameters_.assign(assignment);
    return failure.empty() ? TarqSuccess : fail(TarqInputError, failure);
}

std::optional<std::string> RunOperations::parameter(std::string_view name) const {
    if (auto text = delivery_.value(name)) return text;
    return parameters_.shown(name);
}

std::int32_t RunOperations::putModel(const ModelArrays& arrays) {
    if (const std::int32_t refused = start(); refused != TarqSuccess) return refused;
    BuiltModel built;
    if (const std::string failure = buildModel(arrays, parameters_.number("xdropm"), built); !failure.empty()) {
        return fail(TarqInputError, failure);
    }
    const bool maximize = isMaximizing(parameters_);
    delivery_.setModel(reportedModel(arrays, built, maximize));
    if (!runner_.openLog()) delivery_.noteFileFailure("xfnlog");
    delivery_.noteFileFailures();
    if (!runner_.load(std::move(built), maximize)) return fail(TarqInputError, runner_.log().message());
    return TarqSuccess;
}

std::int32_t RunOperations::optimizeLp(int iterationFrequency, const LpOutputs& outputs) {
    if (isAtWork()) return failAtWork();
    if (!outputs.areWhole()) return fail(TarqInputError, "OptimizeLP needs all its outputs.");
    if (!runner_.hasModel()) return fail(TarqInputError, "There is no model to optimize.");
    delivery_.beginStage(Stage::Lp);
    show(outputs.lpStatus, TarqLPSolvable);
    StageOutcome outcome = runner_.run({.stage = Stage::Lp, .frequency = iterationFrequency},
                                       [&](const StageControl& control) { delivery_.showLp(control, outputs); });
    const std::int32_t result = outcome.result;
    show(outputs.lpStatus, outcome.lpStatus);
    delivery_.endStage(Stage::Lp, std::move(outcome), runner_.log());
    return result;
}

std::int32_t RunOperations::optimizeIp(int nodeFrequency, const IpOutputs& outputs) {
    if (isAtWork()) return failAtWork();
    if (!outputs.areWhole()) return fail(TarqInputError, "OptimizeIP needs all its outputs.");
    const StageOutcome* const lp = delivery_.outcome(Stage::Lp);
    if (!runner_.hasModel() || !lp || lp->result != TarqSuccess) {
        return fail(TarqInputError, "There is no model whose LP has been solved.");
    }
    if (!runner_.hasIntegers()) return fail(TarqInputError, "The model has no integer columns.");
    if (lp->lpStatus != TarqLPSolvable) return fail(TarqInputError, "The LP relaxation has no optimum.");
    delivery_.beginStage(Stage::Ip);
    show(outputs.stopReason, TarqIPOtherLimit);
    StageOutcome outcome = runner_.run({.stage = Stage::Ip, .frequency = nodeFrequency, .bestPossible = lp->objective},
                                       [&](const StageControl& control) { delivery_.showIp(control, outputs); });
    const std::int32_t result = outcome.result;
    show(outputs.stopReason, outcome.limit);
    delivery_.endStage(Stage::Ip, std::move(outcome), runner_.log());
    return result;
}

std::int32_t RunOperations::solution(Stage stage, const SolutionOutputs& outputs) {
    const StageOutcome* const outcome = delivery_.outcome(stage);
    if (!outcome) {
        return fail(TarqInputError,
                    stage == Stage::Lp ? "The LP has not been optimized." : "Branch and bound has not been run.");
    }
    return delivery_.deliver(*outcome, outputs) ? TarqSuccess : TarqInputError;
}

}  // namespace tarq::engine
