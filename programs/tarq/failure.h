// Failure: why a step of the command failed.
#pragma once

#include <tarq/tarq.h>

#include <string>

#include "console.h"
#include "exitcodes.h"

namespace tarq::command {

/// The words for the user and the exit code, and for programs the component's status and a file's line.
struct Failure {
    ExitCode code;
    std::string text;
    Status status{};        ///< ok where the component wasn't asked
    std::int32_t line = 0;  ///< 0 for none
};

/// Shows the words and returns the exit code.
[[nodiscard]] inline ExitCode show(const Failure& failure) {
    showMessage(failure.text);
    return failure.code;
}

}  // namespace tarq::command
