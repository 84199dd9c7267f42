// Profiles: text files of parameter assignments, `xmiter = 100` a line, and comments.
#pragma once

#include <string>
#include <string_view>

#include "frame/status.h"
#include "parameters/parametertable.h"

namespace tarq {

/// Stores each assignment of a profile through the checks of a client's put. The first failure ends the reading; what
/// was assigned before stays. 0x80041018 for a name of 256 characters or more and for a text that is too long,
/// 0x80041028 for a file that can't be read or has 2^31 bytes or more, 0x80041029 for a text that is no assignment,
/// 0x80041015, 0x80041016 and 0x80041017 as of a put; the description names the line's text. `infinity` is the model's
/// own.
[[nodiscard]] Outcome readProfile(const std::string& fileName, ParameterTable& parameters, double infinity);

/// Reads a text that comes from elsewhere, with the failures of readProfile but those of the file.
[[nodiscard]] Outcome readProfileText(std::string_view text, ParameterTable& parameters, double infinity);

/// Writes all 121 parameters, a line each. 0x80041028 for a file that can't be written.
[[nodiscard]] Outcome writeProfile(const std::string& fileName, const ParameterTable& parameters);

}  // namespace tarq
