// Standard output, which results, messages and the listing share, so that they come in the order in which they arose.
#pragma once

#include <string_view>

namespace tarq::translator {

/// What standard output doesn't take is remembered; flushOutput tells.
void show(std::string_view text);
void showLine(std::string_view text);

/// Hands everything over, as must be before another process writes. False when anything since the start was not taken.
bool flushOutput();

}  // namespace tarq::translator
