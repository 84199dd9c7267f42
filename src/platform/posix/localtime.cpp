#include "platform/localtime.h"

#include <array>
#include <cstddef>
#include <ctime>

namespace tarq {

std::string localTimeStamp() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    if (localtime_r(&now, &local) == nullptr) return {};
    // Numbers only, so the locale has no say.
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%H:%M:%S on %d.%m.%Y", &local);
    return {text.data(), length};
}

}  // namespace tarq
