// A file in memory, read in one go.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace tarq {

/// Offsets into a model text have 32 bits.
inline constexpr std::size_t largestWholeFile = INT32_MAX;

/// The bytes of a file as they are, with room for one more. Nothing when the file can't be opened or read, is a
/// directory or has more than `largestWholeFile` bytes.
[[nodiscard]] std::optional<std::string> readWholeFile(const std::string& fileName);

/// The first bytes of a file, at most `limit`; empty when the file can't be opened.
[[nodiscard]] std::string readStartOfFile(const std::string& fileName, std::size_t limit);

}  // namespace tarq
