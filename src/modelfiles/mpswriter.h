// The writer of MPS files in fixed columns.
#pragma once

#include <string>

#include "modelfiles/modelwriter.h"

namespace tarq {

/// Writes a model whose columns and rows all have names of at most 8 bytes; else badColumnName and badRowName. Extra
/// memory of 12 bytes a nonzero and 4 a column, as the file is by columns and the store by rows.
[[nodiscard]] Outcome writeMps(const std::string& fileName, const WrittenModel& model);

}  // namespace tarq
