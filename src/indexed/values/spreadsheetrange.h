// SpreadsheetRange: the cells of a spreadsheet's range, through late-bound calls of its published members.
//
// A range is any object that answers to the range interface of the spreadsheet; a program's own object can stand in.
// Rows and columns count from 1. A call that the range fails ends with its status and its description.
#pragma once

#include <cstdint>

#include "frame/latebound.h"
#include "tarq/frame/guid.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

class SpreadsheetRange {
public:
    /// The interface by which an object tells that it is a range.
    static constexpr Guid id{0x00020846, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

    /// Empty where the object is no range.
    explicit SpreadsheetRange(IUnknown* object);
    explicit operator bool() const { return static_cast<bool>(range_); }

    /// Fails with "No multiple areas allowed" unless the range is one rectangle.
    Outcome requireSingleArea() const;
    Outcome rowCount(std::int32_t& count) const;
    Outcome columnCount(std::int32_t& count) const;
    /// Sheet numbers of the first cell.
    Outcome firstRow(std::int32_t& number) const;
    Outcome firstColumn(std::int32_t& number) const;
    Outcome cell(std::int32_t row, std::int32_t column, Variant& value) const;

private:
    Outcome countOf(std::int32_t member, std::int32_t& count) const;

    LateBound range_;
};

}  // namespace tarq
