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
Outcome SpreadsheetRange::firstRow(std::int32_t& number) const {
    TARQ_ASSIGN(number, range_.get<std::int32_t>(rangemember::row));
    return {};
}
Outcome SpreadsheetRange::firstColumn(std::int32_t& number) const {
    TARQ_ASSIGN(number, range_.get<std::int32_t>(rangemember::column));
    return {};
}

Outcome SpreadsheetRange::cell(std::int32_t row, std::int32_t column, Variant& value) const {
    const std::array arguments{Variant(row), Variant(column)};
    TARQ_ASSIGN(const LateBound cell, range_.get<LateBound>(rangemember::item, arguments));
    TARQ_ASSIGN(value, cell.get<Variant>(rangemember::value));
    return {};
}

Outcome SpreadsheetRange::countOf(std::int32_t member, std::int32_t& count) const {
    TARQ_ASSIGN(const LateBound part, range_.get<LateBound>(member));
    TARQ_ASSIGN(count, part.get<std::int32_t>(rangemember::count));
    return {};
}

}  // namespace tarq
