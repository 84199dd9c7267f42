#include "optionmapping.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <thread>
#include <variant>

namespace tarq::engine {

namespace {

// A number that HiGHS is told, times a factor and within its own limits.
struct NumberRule {
    Stage stage;
    std::string_view parameter;
    const char* option;
    double factor;
    double least;
};

// The factors make the defaults of both sides meet: xtolx is 1e-4 where HiGHS has 1e-7, xtolin 1e-5 where it has 1e-6.
// What is asked for is so kept with a margin, which the way back from the presolved model can use up.
constexpr std::array numberRules{
    NumberRule{Stage::Lp, "xtolx", "primal_feasibility_tolerance", 1e-3, 1e-10},
    NumberRule{Stage::Lp, "xtold2", "dual_feasibility_tolerance", 1.0, 1e-10},
    NumberRule{Stage::Ip, "xtolx", "primal_feasibility_tolerance", 1e-3, 1e-10},
    NumberRule{Stage::Ip, "xtold2", "dual_feasibility_tolerance", 1.0, 1e-10},
    NumberRule{Stage::Ip, "xtolin", "mip_feasibility_tolerance", 0.1, 1e-10},
    NumberRule{Stage::Ip, "xglgap", "mip_rel_gap", 1.0, 0.0},
    NumberRule{Stage::Ip, "xabgap", "mip_abs_gap", 1.0, 0.0},
};

using OptionValue = std::variant<HighsInt, double, const char*>;

// What HiGHS is told for one value of a parameter; values that aren't listed leave the option as HiGHS has it.
struct ChoiceRule {
    Stage stage;
    std::string_view parameter;
    int value;
    const char* option;
    OptionValue told;
};

const std::array choiceRules{
    ChoiceRule{Stage::Lp, "xlptyp", 0, "simplex_strategy", kSimplexStrategyPrimal},
    ChoiceRule{Stage::Lp, "xlptyp", 2, "simplex_strategy", kSimplexStrategyDual},
    ChoiceRule{Stage::Lp, "xlptyp", 4, "solver", "ipm"},
    ChoiceRule{Stage::Lp, "xipxov", 0, "run_crossover", "off"},
    ChoiceRule{Stage::Lp, "xrduce", 0, "presolve", "off"},
    ChoiceRule{Stage::Lp, "xscale", 0, "simplex_scale_strategy", HighsInt{0}},
    ChoiceRule{Stage::Lp, "xdjscl", 0, "simplex_dual_edge_weight_strategy", HighsInt{0}},
    ChoiceRule{Stage::Lp, "xdjscl", 0, "simplex_primal_edge_weight_strategy", HighsInt{0}},
    ChoiceRule{Stage::Lp, "xdjscl", 2, "simplex_dual_edge_weight_strategy", HighsInt{1}},
    ChoiceRule{Stage::Lp, "xdjscl", 2, "simplex_primal_edge_weight_strategy", HighsInt{1}},
    ChoiceRule{Stage::Lp, "xdjscl", 3, "simplex_dual_edge_weight_strategy", HighsInt{2}},
    ChoiceRule{Stage::Lp, "xdjscl", 3, "simplex_primal_edge_weight_strategy", HighsInt{2}},
    ChoiceRule{Stage::Ip, "xnopre", 0, "presolve", "off"},
    ChoiceRule{Stage::Ip, "xscale", 0, "simplex_scale_strategy", HighsInt{0}},
    ChoiceRule{Stage::Ip, "xheutp", 0, "mip_heuristic_effort", 0.0},
};

constexpr int usualUpdates = 100;  // the default of xfrinv, for which HiGHS decides by itself

}  // namespace

void applyOptions(const ParameterValues& parameters, Stage stage, Highs& highs) {
    highs.setOptionValue("solver", stage == Stage::Lp ? "simplex" : "choose");
    for (const NumberRule& rule : numberRules) {
        if (rule.stage != stage) continue;
        highs.setOptionValue(rule.option, std::max(rule.least, parameters.number(rule.parameter) * rule.factor));
    }
    for (const ChoiceRule& rule : choiceRules) {
        if (rule.stage != stage || parameters.integer(rule.parameter) != rule.value) continue;
        std::visit([&](auto told) { highs.setOptionValue(rule.option, told); }, rule.told);
    }
    if (stage == Stage::Lp && parameters.integer("xlptyp") == 4) {
        const bool primal = parameters.integer("xipxov") == 2;
        highs.setOptionValue("simplex_strategy", primal ? kSimplexStrategyPrimal : kSimplexStrategyDual);
    }
    if (const int updates = parameters.integer("xfrinv"); updates != usualUpdates) {
        highs.setOptionValue("simplex_update_limit", std::max(1, updates));
    }
    if (parameters.integer("xoutlv") >= 3) highs.setOptionValue("log_dev_level", kHighsLogDevLevelInfo);
    highs.setOptionValue("threads", wantedThreads(parameters));
}

int wantedThreads(const ParameterValues& parameters) {
    const int offered = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
    return std::clamp(parameters.integer("xnproc"), 1, offered);
}

double secondsOf(double minutes) { return minutes >= 1e15 ? kHighsInf : std::max(0.0, minutes * 60.0); }

bool isMaximizing(const ParameterValues& parameters) { return lowerCase(parameters.text("xminmx")) == "max"; }

double integralityTolerance(const ParameterValues& parameters) { return std::max(1e-6, parameters.number("xtolin")); }

}  // namespace tarq::engine
