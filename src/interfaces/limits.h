// Limits that several rooms hold to.
//
// Texts are measured in bytes or in characters, which are UTF-16 code units; who measures tells which.
#pragma once

#include <cstddef>

namespace tarq {

/// Longest name of a column or row.
inline constexpr std::size_t longestItemName = 64;
/// Longest name of a file, a folder, a program or a library.
inline constexpr std::size_t longestPath = 255;
/// What counts as infinite, unless a model says otherwise.
inline constexpr double standardInfinity = 1e25;

}  // namespace tarq
