// The component's model object as a command uses it, and what the component says of a failure.
#pragma once

#include <tarq/tarq.h>

#include <string>

#include "model/failure.h"

namespace tarq::command {

/// A new model.
[[nodiscard]] Ref<ITARQModel> makeModel();

/// Has a model use the engine library that the user named; the component's default when that is empty.
void useEngine(ITARQModel& model, const std::string& engine);

/// The description that the calling thread's latest failure left; where it left none, what the status means. Can be
/// asked once for a failure.
[[nodiscard]] std::string lastErrorText(Status status);

/// The same with what the user should know of names of files, where one was too long.
[[nodiscard]] std::string fileErrorText(Status status);

}  // namespace tarq::command
