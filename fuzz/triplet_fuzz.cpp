// Any bytes as a Triplet file: a message or a model whose parts agree.
#include <cstddef>
#include <cstdint>

#include "modelfiletarget.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr tarq::fuzzing::FormatRules rules{
        .format = tarq::TARQFileFormatType::Triplet,
        .name = "Triplet",
        .longestName = 64,
        .allHaveNames = false,
        .boundsAreOrdered = true,
        .boundsAreClamped = true,
        .rowsKeepType = false,
        .namesAreInCapitals = false,
    };
    tarq::fuzzing::checkModelFile(rules, data, size);
    return 0;
}
