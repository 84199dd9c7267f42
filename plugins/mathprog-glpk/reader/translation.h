// GLPK's translator at work: from a model text to a generated problem.
#pragma once

#include "../problem.h"

namespace tarq::mathprog {

struct ModelFiles {
    const char* model = nullptr;
    const char* data = nullptr;  ///< null: the data are those in the model file
};

/// Reads and generates the problem; false when the translator refuses the model. Its words go to standard output, line
/// by line. A fault within the translator ends the process after its words.
[[nodiscard]] bool translate(const ModelFiles& files, Problem& problem);

}  // namespace tarq::mathprog
