// The formats of model files, and the names by which the user and the extensions of files tell them.
#pragma once

#include <tarq/tarq.h>

#include <optional>
#include <string>
#include <string_view>

#include "failure.h"
#include "language.h"

namespace tarq::command {

/// "mps", "triplet" or "lindo".
[[nodiscard]] std::string_view formatName(TARQFileFormatType format);

/// What a model is read from: a model file, or a text in a language.
struct InputFormat {
    TARQFileFormatType file{};
    const Language* language = nullptr;  ///< null for a model file
};

/// The format of a model file: the one that is named, else the one that the extension tells. `option` is what names it,
/// "--format". Fails with WrongUsage and the list of the formats; what is to be written can't be a language.
[[nodiscard]] std::optional<Failure> chooseFormat(const std::string& file, const std::string& name,
                                                  std::string_view option, InputFormat& format);
[[nodiscard]] std::optional<Failure> chooseFormat(const std::string& file, const std::string& name,
                                                  std::string_view option, TARQFileFormatType& format);

/// The file as it is named in messages; `stream` is what "-" stands for.
[[nodiscard]] std::string shownName(const std::string& file, std::string_view stream = "standard input");

}  // namespace tarq::command
