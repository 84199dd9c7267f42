// NonzeroTable: the coefficient matrix, kept row by row with the columns of a row in ascending order.
//
// Keys are a column number and a row number, both from 1 and named in this order everywhere. The table doesn't know how
// many columns and rows the model has; its owner checks that. The value 0.0 is never held: setting it erases. 16 bytes
// for each row up to the last one with a nonzero, and 12 bytes a nonzero plus what rows keep for growing, nothing after
// `load` and up to half otherwise. When memory runs out an operation throws std::bad_alloc; the table stays whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/nonzeroloader.h"
#include "model/nonzerorow.h"

namespace tarq {

class NonzeroTable {
public:
    /// Number of nonzeros.
    [[nodiscard]] std::int64_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }

    /// The value at a place, nullptr when there is none. Valid until the table changes. Logarithmic in the row's
    /// length.
    [[nodiscard]] const double* find(std::int32_t columnNumber, std::int32_t rowNumber) const;
    /// Stores a value; 0.0 erases. Constant behind the last column of the row, else as `NonzeroRow::set`.
    void set(std::int32_t columnNumber, std::int32_t rowNumber, double value);
    /// Adds to the value at a place, 0.0 when absent. A sum of 0.0 erases; a delta of 0.0 does nothing.
    void add(std::int32_t columnNumber, std::int32_t rowNumber, double delta);
    /// True when there was a value to erase.
    bool erase(std::int32_t columnNumber, std::int32_t rowNumber);

    /// Erases the columns from `first` to `last` and renumbers those behind them, in one pass.
    void removeColumns(std::int32_t first, std::int32_t last);
    /// The same for rows.
    void removeRows(std::int32_t first, std::int32_t last);
    /// Empties the table and gives its memory back.
    void clear() noexcept;

    /// Takes all that the loader has collected, as if each were set in turn, and leaves the loader empty. Rows get
    /// their exact capacity. Linear when every row's columns come in ascending order. When memory runs out, some rows
    /// may have taken their nonzeros and others not.
    void load(NonzeroLoader& loader);

    /// Gives back the memory kept for growing.
    void shrinkToFit();
    /// Bytes asked of the allocator.
    [[nodiscard]] std::size_t memoryBytes() const;

    /// The nonzeros of one row, to be walked with `for` or run by run; empty for a row that has none.
    [[nodiscard]] const NonzeroRow& row(std::int32_t rowNumber) const {
        return holdsRow(rowNumber) ? rows_[position(rowNumber)] : emptyRow_;
    }
    /// Number of the last row that may have a nonzero.
    [[nodiscard]] std::int32_t rowLimit() const { return static_cast<std::int32_t>(rows_.size()); }

    /// Calls visit(columnNumber, rowNumber, value) row by row, columns ascending.
    template <class Visit>
    void forEach(Visit visit) const {
        for (std::int32_t rowNumber = 1; rowNumber <= rowLimit(); ++rowNumber) {
            forEachInRow(rowNumber,
                         [&](std::int32_t columnNumber, double value) { visit(columnNumber, rowNumber, value); });
        }
    }
    /// Calls visit(columnNumber, value), columns ascending.
    template <class Visit>
    void forEachInRow(std::int32_t rowNumber, Visit visit) const {
        const NonzeroRow& nonzeros = row(rowNumber);
        for (std::size_t index = 0; index < nonzeros.runCount(); ++index) {
            const NonzeroRun run = nonzeros.run(index);
            for (std::size_t i = 0; i < run.values.size(); ++i) visit(run.columnNumbers[i], run.values[i]);
        }
    }

private:
    [[nodiscard]] static std::size_t position(std::int32_t rowNumber) {
        return static_cast<std::size_t>(rowNumber) - 1;
    }
    [[nodiscard]] bool holdsRow(std::int32_t rowNumber) const {
        return rowNumber >= 1 && position(rowNumber) < rows_.size();
    }
    void reserveForLoad(NonzeroLoader& loader);

    inline static const NonzeroRow emptyRow_{};
    std::vector<NonzeroRow> rows_;
    std::int64_t size_ = 0;
};

}  // namespace tarq
