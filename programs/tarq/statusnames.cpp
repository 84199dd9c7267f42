#include "statusnames.h"

#include <algorithm>
#include <span>

namespace tarq::command {

namespace {

template <class Status>
struct Name {
    Status status;
    std::string_view name;
};

constexpr Name<TARQSolverStatusTyp> solverStatusNames[] = {
    {TARQSolverStatusTyp::UndefinedSolverStatus, "UndefinedSolverStatus"},
    {TARQSolverStatusTyp::LPFinished, "LPFinished"},
    {TARQSolverStatusTyp::LPInputError, "LPInputError"},
    {TARQSolverStatusTyp::LPOutputError, "LPOutputError"},
    {TARQSolverStatusTyp::LPNumericError, "LPNumericError"},
    {TARQSolverStatusTyp::LPInternalSystemError, "LPInternalSystemError"},
    {TARQSolverStatusTyp::LPGeneralError, "LPGeneralError"},
    {TARQSolverStatusTyp::LPxmiterReached, "LPxmiterReached"},
    {TARQSolverStatusTyp::LPxmxtlpReached, "LPxmxtlpReached"},
    {TARQSolverStatusTyp::LPxmitipReached, "LPxmitipReached"},
    {TARQSolverStatusTyp::LPxmxnenExceeded, "LPxmxnenExceeded"},
    {TARQSolverStatusTyp::LPxmxdskExceeded, "LPxmxdskExceeded"},
    {TARQSolverStatusTyp::LPOtherResourceLimitReached, "LPOtherResourceLimitReached"},
    {TARQSolverStatusTyp::LPxfriteReached, "LPxfriteReached"},
    {TARQSolverStatusTyp::IPFinished, "IPFinished"},
    {TARQSolverStatusTyp::IPInputError, "IPInputError"},
    {TARQSolverStatusTyp::IPOutputError, "IPOutputError"},
    {TARQSolverStatusTyp::IPNumericError, "IPNumericError"},
    {TARQSolverStatusTyp::IPInternalSystemError, "IPInternalSystemError"},
    {TARQSolverStatusTyp::IPGeneralError, "IPGeneralError"},
    {TARQSolverStatusTyp::IPxmxnodReached, "IPxmxnodReached"},
    {TARQSolverStatusTyp::IPxmxminReached, "IPxmxminReached"},
    {TARQSolverStatusTyp::IPxmxdskExceeded, "IPxmxdskExceeded"},
    {TARQSolverStatusTyp::IPNodesBufferTooSmall, "IPNodesBufferTooSmall"},
    {TARQSolverStatusTyp::IPOtherResourceLimitReached, "IPOtherResourceLimitReached"},
    {TARQSolverStatusTyp::IPxfrndsReached, "IPxfrndsReached"},
};

constexpr Name<TARQSolutionStatusTyp> solutionStatusNames[] = {
    {TARQSolutionStatusTyp::UndefinedSolutionStatus, "UndefinedSolutionStatus"},
    {TARQSolutionStatusTyp::LPOptimalSolution, "LPOptimalSolution"},
    {TARQSolutionStatusTyp::LPInfeasible, "LPInfeasible"},
    {TARQSolutionStatusTyp::LPUnbounded, "LPUnbounded"},
    {TARQSolutionStatusTyp::LPOnlyPrimalFeasible, "LPOnlyPrimalFeasible"},
    {TARQSolutionStatusTyp::LPOnlyDualFeasible, "LPOnlyDualFeasible"},
    {TARQSolutionStatusTyp::IPOptimalSolution, "IPOptimalSolution"},
    {TARQSolutionStatusTyp::IPSubOptimalSolution, "IPSubOptimalSolution"},
    {TARQSolutionStatusTyp::IPNoSolution, "IPNoSolution"},
};

constexpr Name<TARQColRowStatusType> basisStatusNames[] = {
    {TARQColRowStatusType::UndefinedVarStatus, "UndefinedVarStatus"},
    {TARQColRowStatusType::StatusBasic, "StatusBasic"},
    {TARQColRowStatusType::StatusLB, "StatusLB"},
    {TARQColRowStatusType::StatusUB, "StatusUB"},
    {TARQColRowStatusType::StatusFixed, "StatusFixed"},
    {TARQColRowStatusType::StatusSuperBasic, "StatusSuperBasic"},
};

constexpr Name<TARQSolverStatusTyp> limits[] = {
    {TARQSolverStatusTyp::LPxmiterReached, "the iteration limit (xmiter)"},
    {TARQSolverStatusTyp::LPxmxtlpReached, "the time limit of the LP (xmxtlp)"},
    {TARQSolverStatusTyp::LPxmitipReached, "the iteration limit of a node (xmitip)"},
    {TARQSolverStatusTyp::LPOtherResourceLimitReached, "a resource limit of the engine"},
    {TARQSolverStatusTyp::LPxfriteReached, "a break of the LP (xfrite)"},
    {TARQSolverStatusTyp::IPxmxnodReached, "the node limit (xmxnod)"},
    {TARQSolverStatusTyp::IPxmxminReached, "the time limit (xmxmin)"},
    {TARQSolverStatusTyp::IPxmxdskExceeded, "the disk space limit (xmxdsk)"},
    {TARQSolverStatusTyp::IPNodesBufferTooSmall, "a node buffer that is too small"},
    {TARQSolverStatusTyp::IPOtherResourceLimitReached, "a resource limit of the engine"},
    {TARQSolverStatusTyp::IPxfrndsReached, "a break of branch and bound (xfrnds)"},
};

template <class Status>
std::string_view find(std::span<const Name<Status>> names, Status status, std::string_view otherwise) {
    const auto found = std::find_if(names.begin(), names.end(), [&](const auto& row) { return row.status == status; });
    return found == names.end() ? otherwise : found->name;
}

}  // namespace

std::string_view nameOf(TARQSolverStatusTyp status) {
    return find<TARQSolverStatusTyp>(solverStatusNames, status, "Unknown");
}

std::string_view nameOf(TARQSolutionStatusTyp status) {
    return find<TARQSolutionStatusTyp>(solutionStatusNames, status, "Unknown");
}

std::string_view nameOf(TARQColRowStatusType status) {
    return find<TARQColRowStatusType>(basisStatusNames, status, "Unknown");
}

std::string_view limitOf(TARQSolverStatusTyp status) { return find<TARQSolverStatusTyp>(limits, status, {}); }

}  // namespace tarq::command
