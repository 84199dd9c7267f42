// The modelling languages, which models can be read in but not written.
#pragma once

#include <tarq/tarq.h>

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarq::command {

struct Language {
    std::string_view name;       ///< as a format
    std::string_view extension;  ///< of model texts; empty where none tells the language
    std::size_t mostDataFiles;
    bool isStub;  ///< a text's translation, with no translator to tell what is wrong
    Status (*read)(ITARQModel& model, const std::string& file, const std::vector<std::string>& dataFiles);
};

[[nodiscard]] std::span<const Language> languages();

}  // namespace tarq::command
