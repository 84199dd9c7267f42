// EngineText: a parameter's value as the engine writes it, with room to spare and always terminated.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "engine/engineinterface.h"

namespace tarq {

class EngineText {
public:
    /// Asks the engine for a value. False, and an empty text, when it refuses or lacks GetParameter.
    [[nodiscard]] bool read(EngineInterface& engine, const char* name);

    [[nodiscard]] std::string_view view() const;
    /// The number at the start of the text, written with a decimal point; 0 when there is none.
    [[nodiscard]] double number() const;
    /// The same without its fraction, limited to 32 bits.
    [[nodiscard]] std::int32_t integer() const;

private:
    // Engines count on less; one that writes a few characters more must not spoil the stack.
    std::array<char, 1024> buffer_{};
    static_assert(sizeof(buffer_) >= TarqTextSize);
};

}  // namespace tarq
