// What all fuzz targets use: a rule that must hold, and a text with the other line ends.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace tarq::fuzzing {

/// Ends the process with `rule` when it doesn't hold.
inline void check(bool holds, const char* rule) {
    if (holds) return;
    std::fprintf(stderr, "Broken rule: %s\n", rule);
    std::abort();
}

/// The text with a carriage return before each line feed and a line end behind the last line.
inline std::string withReturns(std::string_view text) {
    std::string returned;
    for (const char character : text) {
        if (character == '\n') returned += '\r';
        returned += character;
    }
    if (!text.ends_with('\n')) returned += "\r\n";
    return returned;
}

}  // namespace tarq::fuzzing
