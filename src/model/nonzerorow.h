// NonzeroRow: the nonzeros of one row, in ascending order of their columns.
//
// A row takes 16 bytes. A single nonzero lies in them; more lie in one block, first the values and then the columns, 12
// bytes a nonzero. A row of more than `flatLimit` nonzeros that changes in its middle is split into leaves, which are
// rows of at most that length, so that a dense row can be filled in any order without moving all of it each time. The
// value 0.0 is never held. When memory runs out an operation throws std::bad_alloc and leaves the row as it was.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

namespace tarq {

/// One coefficient and the number of its column.
struct RowNonzero {
    std::int32_t columnNumber;
    double value;
};

/// Neighbouring nonzeros of one row: parallel, of equal length, columns ascending.
struct NonzeroRun {
    std::span<const std::int32_t> columnNumbers;
    std::span<const double> values;
};

class NonzeroRow {
public:
    class Iterator;
    /// An insertion into a block moves half of it on the average. Up to about this length that costs less than the
    /// cache misses which found the place.
    static constexpr std::uint32_t flatLimit = 512;

    NonzeroRow() noexcept = default;
    NonzeroRow(NonzeroRow&& other) noexcept
        : count_(std::exchange(other.count_, 0)), tag_(std::exchange(other.tag_, 0)), content_(other.content_) {}
    NonzeroRow& operator=(NonzeroRow&& other) noexcept {
        std::swap(count_, other.count_);
        std::swap(tag_, other.tag_);
        std::swap(content_, other.content_);
        return *this;
    }
    ~NonzeroRow() {
        if (tag_ < 0) clear();
    }

    [[nodiscard]] std::uint32_t count() const { return count_; }
    /// The value at a column, nullptr when there is none. Valid until the row changes. Logarithmic.
    [[nodiscard]] const double* find(std::int32_t columnNumber) const;
    [[nodiscard]] double* find(std::int32_t columnNumber) {
        return const_cast<double*>(std::as_const(*this).find(columnNumber));
    }

    /// Stores a value other than 0.0. True when the column is new, false when its value was replaced. Constant behind
    /// the last column, else logarithmic and a move of at most `flatLimit` nonzeros.
    bool set(std::int32_t columnNumber, double value);
    /// True when there was a value to erase.
    bool erase(std::int32_t columnNumber);
    /// Erases the columns from `first` to `last` and renumbers those behind them. Returns how many were erased.
    std::uint32_t removeColumns(std::int32_t first, std::int32_t last);
    void clear() noexcept;
    /// Gives back the memory kept for growing.
    void shrinkToFit();
    /// Bytes asked of the allocator, outside the row itself.
    [[nodiscard]] std::size_t memoryBytes() const;

    /// The row in memory order, as the runs numbered from 0. A row that was built in order has one run.
    [[nodiscard]] std::size_t runCount() const { return isSplit() ? leafCount() : std::size_t{count_ != 0}; }
    [[nodiscard]] NonzeroRun run(std::size_t index) const { return isSplit() ? leafRun(index) : flatRun(); }
    [[nodiscard]] Iterator begin() const;
    [[nodiscard]] Iterator end() const;

    /// Bulk loading, in this order: room for as many nonzeros as will be appended, the nonzeros in any order, and then
    /// the sorting, which lets the last of several nonzeros of a column win and drops zeros. Between the first append
    /// and the end of sorting no other operation may be called but `dropAppended`, which returns to `sortedCount`.
    void reserveFlat(std::size_t count);
    void appendUnsorted(std::int32_t columnNumber, double value) noexcept {
        if (tag_ == 0) {
            tag_ = columnNumber;
            content_.value = value;
            count_ = 1;
            return;
        }
        mutableColumns()[count_] = columnNumber;
        content_.block[count_++] = value;
    }
    void sortAppended(std::uint32_t sortedCount);
    void dropAppended(std::uint32_t sortedCount) noexcept;

private:
    struct Leaves;
    union Content {
        double value = 0.0;  ///< of the only nonzero
        double* block;       ///< as many values as the capacity, then as many columns
        Leaves* leaves;
    };
    static constexpr std::int32_t splitTag = INT32_MIN;

    [[nodiscard]] bool isSplit() const { return tag_ == splitTag; }
    [[nodiscard]] bool isBlock() const { return tag_ < 0 && tag_ != splitTag; }
    [[nodiscard]] std::uint32_t capacity() const { return tag_ < 0 ? static_cast<std::uint32_t>(-tag_) : 1; }
    [[nodiscard]] const std::int32_t* columns() const {
        return tag_ < 0 ? reinterpret_cast<const std::int32_t*>(content_.block - tag_) : &tag_;
    }
    [[nodiscard]] const double* values() const { return tag_ < 0 ? content_.block : &content_.value; }
    [[nodiscard]] std::int32_t* mutableColumns() { return const_cast<std::int32_t*>(std::as_const(*this).columns()); }
    [[nodiscard]] double* mutableValues() { return const_cast<double*>(std::as_const(*this).values()); }
    [[nodiscard]] std::uint32_t flatPosition(std::int32_t columnNumber) const;
    [[nodiscard]] NonzeroRun flatRun() const { return {{columns(), count_}, {values(), count_}}; }
    [[nodiscard]] std::size_t leafCount() const;
    [[nodiscard]] NonzeroRun leafRun(std::size_t index) const;

    void insertFlat(std::uint32_t position, std::int32_t columnNumber, double value);
    void eraseFlat(std::uint32_t first, std::uint32_t last) noexcept;
    void changeCapacity(std::uint32_t capacity);
    void shrinkWhenSparse() noexcept;
    void freeContent() noexcept;
    [[nodiscard]] NonzeroRow copyTail(std::uint32_t first, std::uint32_t last) const;
    void split();
    void joinLeavesWhenFew() noexcept;
    bool setInLeaves(std::int32_t columnNumber, double value);
    bool eraseInLeaves(std::int32_t columnNumber);
    std::uint32_t removeColumnsInLeaves(std::int32_t first, std::int32_t last);

    std::uint32_t count_ = 0;
    std::int32_t tag_ = 0;  ///< 0: empty; above: the column of the only nonzero; below: minus the capacity, or splitTag
    Content content_;
};
static_assert(sizeof(NonzeroRow) == 16);

/// Walks the nonzeros of a row, columns ascending. Valid until the row changes.
class NonzeroRow::Iterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = RowNonzero;
    using difference_type = std::ptrdiff_t;
    using pointer = const RowNonzero*;
    using reference = RowNonzero;

    Iterator() = default;
    Iterator(const NonzeroRow* row, std::size_t runIndex) : row_(row), runIndex_(runIndex) {
        if (runIndex_ < row_->runCount()) run_ = row_->run(runIndex_);
    }

    RowNonzero operator*() const { return {run_.columnNumbers[position_], run_.values[position_]}; }
    Iterator& operator++() {
        if (++position_ == run_.values.size()) *this = Iterator(row_, runIndex_ + 1);
        return *this;
    }
    Iterator operator++(int) {
        Iterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const Iterator& left, const Iterator& right) {
        return left.runIndex_ == right.runIndex_ && left.position_ == right.position_;
    }

private:
    const NonzeroRow* row_ = nullptr;
    std::size_t runIndex_ = 0;
    std::size_t position_ = 0;
    NonzeroRun run_;
};

inline NonzeroRow::Iterator NonzeroRow::begin() const { return {this, 0}; }
inline NonzeroRow::Iterator NonzeroRow::end() const { return {this, runCount()}; }

}  // namespace tarq
