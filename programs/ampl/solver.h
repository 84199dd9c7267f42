// Running a solver as AMPL does.
#pragma once

#include <optional>
#include <string>

#include "options.h"

namespace tarq::translator {

/// The file that a solver's name stands for: a name with a directory is that file, another is looked for in the folders
/// of PATH and then among the programs installed with this one; NAME.exe stands for NAME. Nothing when there is no such
/// program.
[[nodiscard]] std::optional<std::string> findSolver(const std::string& name);

/// Runs `program STUB -AMPL` with the options in its environment and waits until it has ended, however long that takes
/// and whatever processes it leaves behind. It reads nothing and writes where this program writes. Empty when it ended
/// well, else how it ended, in words.
[[nodiscard]] std::string runSolver(const std::string& program, const std::string& stub, const Options& options);

}  // namespace tarq::translator
