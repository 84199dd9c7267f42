// What the tests of model files share: a model that notes all it is told, and lines laid out in fixed columns.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "modelfiles/fixedfields.h"
#include "modelfiles/modelfile.h"
#include "tarq/frame/status.h"
#include "tests/support/outcomematchers.h"

namespace tarq {

/// A line with the texts in fields 1, 2, 3 and so on, numbers to the right of their fields.
inline std::string fields(std::initializer_list<std::string_view> texts) {
    std::string line;
    std::size_t field = 0;
    for (const std::string_view text : texts) {
        const FixedFieldPlace place = fixedFieldPlaces[++field];
        const bool isNumber = field == 4 || field == 6;
        line.resize(place.start() + (isNumber && text.size() < place.width ? place.width - text.size() : 0), ' ');
        line += text;
    }
    return line + '\n';
}

struct MpsModel final : ModelFileTarget {
    ModelStore& store() override { return modelStore; }
    void clearModel() override {
        modelStore.clear();
        ++clearings;
    }
    void setModelName(std::string newName) override { name = std::move(newName); }
    void setParameter(std::string_view parameter, std::string_view value) override {
        parameters.emplace_back(parameter, value);
    }

    void setReadingNotes(const ReadingNotes& told) override { notes = told; }

    Outcome read(std::string text, TARQFileFormatType format = TARQFileFormatType::MPS) {
        return readModelText(std::move(text), format, *this);
    }

    [[nodiscard]] const RowRecord& row(std::string_view rowName) { return modelStore.row(modelStore.findRow(rowName)); }
    [[nodiscard]] const ColumnRecord& column(std::string_view columnName) {
        return modelStore.column(modelStore.findColumn(columnName));
    }
    [[nodiscard]] double nonzero(std::string_view columnName, std::string_view rowName) {
        return modelStore.nonzeroAt(modelStore.findColumn(columnName) + 1, modelStore.findRow(rowName) + 1);
    }

    ModelStore modelStore;
    std::string name;
    std::vector<std::pair<std::string, std::string>> parameters;
    int clearings = 0;
    ReadingNotes notes;
};

}  // namespace tarq
