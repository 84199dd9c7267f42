#include "indexed/values/spreadsheetrange.h"

#include <array>
#include "frame/result.h"

namespace tarq {
namespace {

/// Numbers of the spreadsheet's published members.
namespace rangemember {
constexpr std::int32_t value = 6;
constexpr std::int32_t count = 0x76;
constexpr std::int32_t item = 0xAA;
constexpr std::int32_t column = 0xF0;
constexpr std::int32_t columns = 0xF1;
constexpr std::int32_t row = 0x101;
constexpr std::int32_t rows = 0x102;
constexpr std::int32_t areas = 0x238;
}  // namespace rangemember

}  // namespace

SpreadsheetRange::SpreadsheetRange(IUnknown* object) {
    void* found = nullptr;
    if (object == nullptr || !object->QueryInterface(id, &found).isOk()) return;
    // The interface is one for late-bound calls only.
    range_ = LateBound(Ref<IDispatch>::adopt(static_cast<IDispatch*>(found)));
}

Outcome SpreadsheetRange::requireSingleArea() const {
    std::int32_t areas = 0;
    TARQ_TRY(countOf(rangemember::areas, areas));
    if (areas >= 2) return {status::invalidArgument, "No multiple areas allowed"};
    return {};
}

Outcome SpreadsheetRange::rowCount(std::int32_t& count) const { return countOf(rangemember::rows, count); }
Outcome SpreadsheetRange::columnCount(std::int32_t& count) const { return countOf(rangemember::columns, count); }
Outcome SpreadsheetRange::firstRow(std::int32_t& number) const { return range_.get(rangemember::row, number); }
Outcome SpreadsheetRange::firstColumn(std::int32_t& number) const { return range_.get(rangemember::column, number); }

Outcome SpreadsheetRange::cell(std::int32_t row, std::int32_t column, Variant& value) const {
    const std::array arguments{Variant(row), Variant(column)};
    LateBound cell;
    TARQ_TRY(range_.get(rangemember::item, cell, arguments));
    return cell.get(rangemember::value, value);
}

Outcome SpreadsheetRange::countOf(std::int32_t member, std::int32_t& count) const {
    LateBound part;
    TARQ_TRY(range_.get(member, part));
    return part.get(rangemember::count, count);
}

}  // namespace tarq
