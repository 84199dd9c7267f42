#include "model/nonzerorow.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <new>

namespace tarq {
namespace {

constexpr std::size_t bytesPerNonzero = sizeof(double) + sizeof(std::int32_t);
constexpr std::size_t capacityLimit = std::numeric_limits<std::int32_t>::max() - 1;

/// Values are the stricter aligned half of a block, so blocks are counted in their size.
std::size_t blockLength(std::size_t capacity) {
    return (capacity * bytesPerNonzero + sizeof(double) - 1) / sizeof(double);
}

double* allocateBlock(std::size_t capacity) { return std::allocator<double>().allocate(blockLength(capacity)); }

/// The capacity to ask for when `count` nonzeros are to fit. Allocators commonly hand out 16 bytes at a time of which
/// the first 8 are their own; what rounding up to that brings is free.
std::uint32_t usefulCapacity(std::size_t count) {
    if (count > capacityLimit) throw std::bad_alloc();
    const std::size_t bytes = (count * bytesPerNonzero + 7) / 16 * 16 + 8;
    return static_cast<std::uint32_t>(std::min(std::max(bytes / bytesPerNonzero, count), capacityLimit));
}

/// First position in ascending `columns` that isn't below `column`. Free of branches that depend on the data, which
/// would be guessed wrong half the time.
std::uint32_t lowerBound(const std::int32_t* columns, std::uint32_t count, std::int32_t column) {
    if (count == 0) return 0;
    const std::int32_t* base = columns;
    for (std::uint32_t length = count; length > 1;) {
        const std::uint32_t half = length / 2;
        base += base[half - 1] < column ? half : 0;
        length -= half;
    }
    return static_cast<std::uint32_t>(base - columns) + (*base < column ? 1 : 0);
}

}  // namespace

/// Pieces of a long row. Leaf i holds the columns from firstColumns[i] up to below firstColumns[i + 1]; the first one
/// also those before it. A leaf is never empty, and a row that is split has at least one.
struct NonzeroRow::Leaves {
    std::vector<std::int32_t> firstColumns;
    std::vector<NonzeroRow> rows;

    [[nodiscard]] std::size_t leafOf(std::int32_t column) const {
        const auto behind = std::ranges::upper_bound(firstColumns, column);
        return behind == firstColumns.begin() ? 0 : static_cast<std::size_t>(behind - firstColumns.begin()) - 1;
    }
    void reserveOneMore() {
        // Not through push_back alone: the two vectors must grow together or not at all.
        if (rows.size() < rows.capacity() && firstColumns.size() < firstColumns.capacity()) return;
        rows.reserve(2 * rows.size() + 2);
        firstColumns.reserve(2 * firstColumns.size() + 2);
    }
    void insert(std::size_t index, NonzeroRow&& leaf) {
        const auto at = static_cast<std::ptrdiff_t>(index);
        firstColumns.insert(firstColumns.begin() + at, leaf.columns()[0]);
        rows.insert(rows.begin() + at, std::move(leaf));
    }
    /// Drops empty leaves and joins neighbours that fit together in one with room to spare.
    void tidy() noexcept;
    [[nodiscard]] static bool join(NonzeroRow& before, const NonzeroRow& leaf) noexcept;
};

bool NonzeroRow::Leaves::join(NonzeroRow& before, const NonzeroRow& leaf) noexcept {
    if (before.count_ + leaf.count_ > flatLimit / 2) return false;
    try {
        before.reserveFlat(before.count_ + leaf.count_);
    } catch (const std::bad_alloc&) {  // Two leaves serve as well as one.
        return false;
    }
    for (const RowNonzero nonzero : leaf) before.appendUnsorted(nonzero.columnNumber, nonzero.value);
    return true;
}

void NonzeroRow::Leaves::tidy() noexcept {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        NonzeroRow& leaf = rows[i];
        if (leaf.count_ == 0) continue;
        if (kept > 0 && join(rows[kept - 1], leaf)) {
            leaf.clear();
            continue;
        }
        firstColumns[kept] = leaf.columns()[0];
        if (kept != i) rows[kept] = std::move(leaf);
        ++kept;
    }
    rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(kept), rows.end());
    firstColumns.resize(kept);
}

std::size_t NonzeroRow::leafCount() const { return content_.leaves->rows.size(); }
NonzeroRun NonzeroRow::leafRun(std::size_t index) const { return content_.leaves->rows[index].flatRun(); }

std::uint32_t NonzeroRow::flatPosition(std::int32_t columnNumber) const {
    return lowerBound(columns(), count_, columnNumber);
}

const double* NonzeroRow::find(std::int32_t columnNumber) const {
    if (isSplit()) {
        const Leaves& leaves = *content_.leaves;
        return leaves.rows[leaves.leafOf(columnNumber)].find(columnNumber);
    }
    const std::uint32_t position = flatPosition(columnNumber);
    return position < count_ && columns()[position] == columnNumber ? values() + position : nullptr;
}

