// Library files that were cut short, as a copy that broke off leaves them.
//
// The loader maps what a library's program headers tell and ends the process where the file has less.
#pragma once

#include <filesystem>

namespace tarq {

/// Whether a file is shorter than its program headers tell. What is no library at all is the loader's to refuse.
[[nodiscard]] bool isCutShort(const std::filesystem::path& path);

/// Whether the loader, searching for a plain name, comes upon such a file first.
[[nodiscard]] bool findsCutShort(const std::filesystem::path& name);

}  // namespace tarq
