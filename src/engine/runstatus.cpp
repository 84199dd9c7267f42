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

constexpr Meanings<TARQSolverStatusTyp, 4> lpErrors{
    {{2, LPInputError}, {3, LPOutputError}, {4, LPNumericError}, {6, LPInternalSystemError}}};
constexpr Meanings<TARQSolverStatusTyp, 4> ipErrors{
    {{2, IPInputError}, {3, IPOutputError}, {4, IPNumericError}, {6, IPInternalSystemError}}};
constexpr Meanings<TARQSolverStatusTyp, 3> lpLimits{{{1, LPxmiterReached}, {2, LPxmxtlpReached}, {4, LPxmitipReached}}};
constexpr Meanings<TARQSolverStatusTyp, 4> ipLimits{
    {{3, IPxmxminReached}, {6, IPxmxnodReached}, {7, IPNodesBufferTooSmall}, {9, IPxmxdskExceeded}}};
constexpr Meanings<TARQSolutionStatusTyp, 6> lpSolutions{{{0, LPOptimalSolution},
                                                          {1, LPInfeasible},
                                                          {2, LPUnbounded},
                                                          {3, LPOnlyPrimalFeasible},
                                                          {4, LPOnlyDualFeasible},
                                                          {5, LPInfeasible}}};
constexpr Meanings<TARQSolutionStatusTyp, 3> ipSolutions{
    {{0, IPOptimalSolution}, {3, IPSubOptimalSolution}, {4, IPNoSolution}}};

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
