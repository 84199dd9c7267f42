#include "model/nonzerotable.h"

#include <algorithm>
#include <utility>

namespace tarq {

const double* NonzeroTable::find(std::int32_t columnNumber, std::int32_t rowNumber) const {
    return holdsRow(rowNumber) ? rows_[position(rowNumber)].find(columnNumber) : nullptr;
}

void NonzeroTable::set(std::int32_t columnNumber, std::int32_t rowNumber, double value) {
    if (value == 0.0) {
        erase(columnNumber, rowNumber);
        return;
    }
    if (!holdsRow(rowNumber)) rows_.resize(static_cast<std::size_t>(rowNumber));
    size_ += rows_[position(rowNumber)].set(columnNumber, value) ? 1 : 0;
}

void NonzeroTable::add(std::int32_t columnNumber, std::int32_t rowNumber, double delta) {
    if (delta == 0.0) return;
    double* present = holdsRow(rowNumber) ? rows_[position(rowNumber)].find(columnNumber) : nullptr;
    const double sum = (present != nullptr ? *present : 0.0) + delta;
    if (present != nullptr && sum != 0.0) {
        *present = sum;
    } else {
        set(columnNumber, rowNumber, sum);
    }
}

bool NonzeroTable::erase(std::int32_t columnNumber, std::int32_t rowNumber) {
    const bool erased = holdsRow(rowNumber) && rows_[position(rowNumber)].erase(columnNumber);
    size_ -= erased ? 1 : 0;
    return erased;
}

void NonzeroTable::removeColumns(std::int32_t first, std::int32_t last) {
    for (NonzeroRow& row : rows_) size_ -= row.removeColumns(first, last);
}

void NonzeroTable::removeRows(std::int32_t first, std::int32_t last) {
    const auto begin = rows_.begin() + std::min(std::max(first, 1) - 1, rowLimit());
    const auto end = rows_.begin() + std::min(last, rowLimit());
    if (begin >= end) return;
    for (auto row = begin; row != end; ++row) size_ -= row->count();
    rows_.erase(begin, end);
}

void NonzeroTable::clear() noexcept {
    std::vector<NonzeroRow>().swap(rows_);
    size_ = 0;
}

void NonzeroTable::reserveForLoad(NonzeroLoader& loader) {
    if (loader.rowCounts_.size() > rows_.size()) {
        rows_.reserve(loader.rowCounts_.size());
        rows_.resize(loader.rowCounts_.size());
    }
    for (std::size_t i = 0; i < loader.rowCounts_.size(); ++i) {
        const std::size_t appended = loader.rowCounts_[i];
        if (appended != 0) rows_[i].reserveFlat(rows_[i].count() + appended);
    }
}

void NonzeroTable::load(NonzeroLoader& loader) {
    NonzeroLoader taken = std::exchange(loader, NonzeroLoader());
    if (taken.empty()) return;
    reserveForLoad(taken);

    std::vector<std::uint32_t>& sortedCounts = taken.rowCounts_;
    for (std::size_t i = 0; i < sortedCounts.size(); ++i) sortedCounts[i] = rows_[i].count();
    for (NonzeroLoader::Chunk& chunk : taken.chunks_) {
        taken.forEachInChunk(chunk, [this](const NonzeroLoader::Triple& triple) {
            rows_[position(triple.rowNumber)].appendUnsorted(triple.columnNumber, triple.value);
        });
        chunk.triples.reset();
    }

    std::size_t i = 0;
    try {
        for (; i < sortedCounts.size(); ++i) {
            rows_[i].sortAppended(sortedCounts[i]);
            size_ += static_cast<std::int64_t>(rows_[i].count()) - sortedCounts[i];
        }
    } catch (...) {
        for (; i < sortedCounts.size(); ++i) rows_[i].dropAppended(sortedCounts[i]);
        throw;
    }
}

void NonzeroTable::shrinkToFit() {
    while (!rows_.empty() && rows_.back().count() == 0) rows_.pop_back();
    for (NonzeroRow& row : rows_) row.shrinkToFit();
    rows_.shrink_to_fit();
}

std::size_t NonzeroTable::memoryBytes() const {
    std::size_t bytes = rows_.capacity() * sizeof(NonzeroRow);
    for (const NonzeroRow& row : rows_) bytes += row.memoryBytes();
    return bytes;
}

}  // namespace tarq
