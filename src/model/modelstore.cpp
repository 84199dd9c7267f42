#include "model/modelstore.h"

#include <algorithm>
#include <utility>

namespace tarq {
namespace {

constexpr NameTexts columnTexts{"Duplicate col name: ", "Col name '", "' is too long.", status::badColumnName};
constexpr NameTexts rowTexts{"Duplicate row name: ", "Row name '", "' is too long.", status::badRowName};

}  // namespace

ModelStore::ModelStore() : columns_(columnTexts), rows_(rowTexts) {}

void ModelStore::setInfinity(double value) {
    const auto held = gate_.edit();
    infinity_ = value;
}

void ModelStore::reserveColumns(std::int32_t count) {
    const auto held = gate_.edit();
    columns_.reserve(count);
}

void ModelStore::reserveRows(std::int32_t count) {
    const auto held = gate_.edit();
    rows_.reserve(count);
}

Outcome ModelStore::addColumnRecord(ColumnRecord&& record) {
    const auto held = gate_.edit();
    return columns_.add(std::move(record));
}

Outcome ModelStore::addRowRecord(RowRecord&& record) {
    const auto held = gate_.edit();
    return rows_.add(std::move(record));
}

Outcome ModelStore::renameColumn(std::int32_t position, std::string_view name) {
    const auto held = gate_.edit();
    return columns_.rename(position, std::string(name));
}

Outcome ModelStore::renameRow(std::int32_t position, std::string_view name) {
    const auto held = gate_.edit();
    return rows_.rename(position, std::string(name));
}

void ModelStore::removeColumns(std::int32_t firstNumber, std::int32_t lastNumber) {
    const std::int32_t first = std::max(firstNumber, 1);
    const std::int32_t last = std::min(lastNumber, columnCount());
    if (first > last) return;
    const auto held = gate_.edit();
    columns_.remove(first, last);
    nonzeros_.removeColumns(first, last);
}

void ModelStore::removeRows(std::int32_t firstNumber, std::int32_t lastNumber) {
    const std::int32_t first = std::max(firstNumber, 1);
    const std::int32_t last = std::min(lastNumber, rowCount());
    if (first > last) return;
    const auto held = gate_.edit();
    rows_.remove(first, last);
    nonzeros_.removeRows(first, last);
}

bool ModelStore::holdsPlace(std::int32_t columnNumber, std::int32_t rowNumber) const {
    return columnNumber >= 1 && columnNumber <= columnCount() && rowNumber >= 1 && rowNumber <= rowCount();
}

void ModelStore::setNonzero(std::int32_t columnNumber, std::int32_t rowNumber, double value) {
    const auto held = gate_.edit();
    if (holdsPlace(columnNumber, rowNumber)) nonzeros_.set(columnNumber, rowNumber, value);
}

void ModelStore::addToNonzero(std::int32_t columnNumber, std::int32_t rowNumber, double delta) {
    const auto held = gate_.edit();
    if (holdsPlace(columnNumber, rowNumber)) nonzeros_.add(columnNumber, rowNumber, delta);
}

bool ModelStore::findNonzero(std::int32_t columnNumber, std::int32_t rowNumber, double& value) const {
    const double* found = nonzeros_.find(columnNumber, rowNumber);
    value = found != nullptr ? *found : 0.0;
    return found != nullptr;
}

bool ModelStore::eraseNonzero(std::int32_t columnNumber, std::int32_t rowNumber) {
    const auto held = gate_.edit();
    return nonzeros_.erase(columnNumber, rowNumber);
}

void ModelStore::loadNonzeros(NonzeroLoader& loader) {
    const auto held = gate_.edit();
    loader.dropBeyond(columnCount(), rowCount());
    nonzeros_.load(loader);
}

double ModelStore::clampToInfinity(double value) const {
    if (value > infinity_) return infinity_;
    if (value < -infinity_) return -infinity_;
    return value;
}

bool ModelStore::hasIntegerColumn() const {
    for (std::int32_t position = 0; position < columnCount(); ++position) {
        if (column(position).type != TARQColType::Continuous) return true;
    }
    return false;
}

void ModelStore::autoRename() {
    const auto held = gate_.edit();
    // All that can fail comes first: old names and new ones beside each other could be the same.
    NameIndex columnNames = columns_.makeNameRoom();
    NameIndex rowNames = rows_.makeNameRoom();
    columns_.autoRename('C', std::move(columnNames));
    rows_.autoRename('R', std::move(rowNames));
}

void ModelStore::take(ModelStore&& other) noexcept {
    const auto held = gate_.edit();
    columns_ = std::move(other.columns_);
    rows_ = std::move(other.rows_);
    nonzeros_ = std::move(other.nonzeros_);
    infinity_ = other.infinity_;
}

void ModelStore::clear() noexcept {
    const auto held = gate_.edit();
    columns_.clear();
    rows_.clear();
    nonzeros_.clear();
}

}  // namespace tarq
