// Failures that several rooms tell in the same words.
#pragma once

#include "tarq/frame/status.h"

namespace tarq::failures {

/// For a text longer than the property that it is put into.
inline Outcome textTooLong() { return {status::textTooLong, "Passed string is to long."}; }
/// For bounds of which the lower would lie above the upper.
inline Outcome boundOrder() { return {status::boundOrder, "Lower bound is greater than upper bound."}; }
/// For a number or position that has to be within a model or list.
inline Outcome indexRange() { return {status::indexOutOfRange, "Index out of valid range."}; }
/// For a file that can't be opened, read or written.
inline Outcome fileAccess() { return {status::fileAccess, "Error while opening, reading or writing to a file."}; }

}  // namespace tarq::failures
