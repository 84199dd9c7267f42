// ResultValues: the results that GetParameter serves beside the parameters.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarq::engine {

/// Objective values have the sign of the client's objective, but for the three in minimization form. Times are in
/// seconds. 1e20 and -1e20 stand for values that aren't known yet.
struct ResultValues {
    std::int64_t nodes = 0;             ///< xnodes
    double ipObjective = 0.0;           ///< xipfun: best integer solution
    double gap = 0.0;                   ///< xcmgap: relative, as xglgap
    double runSeconds = 0.0;            ///< xctime: since the model was put
    double ipSeconds = 0.0;             ///< xiptim
    std::int64_t iterations = 0;        ///< xiter: of the LP stage
    double lpObjective = 0.0;           ///< xlpfun
    double lpSeconds = 0.0;             ///< xlptim
    double best = 0.0;                  ///< xzbest: best integer solution, minimization form
    double lowerBound = 0.0;            ///< xzlbnd: of all waiting nodes, minimization form
    double upperBound = 0.0;            ///< xzubnd: best solution or cut-off, minimization form
    std::int64_t integerSolutions = 0;  ///< xnints
    std::int64_t infeasibilities = 0;   ///< xnif: of the LP stage
    double branchingAfter = 0.0;        ///< xsipti: seconds of the IP stage before branching began
};

/// Text of the result of a lower-case name; nothing when there is no such result.
[[nodiscard]] std::optional<std::string> resultText(const ResultValues& results, std::string_view name);

/// Stands for what isn't known or isn't limited, with either sign.
inline constexpr double unknownValue = 1e20;

}  // namespace tarq::engine
