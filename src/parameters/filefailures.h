// Failures that the readers and writers of profiles and of model files have in common.
#pragma once

#include <string>

#include "frame/text.h"
#include "tarq/frame/status.h"
#include "tarq/interfaces/failuretexts.h"
#include "tarq/interfaces/limits.h"

namespace tarq {

/// A file that can't be opened, read to its end, or written.
[[nodiscard]] inline Outcome fileFailure() {
    return {status::fileAccess, "Error while opening, reading or writing to a file."};
}

/// A text of more characters than its place has.
[[nodiscard]] inline Outcome textTooLong() { return {status::textTooLong, "Passed string is to long."}; }

/// The first check of every reader: textTooLong for a name of more characters than the name of a file may have.
[[nodiscard]] inline Outcome checkFileName(const std::string& fileName) {
    return utf16Length(fileName) <= longestPath ? Outcome() : textTooLong();
}

}  // namespace tarq
