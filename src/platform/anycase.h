// Files under conventional names, which are written in any case.
#pragma once

#include <filesystem>

namespace tarq {

/// The file of this name for which `counts` is true, or else one whose name differs only in case, the first of several;
/// empty where there is none. Looks through the folder only in the second case.
[[nodiscard]] std::filesystem::path findInAnyCase(const std::filesystem::path& path,
                                                  bool (*counts)(const std::filesystem::path&));

}  // namespace tarq
