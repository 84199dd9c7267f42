// ModelTextScanner: walks over the lines of an MPS file and reads its fixed fields.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "frame/numbertext.h"
#include "modelfiles/fixedfields.h"
#include "modelfiles/modeltext.h"

namespace tarq {

/// What a number field held.
enum class FieldNumber { Read, Empty, NotNumeric };

class ModelTextScanner : public ModelText {
public:
    using ModelText::ModelText;
    using ModelText::nextLineAhead;

    /// True when any line but the first begins with `word`. The cursor plays no part and doesn't move. Linear.
    [[nodiscard]] bool hasLaterLineWith(std::string_view word) const;

    /// Goes to the next line that isn't blank and doesn't begin with `*`. False at the end of the text, where the
    /// cursor then stands, on an empty line behind the last line feed.
    [[nodiscard]] bool nextFixedLine() {
        while (nextLine()) {
            if (!line().starts_with('*') && line().find_first_not_of(' ') != std::string_view::npos) return true;
        }
        return false;
    }

    /// The number of lines behind the current one that begin with a blank, up to the first that doesn't.
    [[nodiscard]] std::size_t countIndentedLines() const;

    /// A line begins with a blank where it isn't empty and its first character is one.
    [[nodiscard]] bool startsWithBlank() const { return line().starts_with(' '); }
    /// The bytes at a place of a line with the blanks around them; fewer than its width where the line ends.
    [[nodiscard]] static std::string_view rawField(std::string_view line, FixedFieldPlace place) {
        if (line.size() <= place.start()) return {};
        return line.substr(place.start(), place.width);
    }
    /// The same of the current line.
    [[nodiscard]] std::string_view rawField(FixedFieldPlace place) const { return rawField(line(), place); }
    /// Field `number` of the line, blanks at both ends trimmed.
    [[nodiscard]] std::string_view fixedField(std::size_t number) const {
        return trimBlanks(rawField(fixedFieldPlaces[number]));
    }
    /// The second and third character of the line in upper case, a blank for each that the line doesn't have.
    [[nodiscard]] std::array<char, 2> rowTypeCharacters() const;
    /// The number in field 4 or 6; blanks inside it don't count. `value` changes only when a number was read.
    [[nodiscard]] FieldNumber fixedNumber(std::size_t number, double& value) const;
};

}  // namespace tarq
