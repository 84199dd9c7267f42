// The component's model object, made for a command.
#pragma once

#include <tarq/tarq.h>

#include <optional>
#include <string>

#include "failure.h"

namespace tarq::command {

/// A new model. Empty, with a message shown, when the component can't make one.
[[nodiscard]] Ref<ITARQModel> makeModel();

/// Has a model use the engine library that the user named; the component's default when that is empty.
[[nodiscard]] std::optional<Failure> useEngine(ITARQModel& model, const std::string& engine);

}  // namespace tarq::command
