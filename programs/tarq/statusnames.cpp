#include "statusnames.h"

#include <algorithm>
#include <iterator>

namespace tarq::command {

namespace {

struct Limit {
    TARQSolverStatusTyp status;
    std::string_view words;
};

constexpr Limit limits[] = {
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

template <class Enumeration>
std::string_view publishedName(Enumeration value) {
    const auto values = enumerationTableOf<Enumeration>->values;
    const auto found = std::ranges::find(values, static_cast<std::int32_t>(value), &EnumerationValue::value);
    return found == values.end() ? "Unknown" : found->name;
}

}  // namespace

std::string_view nameOf(TARQSolverStatusTyp status) { return publishedName(status); }
std::string_view nameOf(TARQSolutionStatusTyp status) { return publishedName(status); }
std::string_view nameOf(TARQColRowStatusType status) { return publishedName(status); }

std::string_view limitOf(TARQSolverStatusTyp status) {
    const auto* const found = std::ranges::find(limits, status, &Limit::status);
    return found == std::end(limits) ? std::string_view() : found->words;
}

}  // namespace tarq::command
