// What the component says about the latest failure.
#pragma once

#include <tarq/tarq.h>

#include <string>

namespace tarq::command {

/// The description that the calling thread's latest failure left; where it left none, what the status means.
[[nodiscard]] std::string lastErrorText(Status status);

}  // namespace tarq::command
