// The AMPL Solver Library as a peer: its own reading of a stub, in this process.
#pragma once

#include <cstdint>
#include <string>

namespace filebench {

/// Reads STUB.nl, asks for the names that it says there are, and lets all go again. The number of coefficients, -1
/// where the stub can't be read.
std::int64_t readAmplStub(const std::string& stub);

}  // namespace filebench
