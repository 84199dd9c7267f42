// The reader of MPS files in strict fixed columns.
//
// Narrower than most readers of the format: names stand in their columns and a keyword stands alone. Wider too: it
// takes all vectors of a section, and it keeps free rows behind the first, which is the objective.
#pragma once

#include <optional>
#include <string>

#include "modelfiles/modelfile.h"
#include "tarq/interfaces/parsefailure.h"

namespace tarq {

/// Clears the model and fills it from the text of an MPS file. A failure leaves what stands before it in the model, and
/// the parameters that were set.
[[nodiscard]] std::optional<ParseFailure> readMps(std::string text, ModelFileTarget& model);

}  // namespace tarq
