// Where the component's own library lies, with its plugins and programs around it.
#pragma once

#include <filesystem>

namespace tarq {

/// Folder of the library, or of the program, that this code was linked into; empty when the system can't tell.
const std::filesystem::path& ownDirectory();

}  // namespace tarq
