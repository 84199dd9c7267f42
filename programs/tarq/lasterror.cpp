#include "lasterror.h"

#include <fmt/format.h>

namespace tarq::command {

std::string lastErrorText(Status status) {
    const std::optional<ObjectError> error = takeLastError();
    if (error && error->status == status && !error->description.empty()) return error->description;
    return fmt::format("{} (0x{:08X})", status::meaning(status), status.value());
}

}  // namespace tarq::command
