// The reader of Lindo files: a model as algebra, from its direction to the statements behind END.
#pragma once

#include <optional>
#include <string>

#include "modelfiles/modelfile.h"
#include "tarq/interfaces/parsefailure.h"

namespace tarq {

/// Clears the model and fills it from the text of a Lindo file. A failure leaves what stands before it in the model,
/// and the direction that was set.
[[nodiscard]] std::optional<ParseFailure> readLindo(std::string text, ModelFileTarget& model);

}  // namespace tarq
