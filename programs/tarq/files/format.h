// The formats of model files and the modelling languages, and the names by which the user and the extensions of files
// tell them.
#pragma once

#include <tarq/tarq.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarq::command {

/// A modelling language, which models can be read in but not written.
struct Language {
    std::string_view name;       ///< as a format
    std::string_view extension;  ///< of model texts; empty where none tells the language
    std::size_t mostDataFiles;
    bool isStub;  ///< a text's translation, with no translator to tell what is wrong
    Status (*read)(ITARQModel& model, const std::string& file, const std::vector<std::string>& dataFiles);
};

/// What a model is read from: a model file, or a text in a language.
struct InputFormat {
    TARQFileFormatType file{};
    const Language* language = nullptr;  ///< null for a model file
};

/// The format of a model: the one that is named, else the one that the extension of its file tells. `option` is what
/// names it, "--format". Fails with WrongUsage and the list of the formats.
[[nodiscard]] InputFormat chooseInputFormat(const std::string& file, const std::string& name, std::string_view option);
/// The same for a file that is to be written, which can't be in a language.
[[nodiscard]] TARQFileFormatType chooseOutputFormat(const std::string& file, const std::string& name,
                                                    std::string_view option);

}  // namespace tarq::command
