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

#include "model/familymark.h"
#include "model/nonzerotable.h"
#include "model/recordtable.h"
#include "model/rungate.h"
#include "tarq/frame/status.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

struct ColumnRecord {
    std::string name;
    TARQColRowStatusType status = TARQColRowStatusType::UndefinedVarStatus;
    double lowerBound = 0.0;
    double upperBound = 1e25;
    double ipValue = 0.0;
    double lpValue = 0.0;
    double reducedCost = 0.0;
    double cost = 0.0;
    TARQColType type = TARQColType::Continuous;
    FamilyMark family{};  ///< of the family that created the column
};

struct RowRecord {
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
    ModelStore();

    /// Held by whoever changes the fields of a record, or makes several changes that belong together.
    [[nodiscard]] RunGate& gate() const { return gate_; }

    [[nodiscard]] std::int32_t columnCount() const { return columns_.count(); }
    [[nodiscard]] std::int32_t rowCount() const { return rows_.count(); }
    /// The model's value for infinity, 1e25 unless a model file says otherwise.
    [[nodiscard]] double infinity() const { return infinity_; }
    void setInfinity(double value);

    /// The record at a 0-based position below the count. Names change only through renameColumn and renameRow.
    [[nodiscard]] const ColumnRecord& column(std::int32_t position) const { return columns_[position]; }
    [[nodiscard]] ColumnRecord& column(std::int32_t position) { return columns_[position]; }
    [[nodiscard]] const RowRecord& row(std::int32_t position) const { return rows_[position]; }
    [[nodiscard]] RowRecord& row(std::int32_t position) { return rows_[position]; }

    /// 0-based position of the column or row of this name, -1 when there is none. The empty name is never found.
    [[nodiscard]] std::int32_t findColumn(std::string_view name) const { return columns_.find(name); }
    [[nodiscard]] std::int32_t findRow(std::string_view name) const { return rows_.find(name); }

    /// 0-based position of the first column or row with this mark, -1 when there is none.
    [[nodiscard]] std::int32_t findFamilyColumn(FamilyMark family) const { return columns_.findFamily(family); }
    [[nodiscard]] std::int32_t findFamilyRow(FamilyMark family) const { return rows_.findFamily(family); }
    /// Fetches what finding and adding a name will look at: for readers that know the names that come next.
    void prefetchColumn(std::string_view name) const { columns_.prefetch(name); }
    void prefetchRow(std::string_view name) const { rows_.prefetch(name); }

    /// Makes room for so many records in all, for readers that know the number beforehand.
    void reserveColumns(std::int32_t count);
    void reserveRows(std::int32_t count);

    /// Adds a record behind the last one, as it stands: bounds aren't clamped and the length of the name isn't tested.
    /// A name that is taken is badColumnName for columns and badRowName for rows, and nothing is added.
    [[nodiscard]] Outcome addColumnRecord(ColumnRecord&& record);
    [[nodiscard]] Outcome addRowRecord(RowRecord&& record);
    /// Gives the record at a 0-based position another name, or none. Fails with the same statuses: a name of more than
    /// 64 bytes changes nothing; a name that is taken leaves the record without a name. A position outside the table is
    /// indexOutOfRange.
    [[nodiscard]] Outcome renameColumn(std::int32_t position, std::string_view name);
    [[nodiscard]] Outcome renameRow(std::int32_t position, std::string_view name);
    /// Removes the records from `firstNumber` to `lastNumber` with their nonzeros; what lies behind moves up. Numbers
    /// outside the table are ignored. One pass over the nonzeros, and what RecordTable::remove tells.
    void removeColumns(std::int32_t firstNumber, std::int32_t lastNumber);
    void removeRows(std::int32_t firstNumber, std::int32_t lastNumber);

    /// Column number first, row number second, as everywhere in the store. A place outside the tables holds no nonzero:
    /// setting, adding and loading pass over it. Setting 0.0, or adding up to it, erases.
    void setNonzero(std::int32_t columnNumber, std::int32_t rowNumber, double value);
    void addToNonzero(std::int32_t columnNumber, std::int32_t rowNumber, double delta);
    /// Sets `value`, to 0.0 when there is no nonzero.
    [[nodiscard]] bool findNonzero(std::int32_t columnNumber, std::int32_t rowNumber, double& value) const;
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
    [[nodiscard]] bool holdsPlace(std::int32_t columnNumber, std::int32_t rowNumber) const;

    RecordTable<ColumnRecord> columns_;
    RecordTable<RowRecord> rows_;
    NonzeroTable nonzeros_;
    double infinity_ = 1e25;
    mutable RunGate gate_;
};

}  // namespace tarq
