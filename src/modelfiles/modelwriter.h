// Writing a model into a file, in one of the formats or as a listing for people.
//
// Every check comes before the file is touched: a model that a format can't hold leaves no file, and an existing one as
// it was. A write that fails midway leaves part of a file. The model is never changed. Lines end in a line feed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "model/modelstore.h"
#include "parameters/parametertable.h"
#include "tarq/frame/status.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

/// What a writer needs of a model.
struct WrittenModel {
    const ModelStore& store;
    const ParameterTable& parameters;  ///< direction and names of the vectors
    std::string_view name;

    /// "min" or "max".
    [[nodiscard]] std::string_view direction() const { return parameters.stringValue(parameterIndex("xminmx")); }
    [[nodiscard]] bool isMaximum() const { return direction() == "max"; }
};

/// Rows and columns from the first to the last, by number.
struct ModelCutout {
    std::int32_t firstRow;
    std::int32_t lastRow;
    std::int32_t firstColumn;
    std::int32_t lastColumn;
};

/// The first check of every writer: textTooLong "Filename is too long." for more than 255 characters.
[[nodiscard]] Outcome checkWrittenName(const std::string& fileName);

/// Writes the model. textTooLong for a name of more than 255 characters, invalidArgument for a format that is none,
/// badColumnName, badRowName or componentFailure for a model that the format can't hold, fileAccess for a file that
/// can't be written; the description tells what it was.
[[nodiscard]] Outcome writeModelFile(const std::string& fileName, TARQFileFormatType format, const WrittenModel& model);

/// Writes a listing of a part of the model, with what lies outside of it marked as hidden. The cutout lies within the
/// model; a model without rows or columns has an empty one, whose last number is one below the first. The
/// name has passed checkWrittenName. fileAccess as above.
[[nodiscard]] Outcome writeModelListing(const std::string& fileName, const WrittenModel& model,
                                        const ModelCutout& cutout);

}  // namespace tarq
