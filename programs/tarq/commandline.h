// The command line: its options, its help, and what the user asked for.
#pragma once

#include <string>
#include <vector>

#include "model/failure.h"

namespace tarq::command {

/// What sets parameters: an assignment NAME=VALUE, or a profile by its file name.
struct ParameterSource {
    bool isProfile = false;
    std::string text;
};

/// What goes with a model text in a language.
struct LanguageOptions {
    std::vector<std::string> dataFiles;
    bool listing = false;  ///< show what the translator says also when it succeeds
};

struct SolveOptions {
    std::string file;    ///< "-" for standard input
    std::string format;  ///< empty: told by the file's extension
    LanguageOptions language;
    std::vector<ParameterSource> parameters;  ///< in the order given
    std::string solutionFile;                 ///< empty: none
    std::string engine;                       ///< empty: the component's own choice
    bool json = false;
    bool quiet = false;
};

struct ConvertOptions {
    std::string input;   ///< "-" for standard input
    std::string output;  ///< "-" for standard output
    std::string from;    ///< formats; empty: told by the file's extension
    std::string to;
    LanguageOptions language;
    bool rename = false;
};

struct ShowOptions {
    std::string file;    ///< "-" for standard input
    std::string format;  ///< empty: told by the file's extension
    LanguageOptions language;
    std::string rows;  ///< "FIRST:LAST", by number or by name, either may be empty; empty: all
    std::string columns;
};

struct ParametersOptions {
    std::string name;     ///< or a word to look for; empty: all
    std::string profile;  ///< a profile to write, "-" for standard output; empty: none
    bool page = false;    ///< show the parameter page
    std::string pageProfile =
        "-";  ///< the profile that the page starts from and is written to, "-" for standard output
    bool json = false;
};

struct DescribeOptions {
    std::string name;  ///< empty: an overview
    bool json = false;
};

enum class Action { None, Solve, Convert, Show, Parameters, Describe, Version };

struct CommandLine {
    Action action = Action::None;
    ExitCode exitCode = ExitCode::Success;  ///< with Action::None: help was shown, or the usage was wrong
    SolveOptions solve;
    ConvertOptions convert;
    ShowOptions show;
    ParametersOptions parameters;
    DescribeOptions describe;
    std::string engine;  ///< whose version to show
};

/// Reads the arguments. Help goes to standard output, a complaint about wrong usage to standard error.
[[nodiscard]] CommandLine parseCommandLine(int argc, const char* const* argv);

}  // namespace tarq::command
