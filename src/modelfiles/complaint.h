// Complaint: what a reader says against the text of a model file.
//
// Readers pass one on for every number of a file, so it is as cheap as two words. A reader that has to make up its
// words keeps them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "modelfiles/modeltext.h"
#include "tarq/interfaces/parsefailure.h"

namespace tarq {

/// A sentence without the format and the line, or nothing where all went well. TARQ_TRY passes it on. It only refers to
/// the words.
class [[nodiscard]] Complaint {
public:
    constexpr Complaint() = default;
    constexpr Complaint(std::string_view words) : words_(words) {}
    constexpr Complaint(const char* words) : words_(words) {}

    [[nodiscard]] constexpr bool isOk() const { return words_.empty(); }

    /// The same with the line that the cursor of the text is on.
    [[nodiscard]] std::optional<ParseFailure> at(const ModelText& text) const {
        if (isOk()) return std::nullopt;
        return ParseFailure{std::string(words_), text.currentLineNumber()};
    }

private:
    std::string_view words_;
};

}  // namespace tarq
