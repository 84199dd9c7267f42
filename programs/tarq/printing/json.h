// JSON as the command prints it.
#pragma once

#include <tarq/tarq.h>

#include <nlohmann/json.hpp>
#include <string>

namespace tarq::command {

/// Members stay in the order in which they were added.
using Json = nlohmann::ordered_json;

/// A parameter's value; null for a Variant of a kind that parameters don't have.
[[nodiscard]] inline Json jsonValue(const Variant& value) {
    switch (value.kind()) {
        case Kind::Long:
            return value.integer();
        case Kind::Double:
            return value.real();
        case Kind::Text:
            return value.text();
        default:
            return nullptr;
    }
}

/// One document with a line feed behind it; bytes that aren't UTF-8 become replacement characters.
[[nodiscard]] inline std::string documentOf(const Json& json) {
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

/// The same in a single line without a line feed.
[[nodiscard]] inline std::string lineOf(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace tarq::command
