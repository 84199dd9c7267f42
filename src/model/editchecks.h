// Checks that the operations on columns and rows share.
#pragma once

#include <string>
#include <string_view>

#include "model/modelstore.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// "Lower bound is greater than upper bound."
[[nodiscard]] Outcome boundOrderFailure();
/// "Index out of valid range."
[[nodiscard]] Outcome indexRangeFailure();

/// How a bad name argument is refused.
struct NameArgumentTexts {
    std::string_view wrongKind;
    std::string_view tooLong;
    Status badName;
};
/// Turns a client's name argument into text: missing is none, a number its text.
[[nodiscard]] Outcome readNameArgument(const Variant& argument, const NameArgumentTexts& texts, std::string& name);

/// Gives `record` the bounds that aren't null, clamped. Both stay when lower would lie above upper.
template <class Record>
[[nodiscard]] Outcome changeBounds(const ModelStore& store, Record& record, const double* lower, const double* upper) {
    const double newLower = lower != nullptr ? store.clampToInfinity(*lower) : record.lowerBound;
    const double newUpper = upper != nullptr ? store.clampToInfinity(*upper) : record.upperBound;
    if (newLower > newUpper) return boundOrderFailure();
    record.lowerBound = newLower;
    record.upperBound = newUpper;
    return {};
}

/// Stores one bound, clamped; the comparison with the other one is made before that.
template <class Record>
[[nodiscard]] Outcome putLowerBound(const ModelStore& store, Record& record, double bound) {
    if (bound > record.upperBound) return boundOrderFailure();
    record.lowerBound = store.clampToInfinity(bound);
    return {};
}
template <class Record>
[[nodiscard]] Outcome putUpperBound(const ModelStore& store, Record& record, double bound) {
    if (bound < record.lowerBound) return boundOrderFailure();
    record.upperBound = store.clampToInfinity(bound);
    return {};
}

}  // namespace tarq
