// Failure: why a step of the command failed.
#pragma once

#include <string>

#include "console.h"
#include "exitcodes.h"

namespace tarq::command {

/// The words for the user and the exit code.
struct Failure {
    ExitCode code;
    std::string text;
};

/// Shows the words and returns the exit code.
[[nodiscard]] inline ExitCode show(const Failure& failure) {
    showMessage(failure.text);
    return failure.code;
}

}  // namespace tarq::command
