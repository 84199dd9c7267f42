#include "modelfiles/mpstarget.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace tarq {
namespace {

using Side = MpsSide;
using Change = MpsTypeChange;

constexpr std::array<MpsBoundType, 9> boundTypes{{
    {"FR", Side::Infinite, Side::Infinite, Change::Keep, 0.0, false},
    {"PL", Side::Zero, Side::Infinite, Change::Keep, 0.0, false},
    {"MI", Side::Infinite, Side::Zero, Change::Keep, 0.0, false},
    {"BV", Side::Zero, Side::One, Change::ToBinary, 0.0, false},
    {"LO", Side::Value, Side::Keep, Change::BinaryToInteger, 0.0, true},
    {"UP", Side::Keep, Side::Value, Change::BinaryToInteger, 1.0, true},
    {"LI", Side::TruncatedValue, Side::Keep, Change::AnyToInteger, 0.0, true},
    {"UI", Side::Keep, Side::TruncatedValue, Change::AnyToInteger, 1.0, true},
    {"FX", Side::Value, Side::Value, Change::Keep, 0.0, true},
}};

/// No file makes the reader take much memory by what it seems to hold.
constexpr std::size_t largestGuess = 1'000'000;

bool isEmptyInterval(const ColumnRecord& column) { return column.lowerBound == 0.0 && column.upperBound < 0.0; }

MpsRowType typeOf(const RowRecord& row) { return static_cast<MpsRowType>(static_cast<int>(row.dual)); }

}  // namespace

const MpsBoundType* findMpsBoundType(std::string_view code) {
    const auto found =
        std::find_if(boundTypes.begin(), boundTypes.end(), [&](const MpsBoundType& type) { return type.code == code; });
    return found == boundTypes.end() ? nullptr : &*found;
}

void MpsTarget::reserveRows(std::size_t count) {
    count = std::min(count, largestGuess);
    rows_.reserve(count);
    store_.reserveRows(static_cast<std::int32_t>(count));
}

void MpsTarget::reserveColumns(std::size_t count) {
    store_.reserveColumns(static_cast<std::int32_t>(std::min(count, largestGuess)));
}

void MpsTarget::addRow(FixedName name, MpsRowType type) {
    const std::int32_t position = store_.rowCount();
    if (rows_.insert(name, position) != position) return;
    RowRecord row;
    row.name = name.text();
    row.dual = static_cast<double>(type);
    if (type == MpsRowType::AtMost || type == MpsRowType::Free) row.lowerBound = -store_.infinity();
    if (type == MpsRowType::AtLeast || type == MpsRowType::Free) row.upperBound = store_.infinity();
    (void)store_.addRowRecord(std::move(row));
}

std::int32_t MpsTarget::findOrAddColumn(FixedName name, bool binary) {
    ColumnRecord column;
    column.name = name.text();
    column.upperBound = binary ? 1.0 : store_.infinity();
    column.type = binary ? TARQColType::Binary : TARQColType::Continuous;
    // Most columns are new: the store finds out whether this one is while it adds it.
    if (!store_.addColumnRecord(std::move(column)).isOk()) return store_.findColumn(name.text());
    const std::int32_t position = store_.columnCount() - 1;
    if (binary) markUpperBound(position, UpperBound::OfIntegerBlock);
    return position;
}

void MpsTarget::applyRightHandSide(std::int32_t rowPosition, double value) {
    RowRecord& row = store_.row(rowPosition);
    const MpsRowType type = typeOf(row);
    if (type == MpsRowType::Free) return;
    const double side = store_.clampToInfinity(value);
    row.lowerBound = type == MpsRowType::AtMost ? -store_.infinity() : side;
    row.upperBound = type == MpsRowType::AtLeast ? store_.infinity() : side;
}

void MpsTarget::applyRange(std::int32_t rowPosition, double value) {
    RowRecord& row = store_.row(rowPosition);
    const MpsRowType type = typeOf(row);
    if (type == MpsRowType::Free) return;
    const double width = std::abs(value);
    if (type == MpsRowType::AtMost || (type == MpsRowType::Equal && value < 0.0)) {
        row.lowerBound = store_.clampToInfinity(row.upperBound - width);
    } else {
        row.upperBound = store_.clampToInfinity(row.lowerBound + width);
    }
}

void MpsTarget::applyBound(std::int32_t columnPosition, const MpsBoundType& type, double value) {
    ColumnRecord& column = store_.column(columnPosition);
    const bool wasEmpty = isEmptyInterval(column);
    setSide(column.lowerBound, type.lower, value, -store_.infinity());
    setSide(column.upperBound, type.upper, value, store_.infinity());
    if (type.change == Change::ToBinary) column.type = TARQColType::Binary;
    const bool toInteger = type.change == Change::AnyToInteger ||
                           (type.change == Change::BinaryToInteger && column.type == TARQColType::Binary);
    if (toInteger && value != type.plainValue) column.type = TARQColType::Integer;
    emptyIntervals_ += (isEmptyInterval(column) ? 1 : 0) - (wasEmpty ? 1 : 0);
    if (type.upper == Side::Keep) return;
    markUpperBound(columnPosition,
                   type.lower == Side::Infinite && type.upper == Side::Zero ? UpperBound::OfMi : UpperBound::Told);
}

void MpsTarget::markUpperBound(std::int32_t columnPosition, UpperBound origin) {
    const auto position = static_cast<std::size_t>(columnPosition);
    if (position >= upperBounds_.size()) {
        if (origin == UpperBound::Told) return;
        upperBounds_.resize(position + 1, UpperBound::Told);
    }
    upperBounds_[position] = origin;
}

ReadingNotes MpsTarget::readingNotes() const {
    const auto count = [&](UpperBound origin) {
        return static_cast<std::int32_t>(std::count(upperBounds_.begin(), upperBounds_.end(), origin));
    };
    return {.upperBoundsSetByMi = count(UpperBound::OfMi),
            .lowerBoundsAboveUpper = emptyIntervals_,
            .integersUpToOne = count(UpperBound::OfIntegerBlock)};
}

void MpsTarget::setSide(double& bound, MpsSide side, double value, double infinite) const {
    switch (side) {
        case Side::Keep:
            return;
        case Side::Infinite:
            bound = infinite;
            return;
        case Side::Zero:
            bound = 0.0;
            return;
        case Side::One:
            bound = 1.0;
            return;
        case Side::Value:
            bound = store_.clampToInfinity(value);
            return;
        case Side::TruncatedValue:
            bound = std::trunc(value);
            return;
    }
}

}  // namespace tarq
