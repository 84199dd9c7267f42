// Profiles: text files of parameter assignments, `xmiter = 100` a line, and comments.
#pragma once

#include <string>
#include <string_view>

#include "parameters/parametertable.h"
#include "tarq/frame/status.h"

namespace tarq {

/// Stores each assignment of a profile through the checks of a client's put. The first failure ends the reading; what
/// was assigned before stays. textTooLong for a name of 256 characters or more and for a text that is too long,
/// fileAccess for a file that can't be read or has 2^31 bytes or more, profileFailure for a text that is no assignment,
/// unknownParameter, wrongKind and valueOutOfRange as of a put; the description names the line's text. `infinity` is
/// the model's own.
[[nodiscard]] Outcome readProfile(const std::string& fileName, ParameterTable& parameters, double infinity);

/// Reads a text that comes from elsewhere, with the failures of readProfile but those of the file.
[[nodiscard]] Outcome readProfileText(std::string_view text, ParameterTable& parameters, double infinity);

/// Writes all 121 parameters, a line each. fileAccess for a file that can't be written.
[[nodiscard]] Outcome writeProfile(const std::string& fileName, const ParameterTable& parameters);

}  // namespace tarq
