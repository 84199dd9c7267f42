// The two things that the program does.
#pragma once

#include <string>

#include "channel.h"

namespace tarq::stub {

/// Reads a stub and tells it; true when it was told to its end. The library ends the process as it likes.
[[nodiscard]] bool readStub(const std::string& stub, Answer& answer);

/// Writes the solution heard on standard input into the stub's .sol file; true when it was written.
[[nodiscard]] bool writeSolution(const std::string& stub, Answer& answer);

}  // namespace tarq::stub
