// Failure: what ends a run, in words for the user.
#pragma once

#include <fmt/format.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace tarq::translator {

/// A line of one of the user's files; lines count from 1.
struct Place {
    std::string file;
    int line = 0;
};

/// Its words are complete, with file and line where there is one.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    Failure(const Place& place, std::string_view words)
        : std::runtime_error(fmt::format("{}:{}: {}", place.file, place.line, words)) {}
};

}  // namespace tarq::translator
