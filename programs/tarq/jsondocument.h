// JSON as the command prints it.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace tarq::command {

/// Members stay in the order in which they were added.
using Json = nlohmann::ordered_json;

/// One document with a line feed behind it; bytes that aren't UTF-8 become replacement characters.
[[nodiscard]] inline std::string documentOf(const Json& json) {
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace tarq::command
