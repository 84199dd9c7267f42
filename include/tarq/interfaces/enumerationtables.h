// The published enumerations as data: their names, for late-bound clients and documentation.
#pragma once

#include <array>

#include "tarq/frame/memberbinding.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

namespace enumerationvalues {

template <class Enumeration>
constexpr EnumerationValue named(std::string_view name, Enumeration value) {
    return {name, static_cast<std::int32_t>(value)};
}

inline constexpr std::array columnType{
    named("Continuous", TARQColType::Continuous),
    named("Integer", TARQColType::Integer),
    named("Binary", TARQColType::Binary),
};

inline constexpr std::array basisStatus{
    named("UndefinedVarStatus", TARQColRowStatusType::UndefinedVarStatus),
    named("StatusBasic", TARQColRowStatusType::StatusBasic),
    named("StatusLB", TARQColRowStatusType::StatusLB),
    named("StatusUB", TARQColRowStatusType::StatusUB),
    named("StatusFixed", TARQColRowStatusType::StatusFixed),
    named("StatusSuperBasic", TARQColRowStatusType::StatusSuperBasic),
};

inline constexpr std::array fileFormat{
    named("MPS", TARQFileFormatType::MPS),
    named("Triplet", TARQFileFormatType::Triplet),
    named("Lindo", TARQFileFormatType::Lindo),
};

inline constexpr std::array solverStatus{
    named("UndefinedSolverStatus", TARQSolverStatusTyp::UndefinedSolverStatus),
    named("LPFinished", TARQSolverStatusTyp::LPFinished),
    named("LPInputError", TARQSolverStatusTyp::LPInputError),
    named("LPOutputError", TARQSolverStatusTyp::LPOutputError),
    named("LPNumericError", TARQSolverStatusTyp::LPNumericError),
    named("LPInternalSystemError", TARQSolverStatusTyp::LPInternalSystemError),
    named("LPGeneralError", TARQSolverStatusTyp::LPGeneralError),
    named("LPxmiterReached", TARQSolverStatusTyp::LPxmiterReached),
    named("LPxmxtlpReached", TARQSolverStatusTyp::LPxmxtlpReached),
    named("LPxmitipReached", TARQSolverStatusTyp::LPxmitipReached),
    named("LPxmxnenExceeded", TARQSolverStatusTyp::LPxmxnenExceeded),
    named("LPxmxdskExceeded", TARQSolverStatusTyp::LPxmxdskExceeded),
    named("LPOtherResourceLimitReached", TARQSolverStatusTyp::LPOtherResourceLimitReached),
    named("LPxfriteReached", TARQSolverStatusTyp::LPxfriteReached),
    named("IPFinished", TARQSolverStatusTyp::IPFinished),
    named("IPInputError", TARQSolverStatusTyp::IPInputError),
    named("IPOutputError", TARQSolverStatusTyp::IPOutputError),
    named("IPNumericError", TARQSolverStatusTyp::IPNumericError),
    named("IPInternalSystemError", TARQSolverStatusTyp::IPInternalSystemError),
    named("IPGeneralError", TARQSolverStatusTyp::IPGeneralError),
    named("IPxmxnodReached", TARQSolverStatusTyp::IPxmxnodReached),
    named("IPxmxminReached", TARQSolverStatusTyp::IPxmxminReached),
    named("IPxmxdskExceeded", TARQSolverStatusTyp::IPxmxdskExceeded),
    named("IPNodesBufferTooSmall", TARQSolverStatusTyp::IPNodesBufferTooSmall),
    named("IPOtherResourceLimitReached", TARQSolverStatusTyp::IPOtherResourceLimitReached),
    named("IPxfrndsReached", TARQSolverStatusTyp::IPxfrndsReached),
};

inline constexpr std::array solutionStatus{
    named("UndefinedSolutionStatus", TARQSolutionStatusTyp::UndefinedSolutionStatus),
    named("LPOptimalSolution", TARQSolutionStatusTyp::LPOptimalSolution),
    named("LPInfeasible", TARQSolutionStatusTyp::LPInfeasible),
    named("LPUnbounded", TARQSolutionStatusTyp::LPUnbounded),
    named("LPOnlyPrimalFeasible", TARQSolutionStatusTyp::LPOnlyPrimalFeasible),
    named("LPOnlyDualFeasible", TARQSolutionStatusTyp::LPOnlyDualFeasible),
    named("IPOptimalSolution", TARQSolutionStatusTyp::IPOptimalSolution),
    named("IPSubOptimalSolution", TARQSolutionStatusTyp::IPSubOptimalSolution),
    named("IPNoSolution", TARQSolutionStatusTyp::IPNoSolution),
};

}  // namespace enumerationvalues

inline constexpr EnumerationTable columnTypeEnumeration{"TARQColType", "What values a column may take.",
                                                        enumerationvalues::columnType};
template <>
inline constexpr const EnumerationTable* enumerationTableOf<TARQColType> = &columnTypeEnumeration;

inline constexpr EnumerationTable basisStatusEnumeration{
    "TARQColRowStatusType", "State of a column or row in the basis.", enumerationvalues::basisStatus};
template <>
inline constexpr const EnumerationTable* enumerationTableOf<TARQColRowStatusType> = &basisStatusEnumeration;

inline constexpr EnumerationTable fileFormatEnumeration{"TARQFileFormatType", "Formats of model files.",
                                                        enumerationvalues::fileFormat};
template <>
inline constexpr const EnumerationTable* enumerationTableOf<TARQFileFormatType> = &fileFormatEnumeration;

inline constexpr EnumerationTable solverStatusEnumeration{
    "TARQSolverStatusTyp", "How the solver engine ended its latest run.", enumerationvalues::solverStatus};
template <>
inline constexpr const EnumerationTable* enumerationTableOf<TARQSolverStatusTyp> = &solverStatusEnumeration;

inline constexpr EnumerationTable solutionStatusEnumeration{
    "TARQSolutionStatusTyp", "What the latest run knows of the solution.", enumerationvalues::solutionStatus};
template <>
inline constexpr const EnumerationTable* enumerationTableOf<TARQSolutionStatusTyp> = &solutionStatusEnumeration;

/// All of them.
inline constexpr std::array publishedEnumerations{&columnTypeEnumeration, &basisStatusEnumeration,
                                                  &fileFormatEnumeration, &solverStatusEnumeration,
                                                  &solutionStatusEnumeration};

}  // namespace tarq
