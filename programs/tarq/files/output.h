// Writing what the user names: a file, or standard output for "-".
#pragma once

#include <tarq/tarq.h>

#include <functional>
#include <string>

#include "model/failure.h"

namespace tarq::command {

/// Has `write` write a file of the name it gets, which is `file` or stands for standard output. A failure of it is
/// thrown as InputRejected with its status, explained with the words of the component and, behind them, `advice` for
/// that status.
void writeOutput(const std::string& file, const std::function<Status(const std::string& path)>& write,
                 const std::function<std::string(Status)>& advice = {});

}  // namespace tarq::command
