#include "engine/enginetext.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace tarq {

bool EngineText::read(EngineInterface& engine, const char* name) {
    buffer_.fill('\0');
    if (!engine.hasGetParameter()) return false;
    if (engine.GetParameter(name, buffer_.data()) != TarqSuccess) {
        buffer_.front() = '\0';
        return false;
    }
    buffer_.back() = '\0';
    return true;
}

std::string_view EngineText::view() const { return buffer_.data(); }

double EngineText::number() const {
    std::string_view text = view();
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (text.starts_with('+')) text.remove_prefix(1);
    double value = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::int32_t EngineText::integer() const {
    using Limits = std::numeric_limits<std::int32_t>;
    const double value = number();
    if (std::isnan(value)) return 0;
    return static_cast<std::int32_t>(
        std::clamp(value, static_cast<double>(Limits::min()), static_cast<double>(Limits::max())));
}

}  // namespace tarq
