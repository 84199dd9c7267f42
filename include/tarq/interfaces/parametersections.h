// The sections in which the solver parameters are shown, by their published numbers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarq {

/// Section under which a parameter is shown; the category that GetParameterInfo hands out.
enum class ParameterSection : std::int32_t {
    None = 0,
    Direction = 1,
    Resources = 2,
    Lp = 3,
    Ip = 4,
    Other = 5,
    Tolerances = 6,
    Files = 7,
};

/// In the order in which they are shown; what stands in none comes last, if at all.
inline constexpr std::array sectionsInOrder{
    ParameterSection::Direction, ParameterSection::Resources,  ParameterSection::Lp,    ParameterSection::Ip,
    ParameterSection::Other,     ParameterSection::Tolerances, ParameterSection::Files,
};

/// Title of a section, such as "LP Parameter"; empty for None and for a number that is none.
[[nodiscard]] constexpr std::string_view sectionTitle(ParameterSection section) {
    constexpr std::array<std::string_view, sectionsInOrder.size() + 1> titles{
        "",
        "Optimization Direction",
        "Ressource Limits",
        "LP Parameter",
        "IP Parameter",
        "Other Parameter",
        "Tolerances",
        "File Names and File Switches",
    };
    const auto place = static_cast<std::size_t>(section);
    return place < titles.size() ? titles[place] : std::string_view();
}

}  // namespace tarq
