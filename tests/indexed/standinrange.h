// A program's own object in the place of a spreadsheet's range.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "indexed/values/spreadsheetrange.h"
#include "tarq/frame/dispatch.h"

namespace tarq {

/// A rectangle of cells at a place of the sheet; one part of it, such as its rows or a cell, is again such an object.
class StandInRange final : public IDispatch {
public:
    struct Sheet {
        std::vector<std::vector<Variant>> cells;
        std::int32_t areas = 1;
        std::int32_t firstRow = 1;
        std::int32_t firstColumn = 1;
        std::function<Status()> beforeValue{};  ///< what the program does before it hands out a cell
    };

    static Ref<IUnknown> create(Sheet sheet) {
        return Ref<IUnknown>(new StandInRange(std::make_shared<Sheet>(std::move(sheet)), 0, 0));
    }

    Status QueryInterface(const Guid& interfaceId, void** out) override {
        const bool known =
            interfaceId == IUnknown::id || interfaceId == IDispatch::id || interfaceId == SpreadsheetRange::id;
        *out = known ? static_cast<IDispatch*>(this) : nullptr;
        if (known) AddRef();
        return known ? status::ok : status::wrongClass;
    }
    std::uint32_t AddRef() override { return ++count_; }
    std::uint32_t Release() override {
        const std::uint32_t left = --count_;
        if (left == 0) std::unique_ptr<StandInRange>(this).reset();
        return left;
    }
    const InterfaceTable* GetMemberTable() override { return nullptr; }
    Status GetIDsOfNames(std::span<const std::string_view> /*names*/, std::int32_t* /*ids*/) override {
        return status::unknownName;
    }
    Status Invoke(std::int32_t member, std::uint16_t kinds, const InvokeArguments& arguments, Variant* result,
                  std::uint32_t* /*argument*/) override {
        if ((kinds & invoke::get) == 0) return status::unknownMember;
        const auto rows = static_cast<std::int32_t>(sheet_->cells.size());
        const auto columns = static_cast<std::int32_t>(sheet_->cells.empty() ? 0 : sheet_->cells[0].size());
        switch (member) {
            case 0x238:
                return part(sheet_->areas, result);
            case 0x102:
                return part(rows, result);
            case 0xF1:
                return part(columns, result);
            case 0x76:
                *result = Variant(counted_);
                return status::ok;
            case 0x101:
                *result = Variant(sheet_->firstRow);
                return status::ok;
            case 0xF0:
                *result = Variant(sheet_->firstColumn);
                return status::ok;
            case 0xAA:
                *result = Variant(Ref<IUnknown>(
                    new StandInRange(sheet_, arguments.values[0].integer(), arguments.values[1].integer())));
                return status::ok;
            case 6:
                return value(*result);
            default:
                return status::unknownMember;
        }
    }

    virtual ~StandInRange() = default;

private:
    StandInRange(std::shared_ptr<Sheet> sheet, std::int32_t row, std::int32_t column)
        : sheet_(std::move(sheet)), row_(row), column_(column) {}

    Status part(std::int32_t counted, Variant* result) {
        const Ref<StandInRange> made(new StandInRange(sheet_, 0, 0));
        made->counted_ = counted;
        *result = Variant(Ref<IUnknown>(made.get()));
        return status::ok;
    }
    Status value(Variant& result) {
        if (sheet_->beforeValue) {
            if (const Status done = sheet_->beforeValue(); !done.isOk()) return done;
        }
        result = sheet_->cells[static_cast<std::size_t>(row_) - 1][static_cast<std::size_t>(column_) - 1];
        return status::ok;
    }

    std::shared_ptr<Sheet> sheet_;
    std::int32_t row_;
    std::int32_t column_;
    std::int32_t counted_ = 0;
    std::uint32_t count_ = 0;
};

}  // namespace tarq
