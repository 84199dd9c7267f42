// The reader of Triplet files: a line for each column, row and nonzero, known by its place.
#pragma once

#include <optional>
#include <string>

#include "modelfiles/modelfile.h"
#include "tarq/interfaces/parsefailure.h"

namespace tarq {

/// Clears the model and fills it from the text of a Triplet file. A failure leaves what stands before it in the model,
/// the value for infinity included.
[[nodiscard]] std::optional<ParseFailure> readTriplet(std::string text, ModelFileTarget& model);

}  // namespace tarq
