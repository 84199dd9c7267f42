// MpsTarget: adds what an MPS reader finds to a model, and finds it again by name.
//
// Knows nothing of lines and fields. Rows are looked up in a table of its own, as every nonzero asks for one; it holds
// exactly the rows of the store. Nonzeros are collected and handed to the store at the end.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "model/modelstore.h"
#include "model/nonzeroloader.h"
#include "modelfiles/columnfinder.h"
#include "modelfiles/fixedname.h"
#include "modelfiles/fixednametable.h"
#include "tarq/interfaces/ireadingnotes.h"

namespace tarq {

/// The type of a row, kept in its `dual` as long as no run writes there.
enum class MpsRowType { Equal = 1, AtMost = 2, AtLeast = 3, Free = 4 };

/// What a bound does to one side of a column.
enum class MpsSide { Keep, Infinite, Zero, One, Value, TruncatedValue };

/// What a bound does to the type of a column.
enum class MpsTypeChange { Keep, ToBinary, BinaryToInteger, AnyToInteger };

struct MpsBoundType {
    std::string_view code;
    MpsSide lower;
    MpsSide upper;
    MpsTypeChange change;
    double plainValue;  ///< the value at which the type of the column stays
    bool takesValue;
};

/// The bound type of a code in upper case, or nullptr.
[[nodiscard]] const MpsBoundType* findMpsBoundType(std::string_view code);

class MpsTarget {
public:
    static constexpr std::int32_t absent = FixedNameTable::absent;

    /// `store` must be empty.
    explicit MpsTarget(ModelStore& store) : store_(store) {}

    [[nodiscard]] ModelStore& store() { return store_; }

    /// Makes room for so many rows or columns in all, a guess at what is to come.
    void reserveRows(std::size_t count);
    void reserveColumns(std::size_t count);

    /// A row of a name that is taken is dropped: the first one stands.
    void addRow(FixedName name, MpsRowType type);
    /// The positions of names, or `absent`.
    [[nodiscard]] std::int32_t findRow(FixedName name) const { return rows_.find(name); }
    /// Fetches what findRow, and what addRow, will look at.
    void prefetchRow(FixedName name) const { rows_.prefetch(name); }
    void prefetchNewRow(FixedName name) const {
        rows_.prefetch(name);
        store_.prefetchRow(name.text());
    }
    /// For a section that mostly names the columns in their order.
    [[nodiscard]] std::int32_t findNextColumn(FixedName name) {
        return finder_.find(name.text(), [&] { return store_.findColumn(name.text()); });
    }
    /// The position of a column, which is added when it is new: binary or continuous.
    [[nodiscard]] std::int32_t findOrAddColumn(FixedName name, bool binary);

    /// 0.0 is dropped and leaves an earlier nonzero as it is.
    void setNonzero(std::int32_t columnPosition, std::int32_t rowPosition, double value) {
        if (value != 0.0) nonzeros_.append(columnPosition + 1, rowPosition + 1, value);
    }
    /// Hands the nonzeros set so far to the store; to be called once, when all rows and columns are there.
    void storeNonzeros() { store_.loadNonzeros(nonzeros_); }

    void applyRightHandSide(std::int32_t rowPosition, double value);
    void applyRange(std::int32_t rowPosition, double value);
    /// The two bounds aren't compared with each other.
    void applyBound(std::int32_t columnPosition, const MpsBoundType& type, double value);

    /// What other programs may read differently in the columns and bounds so far.
    [[nodiscard]] ReadingNotes readingNotes() const;

private:
    /// Where the upper bound of a column comes from.
    enum class UpperBound : std::uint8_t { Told, OfIntegerBlock, OfMi };

    void markUpperBound(std::int32_t columnPosition, UpperBound origin);
    void setSide(double& bound, MpsSide side, double value, double infinite) const;

    ModelStore& store_;
    FixedNameTable rows_;
    ColumnFinder finder_{store_};
    NonzeroLoader nonzeros_;
    std::vector<UpperBound> upperBounds_;  ///< columns behind its end have theirs from a line, or none
    std::int32_t emptyIntervals_ = 0;      ///< columns from 0 to less than 0
};

}  // namespace tarq
