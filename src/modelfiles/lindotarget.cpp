#include "modelfiles/lindotarget.h"

#include <algorithm>
#include <utility>

namespace tarq {

void LindoTarget::reserveColumns(std::size_t count) {
    columns_.reserve(count);
    if (columns_.size() != static_cast<std::size_t>(numbered_.count())) others_.reserve(count);
}

void LindoTarget::endObjective() {
    storeTerms();
    placeInRow_.resize(columns_.size());
}

void LindoTarget::finish() {
    storeTerms();
    storeRow();
    storeColumns();
    store_.loadNonzeros(nonzeros_);
}

void LindoTarget::storeTerms() {
    const std::size_t count = std::exchange(termCount_, 0);
    for (std::size_t i = 0; i < count; ++i) {
        Term& term = terms_[i];
        if (term.position >= 0) continue;
        term.position = findOrAddColumn(term.variable);
        if (term.rowNumber > 0) prefetchPlace(term.position);
    }
    for (std::size_t i = 0; i < count; ++i) {
        const Term& term = terms_[i];
        if (term.rowNumber > 0) {
            addEntry(term);
        } else {
            columns_[static_cast<std::size_t>(term.position)].cost += term.coefficient;
        }
    }
}

std::int32_t LindoTarget::findOrAddColumn(FixedName name) {
    const auto next = static_cast<std::int32_t>(columns_.size());
    // The series ends before the first column that isn't of it.
    std::int32_t position = numbered_.findOrAppend(name, numbered_.count() == next);
    if (position < 0) position = others_.insert(name, next);
    if (position == next) columns_.push_back({name, 0.0});
    return position;
}

void LindoTarget::addEntry(const Term& term) {
    if (term.rowNumber != rowNumber_) {
        storeRow();
        rowNumber_ = term.rowNumber;
    }
    const auto index = static_cast<std::size_t>(term.position);
    if (index >= placeInRow_.size()) placeInRow_.resize(std::max(index + 1, 2 * placeInRow_.size()));
    std::uint32_t& place = placeInRow_[index];
    // Places left by earlier rows don't hold this column.
    if (place < row_.size() && row_[place].column == term.position + 1) {
        row_[place].value += term.coefficient;
        return;
    }
    place = static_cast<std::uint32_t>(row_.size());
    row_.push_back({term.position + 1, term.coefficient});
}

void LindoTarget::storeRow() {
    for (const RowEntry& entry : row_) {
        if (entry.value != 0.0) nonzeros_.append(entry.column, rowNumber_, entry.value);
    }
    row_.clear();
}

void LindoTarget::storeColumns() {
    // As long as memory takes to answer, about so many columns are added.
    constexpr std::size_t ahead = 16;
    others_ = FixedNameTable();
    placeInRow_ = {};
    store_.reserveColumns(static_cast<std::int32_t>(columns_.size()));
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (i + ahead < columns_.size()) store_.prefetchColumn(columns_[i + ahead].name.text());
        ColumnRecord record;
        record.name = columns_[i].name.text();
        record.upperBound = store_.infinity();
        record.cost = columns_[i].cost;
        (void)store_.addColumnRecord(std::move(record));
    }
    columns_ = {};
}

}  // namespace tarq
