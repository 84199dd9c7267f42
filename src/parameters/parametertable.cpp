#include "parameters/parametertable.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "frame/numbertext.h"
#include "frame/text.h"
#include "parameters/filefailures.h"
#include "parameters/parameterrowdata.h"

namespace tarq {
namespace {

using parameterdata::rows;

constexpr auto relaxed = std::memory_order_relaxed;
constexpr std::uint8_t noString = 0xFF;

/// For each row the place of its text, so that the other rows cost no string.
constexpr auto stringPlaces = [] {
    std::array<std::uint8_t, parameterCount> places{};
    std::uint8_t next = 0;
    for (std::size_t row = 0; row < places.size(); ++row) {
        places[row] = rows[row].type == ParameterType::String ? next++ : noString;
    }
    return places;
}();

std::size_t indexOf(int row) {
    if (row < 0 || row >= parameterCount) throw std::out_of_range("no such parameter row");
    return static_cast<std::size_t>(row);
}

std::size_t slotOf(int slot) {
    if (slot < 0 || slot >= resultCount) throw std::out_of_range("no such result slot");
    return static_cast<std::size_t>(slot);
}

Outcome outOfRange() { return {status::valueOutOfRange, "Passed value is not within valid range."}; }

}  // namespace

ParameterTable::ParameterTable() {
    static_assert(std::ranges::count(rows, ParameterType::String, &ParameterRow::type) == stringRowCount);
    reset();
}

void ParameterTable::reset() {
    const std::lock_guard lock(stringsMutex_);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        longs_[row].store(rows[row].longDefault, relaxed);
        doubles_[row].store(rows[row].doubleDefault, relaxed);
        if (stringPlaces[row] != noString) strings_[stringPlaces[row]] = rows[row].stringDefault;
    }
    clearResults();
}

std::int32_t ParameterTable::longValue(int row) const { return longs_[indexOf(row)].load(relaxed); }

double ParameterTable::doubleValue(int row) const { return doubles_[indexOf(row)].load(relaxed); }

const std::string& ParameterTable::stringValue(int row) const {
    static const std::string empty;
    const std::uint8_t place = stringPlaces[indexOf(row)];
    return place == noString ? empty : strings_[place];
}

Outcome ParameterTable::setLong(int row, std::int32_t value) {
    const ParameterRow& about = rows[indexOf(row)];
    if (about.type != ParameterType::Long) return wrongKind();
    if (value < about.longMinimum || value > about.longMaximum) return outOfRange();
    longs_[indexOf(row)].store(value, relaxed);
    return {};
}

Outcome ParameterTable::setDouble(int row, double value) {
    const ParameterRow& about = rows[indexOf(row)];
    if (about.type != ParameterType::Double) return wrongKind();
    const bool inRange = value >= about.doubleMinimum && value <= about.doubleMaximum;
    if (!inRange) return outOfRange();
    doubles_[indexOf(row)].store(value, relaxed);
    return {};
}

Outcome ParameterTable::setString(int row, std::string_view value) {
    const ParameterRow& about = rows[indexOf(row)];
    if (about.type != ParameterType::String) return wrongKind();
    if (utf16Length(value) > static_cast<std::size_t>(about.stringMaxLength)) {
        return textTooLong();
    }
    const std::lock_guard lock(stringsMutex_);
    strings_[stringPlaces[indexOf(row)]] = value;
    return {};
}

std::string ParameterTable::valueText(int row) const {
    switch (rows[indexOf(row)].type) {
        case ParameterType::Long:
            return fmt::to_string(longValue(row));
        case ParameterType::Double:
            return realText(doubleValue(row));
        case ParameterType::String: {
            const std::lock_guard lock(stringsMutex_);
            return stringValue(row);
        }
    }
    return {};
}

std::int32_t ParameterTable::resultLong(int slot) const {
    using Limits = std::numeric_limits<std::int32_t>;
    const double value = resultDouble(slot);
    if (std::isnan(value)) return 0;
    return static_cast<std::int32_t>(std::clamp(value, double{Limits::min()}, double{Limits::max()}));
}

double ParameterTable::resultDouble(int slot) const { return results_[slotOf(slot)].load(relaxed); }

void ParameterTable::setResult(int slot, double value) { results_[slotOf(slot)].store(value, relaxed); }

void ParameterTable::clearResults() {
    for (std::atomic<double>& result : results_) result.store(0.0, relaxed);
}

}  // namespace tarq
