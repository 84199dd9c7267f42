// ModelStore: one linear or mixed-integer model, independent of any engine.
//
// Positions are 0-based, numbers are 1-based. The objective stands in the costs of the columns; there is no objective
// row. A nonzero never names a column or row beyond the counts. Editing leaves the solution values of the records as
// they are. One thread edits and reads at a time; a run on another one stays apart by the gate, which every operation
// that changes the store holds by itself. When memory runs out an operation throws std::bad_alloc.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "interfaces/sides.h"
#include "model/familymark.h"
#include "model/nonzerotable.h"
#include "model/recordtable.h"
#include "model/rungate.h"
#include "tarq/frame/status.h"
#include "tarq/interfaces/enumerations.h"
#include "tarq/interfaces/limits.h"

namespace tarq {

struct ColumnRecord {
    static constexpr ModelSide side = ModelSide::Column;

    std::string name;
    TARQColRowStatusType status = TARQColRowStatusType::UndefinedVarStatus;
    double lowerBound = 0.0;
    double upperBound = standardInfinity;
    double ipValue = 0.0;
    double lpValue = 0.0;
    double reducedCost = 0.0;
    double cost = 0.0;
    TARQColType type = TARQColType::Continuous;
    FamilyMark family{};  ///< of the family that created the column
};

struct RowRecord {
    static constexpr ModelSide side = ModelSide::Row;

    std::string name;
    TARQColRowStatusType status = TARQColRowStatusType::UndefinedVarStatus;
    double lowerBound = 0.0;
    double upperBound = 0.0;
    double ipValue = 0.0;
    double lpValue = 0.0;
    double dual = 0.0;
    FamilyMark family{};  ///< of the family that created the row
};

class ModelStore {
public:
    /// Held by whoever changes the fields of a record, or makes several changes that belong together.
    [[nodiscard]] RunGate& gate() const { return gate_; }

    /// The model's value for infinity, `standardInfinity` unless a model file says otherwise.
    [[nodiscard]] double infinity() const { return infinity_; }
    void setInfinity(double value);

    // Both sides alike: `Record` is ColumnRecord or RowRecord.

    /// The columns or rows to read: counted, by 0-based position, found by name and by family.
    template <class Record>
    [[nodiscard]] const RecordTable<Record>& table() const {
        return tableOf<Record>(*this);
    }
    /// The record at a 0-based position below the count. Names change only through `rename`.
    template <class Record>
    [[nodiscard]] Record& record(std::int32_t position) {
        return tableOf<Record>(*this)[position];
    }
    /// Makes room for so many records in all, for readers that know the number beforehand.
    template <class Record>
    void reserve(std::int32_t count);
    /// Adds a record behind the last one, as it stands: bounds aren't clamped and the length of the name isn't tested.
    /// A name that is taken is badColumnName for columns and badRowName for rows, and nothing is added.
    template <class Record>
    [[nodiscard]] Outcome add(Record&& record);
    /// Gives the record at a 0-based position another name, or none. Fails with the same statuses: a name of more than
    /// `longestItemName` bytes changes nothing; a name that is taken leaves the record without a name. A position
    /// outside the table is indexOutOfRange.
    template <class Record>
    [[nodiscard]] Outcome rename(std::int32_t position, std::string_view name);
    /// Removes the records from `firstNumber` to `lastNumber` with their nonzeros; what lies behind moves up. Numbers
    /// outside the table are ignored. One pass over the nonzeros, and what RecordTable::remove tells.
    template <class Record>
    void remove(std::int32_t firstNumber, std::int32_t lastNumber);

    // The same of one side.

    [[nodiscard]] std::int32_t columnCount() const { return columns_.count(); }
    [[nodiscard]] std::int32_t rowCount() const { return rows_.count(); }
    [[nodiscard]] const ColumnRecord& column(std::int32_t position) const { return columns_[position]; }
    [[nodiscard]] ColumnRecord& column(std::int32_t position) { return columns_[position]; }
    [[nodiscard]] const RowRecord& row(std::int32_t position) const { return rows_[position]; }
    [[nodiscard]] RowRecord& row(std::int32_t position) { return rows_[position]; }
    [[nodiscard]] std::int32_t findColumn(std::string_view name) const { return columns_.find(name); }
    [[nodiscard]] std::int32_t findRow(std::string_view name) const { return rows_.find(name); }
    void prefetchColumn(std::string_view name) const { columns_.prefetch(name); }
    void prefetchRow(std::string_view name) const { rows_.prefetch(name); }
    void reserveColumns(std::int32_t count) { reserve<ColumnRecord>(count); }
    void reserveRows(std::int32_t count) { reserve<RowRecord>(count); }
    [[nodiscard]] Outcome addColumnRecord(ColumnRecord&& record) { return add(std::move(record)); }
    [[nodiscard]] Outcome addRowRecord(RowRecord&& record) { return add(std::move(record)); }

    /// Column number first, row number second, as everywhere in the store. A place outside the tables holds no nonzero:
    /// setting, adding and loading pass over it. Setting 0.0, or adding up to it, erases.
    void setNonzero(std::int32_t columnNumber, std::int32_t rowNumber, double value);
    void addToNonzero(std::int32_t columnNumber, std::int32_t rowNumber, double delta);
    /// 0.0 where there is no nonzero.
    [[nodiscard]] double nonzeroAt(std::int32_t columnNumber, std::int32_t rowNumber) const {
        const double* const found = nonzeros_.find(columnNumber, rowNumber);
        return found != nullptr ? *found : 0.0;
    }
    /// True when there was a nonzero.
    bool eraseNonzero(std::int32_t columnNumber, std::int32_t rowNumber);
    /// Sets all that the loader has collected, in its order, and leaves the loader empty. The rows and columns must
    /// have been added before. Faster and smaller than setting each: see NonzeroTable::load.
    void loadNonzeros(NonzeroLoader& loader);
    [[nodiscard]] const NonzeroTable& nonzeros() const { return nonzeros_; }

    /// The value limited to the range from -infinity to infinity; not-a-number stays.
    [[nodiscard]] double clampToInfinity(double value) const;
    /// True when any column has a type other than Continuous. Linear.
    [[nodiscard]] bool hasIntegerColumn() const;
    /// Renames all columns to C1, C2 and so on, and all rows to R1, R2 and so on.
    void autoRename();
    /// Takes over the model of another store, which is of no use then. What was here before is gone.
    void take(ModelStore&& other) noexcept;
    /// Empties the store and gives its memory back. `infinity` stays.
    void clear() noexcept;

private:
    template <class Record, class Store>
    [[nodiscard]] static auto& tableOf(Store& store) {
        if constexpr (Record::side == ModelSide::Column) {
            return store.columns_;
        } else {
            return store.rows_;
        }
    }
    [[nodiscard]] bool holdsPlace(std::int32_t columnNumber, std::int32_t rowNumber) const;

    RecordTable<ColumnRecord> columns_;
    RecordTable<RowRecord> rows_;
    NonzeroTable nonzeros_;
    double infinity_ = standardInfinity;
    mutable RunGate gate_;
};

}  // namespace tarq
