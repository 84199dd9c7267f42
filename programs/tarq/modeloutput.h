// Writing what the user names: a file, or standard output for "-".
#pragma once

#include <tarq/tarq.h>

#include <functional>
#include <optional>
#include <string>

#include "failure.h"

namespace tarq::command {

/// Has `write` write a file of the name it gets, which is `file` or stands for standard output. A failure of it is
/// explained with the words of the component and, behind them, `advice` for that status. InputRejected.
[[nodiscard]] std::optional<Failure> writeOutput(const std::string& file,
                                                 const std::function<Status(const std::string& path)>& write,
                                                 const std::function<std::string(Status)>& advice);

}  // namespace tarq::command
