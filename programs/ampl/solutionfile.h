// Solution files: what a solver writes in answer to a stub.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "linearproblem.h"

namespace tarq::translator {

/// Reads STUB.sol in its text form for a problem with so many columns and rows. A text that says why not when the file
/// isn't there, is damaged, or belongs to a problem of another size. What follows the values (codes, suffixes) doesn't
/// count.
[[nodiscard]] std::variant<Solution, std::string> readSolution(const std::string& fileName, std::size_t columnCount,
                                                               std::size_t rowCount);

}  // namespace tarq::translator
