// The writer of Lindo files.
#pragma once

#include <string>

#include "modelfiles/modelwriter.h"

namespace tarq {

/// Writes a model that the format holds: names of at most 8 bytes without its signs and different also in capitals,
/// else badColumnName and badRowName, and no row with two different bounds, else componentFailure. Rows may be without
/// a name.
[[nodiscard]] Outcome writeLindo(const std::string& fileName, const WrittenModel& model);

}  // namespace tarq
