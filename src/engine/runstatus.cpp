#include "engine/runstatus.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tarq {
namespace {

using enum TARQSolverStatusTyp;
using enum TARQSolutionStatusTyp;

template <class Published>
struct Meaning {
    std::int32_t code;
    Published published;
};

template <class Published, std::size_t size>
using Meanings = std::array<Meaning<Published>, size>;

constexpr Meanings<TARQSolverStatusTyp, 4> lpErrors{{{TarqInputError, LPInputError},
                                                     {TarqOutputError, LPOutputError},
                                                     {TarqNumericError, LPNumericError},
                                                     {TarqInternalError, LPInternalSystemError}}};
constexpr Meanings<TARQSolverStatusTyp, 4> ipErrors{{{TarqInputError, IPInputError},
                                                     {TarqOutputError, IPOutputError},
                                                     {TarqNumericError, IPNumericError},
                                                     {TarqInternalError, IPInternalSystemError}}};
constexpr Meanings<TARQSolverStatusTyp, 3> lpLimits{{{TarqLPIterationLimit, LPxmiterReached},
                                                     {TarqLPTimeLimit, LPxmxtlpReached},
                                                     {TarqLPNodeIterationLimit, LPxmitipReached}}};
constexpr Meanings<TARQSolverStatusTyp, 4> ipLimits{{{TarqIPTimeLimit, IPxmxminReached},
                                                     {TarqIPNodeLimit, IPxmxnodReached},
                                                     {TarqIPNodeBufferFull, IPNodesBufferTooSmall},
                                                     {TarqIPDiskFull, IPxmxdskExceeded}}};
constexpr Meanings<TARQSolutionStatusTyp, 6> lpSolutions{{{TarqLPSolutionOptimal, LPOptimalSolution},
                                                          {TarqLPSolutionInfeasible, LPInfeasible},
                                                          {TarqLPSolutionUnbounded, LPUnbounded},
                                                          {TarqLPSolutionPrimalFeasible, LPOnlyPrimalFeasible},
                                                          {TarqLPSolutionDualFeasible, LPOnlyDualFeasible},
                                                          {TarqLPSolutionNoneFeasible, LPInfeasible}}};
constexpr Meanings<TARQSolutionStatusTyp, 3> ipSolutions{{{TarqIPSolutionOptimal, IPOptimalSolution},
                                                          {TarqIPSolutionSuboptimal, IPSubOptimalSolution},
                                                          {TarqIPSolutionNone, IPNoSolution}}};

template <class Published, std::size_t size>
Published published(const Meanings<Published, size>& meanings, std::int32_t code, Published otherwise) {
    const auto* found = std::ranges::find(meanings, code, &Meaning<Published>::code);
    return found == meanings.end() ? otherwise : found->published;
}

}  // namespace

TARQSolverStatusTyp lpErrorStatus(std::int32_t result) { return published(lpErrors, result, LPGeneralError); }

TARQSolverStatusTyp ipErrorStatus(std::int32_t result) { return published(ipErrors, result, IPGeneralError); }

TARQSolverStatusTyp lpLimitStatus(std::int32_t xertyp) {
    return published(lpLimits, xertyp, LPOtherResourceLimitReached);
}

TARQSolverStatusTyp ipLimitStatus(std::int32_t stopReason) {
    return published(ipLimits, stopReason, IPOtherResourceLimitReached);
}

TARQSolutionStatusTyp lpSolutionStatus(std::int32_t status) {
    return published(lpSolutions, status, UndefinedSolutionStatus);
}

TARQSolutionStatusTyp ipSolutionStatus(std::int32_t status) {
    return published(ipSolutions, status, UndefinedSolutionStatus);
}

}  // namespace tarq
