// The model that every benchmark of model files reads and writes: generated with a fixed seed, 200,000 rows, 1,000,000
// columns with two million nonzeros scattered over the rows. Names have eight characters and there are no ranges, so
// that every format holds it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace filebench {

inline constexpr std::int64_t nonzeroCount = 2'000'000;

/// The model as a fixed MPS file, made at the first call.
const std::string& largeMpsFile();

/// The path of a file of this process's folder, which goes away with the process. `make` writes it at the first call
/// with this name; an exception when it fails.
std::string fileMadeOnce(const std::string& name, const std::function<bool(const std::string& path)>& make);

/// Where a benchmark may write, in the same folder.
std::string scratchFile(const std::string& name);

}  // namespace filebench
