// Any bytes as a Lindo file: a message or a model whose parts agree.
#include <cstddef>
#include <cstdint>

#include "modelfiletarget.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr tarq::fuzzing::FormatRules rules{
        .format = tarq::TARQFileFormatType::Lindo,
        .name = "Lindo",
        .longestName = 8,
        .allHaveNames = false,
        .boundsAreOrdered = false,
        .boundsAreClamped = true,
        .rowsKeepType = false,
        .namesAreInCapitals = true,
    };
    tarq::fuzzing::checkModelFile(rules, data, size);
    return 0;
}
