// What the fuzz targets of the model file formats share: any bytes are a message or a model whose parts agree.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "tarq/interfaces/enumerations.h"

namespace tarq::fuzzing {

/// What is true of every model that the reader of a format leaves, after a failure too.
struct FormatRules {
    TARQFileFormatType format;
    std::string_view name;  ///< in the messages
    std::size_t longestName;
    bool allHaveNames;  ///< each column and row has one
    bool boundsAreOrdered;
    bool boundsAreClamped;    ///< none lies beyond the model's infinity
    bool rowsKeepType;        ///< the duals hold the types of the rows, 1 to 4
    bool namesAreInCapitals;  ///< all names are
};

/// Reads the bytes as a file of the format and ends the process when what comes of them breaks a rule.
void checkModelFile(const FormatRules& rules, const std::uint8_t* data, std::size_t size);

}  // namespace tarq::fuzzing