bool NonzeroRow::set(std::int32_t columnNumber, double value) {
    if (isSplit()) return setInLeaves(columnNumber, value);
    if (count_ == 0 || columns()[count_ - 1] < columnNumber) {
        insertFlat(count_, columnNumber, value);
        return true;
    }
    const std::uint32_t position = flatPosition(columnNumber);
    if (columns()[position] == columnNumber) {
        mutableValues()[position] = value;
        return false;
    }
    if (count_ < flatLimit) {
        insertFlat(position, columnNumber, value);
        return true;
    }
    split();
    return setInLeaves(columnNumber, value);
}

void NonzeroRow::insertFlat(std::uint32_t position, std::int32_t columnNumber, double value) {
    if (tag_ == 0) {
        tag_ = columnNumber;
        content_.value = value;
        count_ = 1;
        return;
    }
    if (count_ == capacity()) {
        const std::uint32_t grown = usefulCapacity(std::size_t{count_} + std::max(count_ / 2, 1U));
        changeCapacity(count_ < flatLimit ? std::min(grown, flatLimit) : grown);
    }
    std::int32_t* columnSlot = mutableColumns() + position;
    double* valueSlot = content_.block + position;
    std::move_backward(columnSlot, columnSlot + (count_ - position), columnSlot + (count_ - position) + 1);
    std::move_backward(valueSlot, valueSlot + (count_ - position), valueSlot + (count_ - position) + 1);
    *columnSlot = columnNumber;
    *valueSlot = value;
    ++count_;
}

void NonzeroRow::eraseFlat(std::uint32_t first, std::uint32_t last) noexcept {
    if (first == last) return;
    if (isBlock()) {
        std::move(columns() + last, columns() + count_, mutableColumns() + first);
        std::move(values() + last, values() + count_, content_.block + first);
    }
    count_ -= last - first;
    if (count_ == 0) {
        freeContent();
    } else {
        shrinkWhenSparse();
    }
}

bool NonzeroRow::erase(std::int32_t columnNumber) {
    if (isSplit()) return eraseInLeaves(columnNumber);
    const std::uint32_t position = flatPosition(columnNumber);
    if (position == count_ || columns()[position] != columnNumber) return false;
    if (count_ > flatLimit && position + 1 != count_) {
        split();
        return eraseInLeaves(columnNumber);
    }
    eraseFlat(position, position + 1);
    return true;
}

std::uint32_t NonzeroRow::removeColumns(std::int32_t first, std::int32_t last) {
    if (count_ == 0 || first > last) return 0;
    if (isSplit()) return removeColumnsInLeaves(first, last);
    const std::uint32_t begin = flatPosition(first);
    std::uint32_t end = begin;
    while (end < count_ && columns()[end] <= last) ++end;
    std::int32_t* column = mutableColumns();
    const std::int32_t removed = last - first + 1;
    for (std::uint32_t i = end; i < count_; ++i) column[i] -= removed;
    eraseFlat(begin, end);
    return end - begin;
}

void NonzeroRow::clear() noexcept {
    freeContent();
    count_ = 0;
}

void NonzeroRow::freeContent() noexcept {
    if (isSplit()) {
        std::unique_ptr<Leaves>(content_.leaves).reset();
    } else if (isBlock()) {
        std::allocator<double>().deallocate(content_.block, blockLength(capacity()));
    }
    tag_ = 0;
}

void NonzeroRow::changeCapacity(std::uint32_t capacity) {
    double* block = allocateBlock(capacity);
    std::copy_n(values(), count_, block);
    std::copy_n(columns(), count_, reinterpret_cast<std::int32_t*>(block + capacity));
    freeContent();
    content_.block = block;
    tag_ = -static_cast<std::int32_t>(capacity);
}

void NonzeroRow::shrinkWhenSparse() noexcept {
    if (!isBlock() || count_ > capacity() / 4) return;
    try {
        shrinkToFit();
    } catch (const std::bad_alloc&) {  // The block that is there still serves.
    }
}

void NonzeroRow::shrinkToFit() {
    if (isSplit()) {
        for (NonzeroRow& leaf : content_.leaves->rows) leaf.shrinkToFit();
        content_.leaves->rows.shrink_to_fit();
        content_.leaves->firstColumns.shrink_to_fit();
    } else if (isBlock() && count_ == 1) {
        const RowNonzero only{columns()[0], values()[0]};
        freeContent();
        tag_ = only.columnNumber;
        content_.value = only.value;
    } else if (isBlock() && usefulCapacity(count_) < capacity()) {
        changeCapacity(usefulCapacity(count_));
    }
}

std::size_t NonzeroRow::memoryBytes() const {
    if (isBlock()) return blockLength(capacity()) * sizeof(double);
    if (!isSplit()) return 0;
    const Leaves& leaves = *content_.leaves;
    std::size_t bytes = sizeof(Leaves) + leaves.rows.capacity() * (sizeof(NonzeroRow) + sizeof(std::int32_t));
    for (const NonzeroRow& leaf : leaves.rows) bytes += leaf.memoryBytes();
    return bytes;
}

