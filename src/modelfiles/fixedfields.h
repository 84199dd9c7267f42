// The fixed columns of MPS lines, the same for reading and for writing.
#pragma once

#include <array>
#include <cstddef>

namespace tarq {

/// Where a field stands in its line.
struct FixedFieldPlace {
    std::size_t firstColumn;  ///< counted from 1
    std::size_t width;

    [[nodiscard]] constexpr std::size_t start() const { return firstColumn - 1; }
};

/// By field number: the section keyword, the row or bound type, three names with their two numbers in between.
inline constexpr std::array<FixedFieldPlace, 7> fixedFieldPlaces{
    {{1, 14}, {2, 2}, {5, 8}, {15, 8}, {25, 12}, {40, 8}, {50, 12}}};

/// The name of the model, on the line of the keyword NAME.
inline constexpr FixedFieldPlace modelNamePlace{15, 32};

}  // namespace tarq
