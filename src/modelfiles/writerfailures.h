// Failures that more than one writer of model files words.
#pragma once

#include <string>

#include "tarq/frame/status.h"

namespace tarq {

[[nodiscard]] inline Outcome writeFailure() {
    return {status::fileAccess, "Error while opening, reading or writing to a file."};
}

[[nodiscard]] inline Outcome unnamedColumns() { return {status::badColumnName, "One or more columns have no name."}; }

/// The text of the other writers tells "writing to a file".
[[nodiscard]] inline Outcome openFailureOfLindo() {
    return {status::fileAccess, "I/O error while opening file for writing Lindo model."};
}

}  // namespace tarq
