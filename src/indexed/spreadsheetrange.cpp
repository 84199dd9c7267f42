#include "indexed/spreadsheetrange.h"

#include <array>
#include <string>

#include "frame/objecterror.h"
#include "indexed/objectvalues.h"

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

/// Asks for a property. The failure is the range's own; where it gives no reason the status is told.
Outcome ask(IDispatch& object, std::int32_t member, std::span<const Variant> arguments, Variant& result) {
    clearLastError();
    const Status status = object.Invoke(member, invoke::get, {.values = arguments, .names = {}}, &result, nullptr);
    if (!status.failed()) return {};
    return {status, ownDescription(status)};
}

Outcome askForObject(IDispatch& object, std::int32_t member, std::span<const Variant> arguments,
                     Ref<IDispatch>& result) {
    Variant answer;
    if (Outcome asked = ask(object, member, arguments, answer); !asked.isOk()) return asked;
    const Variant plain = answer.copyDereferenced();
    if (plain.isObject()) result = Ref<IUnknown>(plain.object()).query<IDispatch>();
    if (!result) return {status::wrongClass, std::string(status::meaning(status::wrongClass))};
    return {};
}

Outcome askForNumber(IDispatch& object, std::int32_t member, std::int32_t& number) {
    Variant answer;
    if (Outcome asked = ask(object, member, {}, answer); !asked.isOk()) return asked;
    if (!answer.toInteger()) return {status::argumentType, std::string(status::meaning(status::argumentType))};
    number = answer.integer();
    return {};
}

}  // namespace

SpreadsheetRange::SpreadsheetRange(IUnknown* object) {
    void* found = nullptr;
    if (object == nullptr || !object->QueryInterface(id, &found).isOk()) return;
    // The interface is one for late-bound calls only.
    range_ = Ref<IDispatch>::adopt(static_cast<IDispatch*>(found));
}

Outcome SpreadsheetRange::requireSingleArea() const {
    std::int32_t areas = 0;
    if (Outcome asked = countOf(rangemember::areas, areas); !asked.isOk()) return asked;
    if (areas >= 2) return {status::invalidArgument, "No multiple areas allowed"};
    return {};
}

Outcome SpreadsheetRange::rowCount(std::int32_t& count) const { return countOf(rangemember::rows, count); }
Outcome SpreadsheetRange::columnCount(std::int32_t& count) const { return countOf(rangemember::columns, count); }
Outcome SpreadsheetRange::firstRow(std::int32_t& number) const {
    return askForNumber(*range_, rangemember::row, number);
}
Outcome SpreadsheetRange::firstColumn(std::int32_t& number) const {
    return askForNumber(*range_, rangemember::column, number);
}

Outcome SpreadsheetRange::cell(std::int32_t row, std::int32_t column, Variant& value) const {
    const std::array arguments{Variant(row), Variant(column)};
    Ref<IDispatch> cell;
    if (Outcome asked = askForObject(*range_, rangemember::item, arguments, cell); !asked.isOk()) return asked;
    return ask(*cell, rangemember::value, {}, value);
}

Outcome SpreadsheetRange::countOf(std::int32_t member, std::int32_t& count) const {
    Ref<IDispatch> part;
    if (Outcome asked = askForObject(*range_, member, {}, part); !asked.isOk()) return asked;
    return askForNumber(*part, rangemember::count, count);
}

}  // namespace tarq
