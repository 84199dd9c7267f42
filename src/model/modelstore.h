// ModelStore: one linear or mixed-integer model, independent of any engine.
//
// Positions are 0-based, numbers are 1-based. The objective stands in the costs of the columns; there is no objective
// row. The store has no lock: one thread at a time.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/object.h"
#include "frame/status.h"
#include "interfaces/enumerations.h"
#include "model/nonzerotable.h"

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
    IUnknown* family = nullptr;  ///< the family that created the column; not counted
};

struct RowRecord {
    std::string name;
    TARQColRowStatusType status = TARQColRowStatusType::UndefinedVarStatus;
    double lowerBound = 0.0;
    double upperBound = 0.0;
    double ipValue = 0.0;
    double lpValue = 0.0;
    double dual = 0.0;
    IUnknown* family = nullptr;  ///< the family that created the row; not counted
};

class ModelStore {
public:
    [[nodiscard]] std::int32_t columnCount() const;
    [[nodiscard]] std::int32_t rowCount() const;
    [[nodiscard]] double infinity() const;
    void setInfinity(double value);

    /// The record at a 0-based position below the count. Names change only through renameColumn and renameRow.
    [[nodiscard]] const ColumnRecord& column(std::int32_t position) const;
    [[nodiscard]] ColumnRecord& column(std::int32_t position);
    [[nodiscard]] const RowRecord& row(std::int32_t position) const;
    [[nodiscard]] RowRecord& row(std::int32_t position);

    /// 0-based position of the column or row of this name, -1 when there is none. The empty name is never found.
    [[nodiscard]] std::int32_t findColumn(std::string_view name) const;
    [[nodiscard]] std::int32_t findRow(std::string_view name) const;

    [[nodiscard]] Outcome addColumnRecord(ColumnRecord record);
    [[nodiscard]] Outcome addRowRecord(RowRecord record);
    [[nodiscard]] Outcome renameColumn(std::int32_t position, std::string_view name);
    [[nodiscard]] Outcome renameRow(std::int32_t position, std::string_view name);
    void removeColumns(std::int32_t firstNumber, std::int32_t lastNumber);
    void removeRows(std::int32_t firstNumber, std::int32_t lastNumber);

    /// Column number first, row number second, as everywhere in the store.
    void setNonzero(std::int32_t columnNumber, std::int32_t rowNumber, double value);
    void addToNonzero(std::int32_t columnNumber, std::int32_t rowNumber, double delta);
    [[nodiscard]] bool findNonzero(std::int32_t columnNumber, std::int32_t rowNumber, double& value) const;
    [[nodiscard]] const NonzeroTable& nonzeros() const;

    [[nodiscard]] double clampToInfinity(double value) const;
    [[nodiscard]] bool hasIntegerColumn() const;
    void autoRename();
    void clear();
};

}  // namespace tarq
