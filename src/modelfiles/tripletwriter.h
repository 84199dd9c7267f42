// The writer of Triplet files.
#pragma once

#include <string>

#include "modelfiles/modelwriter.h"

namespace tarq {

/// Writes any model; one without rows or columns can't be read back.
[[nodiscard]] Outcome writeTriplet(const std::string& fileName, const WrittenModel& model);

}  // namespace tarq
