// The outputs of the stages and of the solutions, as a client hands them over.
#pragma once

#include <cstdint>

namespace tarq::engine {

/// Of OptimizeLP.
struct LpOutputs {
    std::int32_t* iterations;
    std::int32_t* infeasibilities;
    std::int32_t* lpStatus;
    double* objective;
    double* sumOfInfeasibilities;

    [[nodiscard]] bool areWhole() const {
        return iterations && infeasibilities && lpStatus && objective && sumOfInfeasibilities;
    }
};

/// Of OptimizeIP.
struct IpOutputs {
    std::int32_t* nodes;
    std::int32_t* integerSolutions;
    std::int32_t* stopReason;
    double* objective;
    double* bestPossible;

    [[nodiscard]] bool areWhole() const { return nodes && integerSolutions && stopReason && objective && bestPossible; }
};

/// Of GetLPSolution and GetIPSolution; the arrays hold the columns first and the rows behind them.
struct SolutionOutputs {
    std::int32_t* status;
    double* objective;
    double* values;
    double* reducedCosts;
    std::int32_t* basisStatus;
};

}  // namespace tarq::engine
