// Names that the user may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarq::command {

/// ASCII capitals as small letters.
[[nodiscard]] std::string lowerCase(std::string_view text);

/// "Did you mean a, b or c?" with the names that are nearest to `wanted` or contain it, without regard to case;
/// `otherwise` when none is near.
[[nodiscard]] std::string suggestion(const std::vector<std::string_view>& names, std::string_view wanted,
                                     std::string_view otherwise);

}  // namespace tarq::command
