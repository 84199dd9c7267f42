// The check of an input file before it is handed to someone else who reads it.
#pragma once

#include <string>
#include <string_view>

#include "frame/status.h"

namespace tarq {

/// Tells whether the file at `path` can be opened for reading. `label` names it in the messages, such as ".MOD file".
/// 0x8004102F for a path of more than 255 bytes, 0x80041030 for a file that can't be opened: its directory or itself is
/// not there, it may not be read, or anything else; a directory is no file.
[[nodiscard]] Outcome checkInputFile(const std::string& path, std::string_view label);

}  // namespace tarq
