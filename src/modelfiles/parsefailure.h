// ParseFailure: what a reader found wrong in a text, and where.
#pragma once

#include <cstddef>
#include <string>

namespace tarq {

struct ParseFailure {
    std::string message;  ///< a sentence, without the format and the line
    std::size_t lineNumber;
};

}  // namespace tarq
