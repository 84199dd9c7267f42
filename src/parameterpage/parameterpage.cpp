#include "parameterpage/parameterpage.h"

#include <fmt/format.h>

#include <algorithm>

#include "frame/numbertext.h"
#include "parameters/parameteraccess.h"
#include "tarq/frame/wholenumber.h"

namespace tarq {
namespace {

bool hasKnownType(const ParameterRow& row) {
    return row.type == ParameterType::Long || row.type == ParameterType::Double || row.type == ParameterType::String;
}

/// Makes a value one of the row's type; false when it can't be.
bool convertFor(const ParameterRow& row, Variant& value) {
    switch (row.type) {
        case ParameterType::Long:
            return value.toInteger();
        case ParameterType::Double:
            return value.toReal();
        case ParameterType::String:
            return value.toText();
    }
    return false;
}

/// The value of the row's type that a text tells; Empty when it tells none.
Variant valueOf(const ParameterRow& row, std::string_view text) {
    switch (row.type) {
        case ParameterType::Long: {
            // parseInteger won't do: to it a number beyond 32 bits is the greatest, which a row may well take.
            const auto number = wholeNumberIn(text);
            return number ? Variant(*number) : Variant();
        }
        case ParameterType::Double: {
            double number = 0.0;
            return parseReal(text, number) ? Variant(number) : Variant();
        }
        case ParameterType::String:
            return Variant(text);
    }
    return {};
}

}  // namespace

std::string pageText(const Variant& value) {
    switch (value.kind()) {
        case Kind::Long:
            return fmt::to_string(value.integer());
        case Kind::Double:
            return realText(value.real());
        case Kind::Text:
            return value.text();
        default:
            return {};
    }
}

ParameterPage::ParameterPage(ITARQModel& model, std::span<const ParameterRow> rows) : model_(&model), rows_(rows) {
    values_.reserve(rows_.size());
    for (const ParameterRow& row : rows_) {
        Variant value;
        const bool isRead = !model_->get_Parameter(std::string(row.name), &value).failed() && convertFor(row, value);
        values_.push_back(isRead ? std::move(value) : defaultOf(row));
    }
}

void ParameterPage::edit(std::string_view name, std::string_view text) {
    const auto row = std::ranges::find(rows_, name, &ParameterRow::name);
    if (row == rows_.end()) return;
    values_[static_cast<std::size_t>(row - rows_.begin())] = valueOf(*row, text);
    dirty_ = true;
}

std::vector<PageMessage> ParameterPage::writeRows() {
    std::vector<PageMessage> messages;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (!hasKnownType(rows_[row])) {
            PageMessage& message = messages.emplace_back();
            message.text = "Internal error in TARQ parameter mapping. Contact developper.";
            message.icon = TARQPageStop;
            continue;
        }
        const std::string name(rows_[row].name);
        if (values_[row].isEmpty() || model_->put_Parameter(name, values_[row]).failed()) {
            messages.push_back({fmt::format("Parameter {} could not be set.", name), TARQPageWarning});
        }
    }
    return messages;
}

std::vector<PageMessage> ParameterPage::apply() {
    std::vector<PageMessage> messages;
    if (dirty_) messages = writeRows();
    (void)model_->SetRequiresSaveProperties(1);
    dirty_ = false;
    return messages;
}

}  // namespace tarq
