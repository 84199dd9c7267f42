// The component's model object, made for a command.
#pragma once

#include <tarq/tarq.h>

#include <string>

namespace tarq::command {

/// A new model that uses the engine library `engine`, or the component's default when that is empty.
/// Empty, with a message shown, when the location is refused or the component can't make a model.
[[nodiscard]] Ref<ITARQModel> makeModel(const std::string& engine = {});

}  // namespace tarq::command
