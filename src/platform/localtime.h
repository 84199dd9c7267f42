// The user's wall clock.
#pragma once

#include <string>

namespace tarq {

/// The local time now, as the files of the component bear it: "14:05:59 on 31.01.2026".
[[nodiscard]] std::string localTimeStamp();

}  // namespace tarq
