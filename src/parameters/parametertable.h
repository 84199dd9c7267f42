// ParameterTable: the values of the 121 solver parameters and of the 14 results that an engine reports.
//
// What a parameter is (name, kind, limits, default, texts) is constant data, the ParameterRow of parameterrows.h; a
// table holds only the values, one table a model, about 2 KB. Rows are 0-based here; the public ParameterID is the row
// plus 1. A row or slot passed in must exist: callers test what parameterIndex and resultIndex gave them. One that
// doesn't throws std::out_of_range.
//
// The parameters are written on the thread of the model's client, and a run on another one may read them meanwhile by
// longValue, doubleValue and valueText. The results are written by the thread of a run and may be read on another at
// any time. A table is neither copied nor moved.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>

#include "parameters/parameterrows.h"
#include "tarq/frame/status.h"

namespace tarq {

/// What a value of another kind than its row's meets with.
[[nodiscard]] inline Outcome wrongKind() { return {status::wrongKind, "Variant argument is of wrong type."}; }

class ParameterTable {
public:
    /// Every value at its default, every result 0.
    ParameterTable();

    /// Back to the state of a new table.
    void reset();

    /// The value of a row of the kind named; 0 or the empty text for a row of another kind.
    [[nodiscard]] std::int32_t longValue(int row) const;
    [[nodiscard]] double doubleValue(int row) const;
    [[nodiscard]] const std::string& stringValue(int row) const;  ///< the client's thread only

    /// The checked stores. A refused value leaves the row as it was: valueOutOfRange outside of the limits, which are
    /// inclusive and which not-a-number never meets, textTooLong for a text longer than the row's stringMaxLength in
    /// UTF-16 code units, wrongKind for a row of another kind.
    [[nodiscard]] Outcome setLong(int row, std::int32_t value);
    [[nodiscard]] Outcome setDouble(int row, double value);
    [[nodiscard]] Outcome setString(int row, std::string_view value);

    /// A row's current value as text: "%d", "%20.16g" without blanks, or the text itself. Always with a decimal point.
    [[nodiscard]] std::string valueText(int row) const;

    /// The results, by slot of resultSlots. Written by the thread of a run and readable on another at any time.
    /// resultLong cuts off the fraction and ends at the limits of its type; not-a-number reads as 0.
    [[nodiscard]] std::int32_t resultLong(int slot) const;
    [[nodiscard]] double resultDouble(int slot) const;
    void setResult(int slot, double value);
    void clearResults();

private:
    static constexpr std::size_t stringRowCount = 16;

    // Relaxed: each value stands for itself, nothing else is published through it.
    std::array<std::atomic<std::int32_t>, parameterCount> longs_{};
    std::array<std::atomic<double>, parameterCount> doubles_{};
    std::array<std::atomic<double>, resultCount> results_{};
    mutable std::mutex stringsMutex_;  // while a text changes, and where another thread may be reading it
    std::array<std::string, stringRowCount> strings_;
    static_assert(std::atomic<double>::is_always_lock_free);
};

}  // namespace tarq
