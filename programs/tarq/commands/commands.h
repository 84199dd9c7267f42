// The commands. Each returns the exit code, or throws a Failure that nothing has been told of yet.
#pragma once

#include <string>

#include "commandline.h"
#include "model/failure.h"

namespace tarq::command {

/// `tarq solve`: reads a model, solves it and reports the result.
[[nodiscard]] ExitCode solve(const SolveOptions& options);

/// `tarq convert`: reads a model file and writes it in another format.
[[nodiscard]] ExitCode convert(const ConvertOptions& options);

/// `tarq show`: prints a readable listing of a model file, or of a part of it.
[[nodiscard]] ExitCode showModel(const ShowOptions& options);

/// `tarq parameters`: lists all solver parameters, explains the one that is named, lists those that speak of a word,
/// writes a profile, or has a person change one on the parameter page.
[[nodiscard]] ExitCode explainParameters(const ParametersOptions& options);

/// `tarq describe`: lists the classes, interfaces and enumerations of the component, or explains what is named.
[[nodiscard]] ExitCode describe(const DescribeOptions& options);

/// `tarq --version`: shows the versions of the program and of the engine.
[[nodiscard]] ExitCode showVersion(const std::string& engine);

}  // namespace tarq::command
