// Any bytes as an MPS file: a message or a model whose parts agree.
#include <cstddef>
#include <cstdint>

#include "modelfiletarget.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr tarq::fuzzing::FormatRules rules{
        .format = tarq::TARQFileFormatType::MPS,
        .name = "MPS",
        .longestName = 8,
        .allHaveNames = true,
        .boundsAreOrdered = false,
        .boundsAreClamped = false,
        .rowsKeepType = true,
        .namesAreInCapitals = false,
    };
    tarq::fuzzing::checkModelFile(rules, data, size);
    return 0;
}