void NonzeroRow::reserveFlat(std::size_t count) {
    if (isSplit()) {
        NonzeroRow flat;
        flat.reserveFlat(std::max<std::size_t>(count, count_));
        for (const RowNonzero nonzero : *this) flat.appendUnsorted(nonzero.columnNumber, nonzero.value);
        *this = std::move(flat);
    } else if (count > capacity()) {
        changeCapacity(usefulCapacity(count));
    }
}

void NonzeroRow::sortAppended(std::uint32_t sortedCount) {
    bool isSorted = true;
    for (std::uint32_t i = sortedCount; i < count_ && isSorted; ++i) {
        isSorted = values()[i] != 0.0 && (i == 0 || columns()[i - 1] < columns()[i]);
    }
    if (isSorted) return;

    std::vector<RowNonzero> nonzeros(begin(), end());
    std::ranges::stable_sort(nonzeros, {}, &RowNonzero::columnNumber);
    std::uint32_t kept = 0;
    for (std::size_t i = 0; i < nonzeros.size(); ++i) {
        const auto [columnNumber, value] = nonzeros[i];
        const bool isReplaced = i + 1 < nonzeros.size() && nonzeros[i + 1].columnNumber == columnNumber;
        if (isReplaced || value == 0.0) continue;
        mutableColumns()[kept] = columnNumber;
        mutableValues()[kept++] = value;
    }
    eraseFlat(kept, count_);
}

void NonzeroRow::dropAppended(std::uint32_t sortedCount) noexcept { eraseFlat(sortedCount, count_); }

NonzeroRow NonzeroRow::copyTail(std::uint32_t first, std::uint32_t last) const {
    NonzeroRow tail;
    tail.reserveFlat(last - first);
    for (std::uint32_t i = first; i < last; ++i) tail.appendUnsorted(columns()[i], values()[i]);
    return tail;
}

void NonzeroRow::split() {
    constexpr std::uint32_t leafLength = flatLimit / 2;
    auto leaves = std::make_unique<Leaves>();
    leaves->rows.reserve(count_ / leafLength + 2);
    leaves->firstColumns.reserve(count_ / leafLength + 2);
    for (std::uint32_t first = 0; first < count_; first += leafLength) {
        leaves->insert(leaves->rows.size(), copyTail(first, std::min(first + leafLength, count_)));
    }
    freeContent();
    content_.leaves = leaves.release();
    tag_ = splitTag;
}

void NonzeroRow::joinLeavesWhenFew() noexcept {
    if (count_ > flatLimit / 4) return;
    try {
        NonzeroRow joined;
        joined.reserveFlat(count_);
        for (const RowNonzero nonzero : *this) joined.appendUnsorted(nonzero.columnNumber, nonzero.value);
        *this = std::move(joined);
    } catch (const std::bad_alloc&) {  // Leaves serve as well, but a row without nonzeros needs none.
    }
}

bool NonzeroRow::setInLeaves(std::int32_t columnNumber, double value) {
    Leaves& leaves = *content_.leaves;
    std::size_t index = leaves.leafOf(columnNumber);
    if (leaves.rows[index].count_ >= flatLimit && leaves.rows[index].find(columnNumber) == nullptr) {
        leaves.reserveOneMore();
        NonzeroRow& full = leaves.rows[index];
        NonzeroRow next;
        if (index + 1 == leaves.rows.size() && full.columns()[full.count_ - 1] < columnNumber) {
            // A row that grows at its end leaves full leaves behind.
            next.appendUnsorted(columnNumber, value);
            leaves.insert(index + 1, std::move(next));
            ++count_;
            return true;
        }
        const std::uint32_t half = full.count_ / 2;
        next = full.copyTail(half, full.count_);
        full.count_ = half;
        leaves.insert(index + 1, std::move(next));
        index = leaves.leafOf(columnNumber);
    }
    const bool isNew = leaves.rows[index].set(columnNumber, value);
    count_ += isNew ? 1 : 0;
    return isNew;
}

bool NonzeroRow::eraseInLeaves(std::int32_t columnNumber) {
    Leaves& leaves = *content_.leaves;
    NonzeroRow& leaf = leaves.rows[leaves.leafOf(columnNumber)];
    if (!leaf.erase(columnNumber)) return false;
    --count_;
    if (leaf.count_ == flatLimit / 8 || leaf.count_ == 0) leaves.tidy();
    joinLeavesWhenFew();
    return true;
}

std::uint32_t NonzeroRow::removeColumnsInLeaves(std::int32_t first, std::int32_t last) {
    Leaves& leaves = *content_.leaves;
    std::uint32_t removed = 0;
    for (std::size_t i = leaves.leafOf(first); i < leaves.rows.size(); ++i) {
        removed += leaves.rows[i].removeColumns(first, last);
    }
    count_ -= removed;
    leaves.tidy();
    joinLeavesWhenFew();
    return removed;
}

}  // namespace tarq
