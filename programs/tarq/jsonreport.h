// The result of a solve as one JSON document, for programs to read.
#pragma once

#include <string>

#include "runresult.h"

namespace tarq::command {

/// The document, with a line feed at its end. Numbers that JSON can't hold are null, and bytes that are no UTF-8 become
/// replacement characters.
[[nodiscard]] std::string jsonReport(const RunResult& result);

}  // namespace tarq::command
