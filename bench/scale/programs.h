// The ways to build and solve the model. Each tells its stages, throws when a call fails and runs in a process of its
// own, so that its memory is its own.
#pragma once

#include <cstddef>

namespace scale {

/// Families of columns and rows, slices of costs and one sum a row.
void runTarq(std::size_t size);
/// HiGHS's own interface as a modeller uses it: a person's columns at a time, a name for each, row after row.
void runHighsRowByRow(std::size_t size);
/// The same model in arrays that are handed to HiGHS at once, without names: the least that any layer above it needs.
void runHighsArrays(std::size_t size);

}  // namespace scale
