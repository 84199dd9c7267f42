// The command line: its options, its help, and what the user asked for.
#pragma once

#include <string>
#include <vector>

#include "exitcodes.h"

namespace tarq::command {

struct SolveOptions {
    std::string file;                      ///< "-" for standard input
    std::string format;                    ///< empty: told by the file's extension
    std::vector<std::string> assignments;  ///< NAME=VALUE, in the order given
    std::string solutionFile;              ///< empty: none
    std::string engine;                    ///< empty: the component's own choice
    bool json = false;
    bool quiet = false;
};

struct ParametersOptions {
    std::string name;  ///< empty: all
    bool json = false;
};

struct DescribeOptions {
    std::string name;  ///< empty: an overview
    bool json = false;
};

enum class Action { None, Solve, Parameters, Describe, Version };

struct CommandLine {
    Action action = Action::None;
    ExitCode exitCode = ExitCode::Success;  ///< with Action::None: help was shown, or the usage was wrong
    SolveOptions solve;
    ParametersOptions parameters;
    DescribeOptions describe;
    std::string engine;  ///< whose version to show
};

/// Reads the arguments. Help goes to standard output, a complaint about wrong usage to standard error.
[[nodiscard]] CommandLine parseCommandLine(int argc, const char* const* argv);

}  // namespace tarq::command
