// The published enumerations of the object interface.
#pragma once

#include <cstdint>

namespace tarq {

enum class TARQColType : std::int32_t { Continuous = 0, Integer = 1, Binary = 2 };

enum class TARQColRowStatusType : std::int32_t {
    UndefinedVarStatus = 0,
    StatusBasic = 1,
    StatusLB = 2,
    StatusUB = 3,
    StatusFixed = 4,
    StatusSuperBasic = 5,
};

enum class TARQFileFormatType : std::int32_t { MPS = 0, Triplet = 1, Lindo = 2 };

/// How the solver engine ended its latest run.
enum class TARQSolverStatusTyp : std::int32_t {
    UndefinedSolverStatus = 0,
    LPFinished = 1,
    LPInputError = 10,
    LPOutputError = 11,
    LPNumericError = 12,
    LPInternalSystemError = 13,
    LPGeneralError = 14,
    LPxmiterReached = 20,
    LPxmxtlpReached = 21,
    LPxmitipReached = 22,
    LPxmxnenExceeded = 23,
    LPxmxdskExceeded = 24,
    LPOtherResourceLimitReached = 25,
    LPxfriteReached = 99,
    IPFinished = 101,
    IPInputError = 110,
    IPOutputError = 111,
    IPNumericError = 112,
    IPInternalSystemError = 113,
    IPGeneralError = 114,
    IPxmxnodReached = 120,
    IPxmxminReached = 121,
    IPxmxdskExceeded = 122,
    IPNodesBufferTooSmall = 123,
    IPOtherResourceLimitReached = 124,
    IPxfrndsReached = 199,
};

/// What the latest run knows of the solution.
enum class TARQSolutionStatusTyp : std::int32_t {
    UndefinedSolutionStatus = 0,
    LPOptimalSolution = 1,
    LPInfeasible = 2,
    LPUnbounded = 3,
    LPOnlyPrimalFeasible = 4,
    LPOnlyDualFeasible = 5,
    IPOptimalSolution = 101,
    IPSubOptimalSolution = 102,
    IPNoSolution = 103,
};

}  // namespace tarq
