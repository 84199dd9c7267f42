#include "model/modelstore.h"

#include <algorithm>
#include <utility>

namespace tarq {

void ModelStore::setInfinity(double value) {
    const auto held = gate_.edit();
    infinity_ = value;
}

template <class Record>
void ModelStore::reserve(std::int32_t count) {
    const auto held = gate_.edit();
    tableOf<Record>(*this).reserve(count);
}

template <class Record>
Outcome ModelStore::add(Record&& record) {
    const auto held = gate_.edit();
    return tableOf<Record>(*this).add(std::forward<Record>(record));
}

template <class Record>
Outcome ModelStore::rename(std::int32_t position, std::string_view name) {
    const auto held = gate_.edit();
    return tableOf<Record>(*this).rename(position, std::string(name));
}

template <class Record>
void ModelStore::remove(std::int32_t firstNumber, std::int32_t lastNumber) {
    RecordTable<Record>& table = tableOf<Record>(*this);
    const std::int32_t first = std::max(firstNumber, 1);
    const std::int32_t last = std::min(lastNumber, table.count());
    if (first > last) return;
    const auto held = gate_.edit();
    table.remove(first, last);
    if constexpr (Record::side == ModelSide::Column) {
        nonzeros_.removeColumns(first, last);
    } else {
        nonzeros_.removeRows(first, last);
    }
}

template void ModelStore::reserve<ColumnRecord>(std::int32_t count);
template void ModelStore::reserve<RowRecord>(std::int32_t count);
template Outcome ModelStore::add(ColumnRecord&& record);
template Outcome ModelStore::add(RowRecord&& record);
template Outcome ModelStore::rename<ColumnRecord>(std::int32_t position, std::string_view name);
template Outcome ModelStore::rename<RowRecord>(std::int32_t position, std::string_view name);
template void ModelStore::remove<ColumnRecord>(std::int32_t firstNumber, std::int32_t lastNumber);
template void ModelStore::remove<RowRecord>(std::int32_t firstNumber, std::int32_t lastNumber);

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
