// ParameterTable: the values of the 121 solver parameters and of the 14 results that an engine reports.
//
// What a parameter is (name, kind, limits, default, texts) is constant data, the ParameterRow of parameterrows.h; a
// table holds only the values, one table a model. Rows are 0-based here; the public ParameterID is the row plus 1.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/status.h"
#include "parameters/parameterrows.h"

namespace tarq {

class ParameterTable {
public:
    /// Every value at its default, every result 0.
    ParameterTable();

    /// Back to the state of a new table.
    void reset();

    [[nodiscard]] std::int32_t longValue(int row) const;
    [[nodiscard]] double doubleValue(int row) const;
    [[nodiscard]] const std::string& stringValue(int row) const;

    /// The checked stores. A refused value leaves the row as it was.
    [[nodiscard]] Outcome setLong(int row, std::int32_t value);
    [[nodiscard]] Outcome setDouble(int row, double value);
    [[nodiscard]] Outcome setString(int row, std::string_view value);

    /// A row's current value as text: "%d", "%20.16g" without blanks, or the text itself.
    [[nodiscard]] std::string valueText(int row) const;

    /// The results, by slot of resultSlots. Written by the thread of a run and readable on another at any time.
    [[nodiscard]] std::int32_t resultLong(int slot) const;
    [[nodiscard]] double resultDouble(int slot) const;
    void setResult(int slot, double value);
    void clearResults();
};

}  // namespace tarq
