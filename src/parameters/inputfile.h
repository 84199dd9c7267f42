// The check of an input file before it is handed to someone else who reads it.
#pragma once

#include <string>
#include <string_view>

#include "tarq/frame/status.h"

namespace tarq {

/// Tells whether the file at `path` can be opened for reading. `label` names it in the messages, such as ".MOD file".
/// fileNameRejected for a path of more than 255 bytes, fileNotReachable for a file that can't be opened: its directory
/// or itself is not there, it may not be read, or anything else; a directory is no file.
[[nodiscard]] Outcome checkInputFile(const std::string& path, std::string_view label);

}  // namespace tarq
