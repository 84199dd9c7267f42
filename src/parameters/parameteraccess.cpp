#include "parameters/parameteraccess.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

#include "frame/localnumbers.h"
#include "frame/text.h"
#include "platform/userlocale.h"

namespace tarq {
namespace {

/// A client's name in lower case, without an allocation. Empty, which no parameter is called, for a name too long.
class LowerName {
public:
    explicit LowerName(std::string_view name) {
        if (name.size() > characters_.size()) return;
        size_ = name.copy(characters_.data(), characters_.size());
        for (char& character : characters_) character = lowerCased(character);
    }

    [[nodiscard]] std::string_view view() const { return {characters_.data(), size_}; }

private:
    std::array<char, maximumParameterNameLength> characters_{};
    std::size_t size_ = 0;
};

const ParameterRow& rowAt(int row) { return parameterRows()[static_cast<std::size_t>(row)]; }

Outcome unknownName() { return {status::unknownParameter, "Parameter name does not exist."}; }

Outcome wrongType() { return {status::wrongKind, "Variant argument is of wrong type."}; }

Variant rowValue(const ParameterTable& table, int row) {
    switch (rowAt(row).type) {
        case ParameterType::Long:
            return Variant(table.longValue(row));
        case ParameterType::Double:
            return Variant(table.doubleValue(row));
        case ParameterType::String:
            return Variant(table.stringValue(row));
    }
    return {};
}

/// Reads a number by the English conventions: these are the marks that a default NumberMarks has, as readLocalReal
/// takes a comma for a group mark wherever the point is the decimal mark.
bool readEnglishReal(const std::string& text, double& value) { return readLocalReal(text, NumberMarks{}, value); }

/// Text goes by the English conventions alone, so not through toReal and toInteger, which ask the user's locale too.
Outcome storeLong(ParameterTable& table, int row, Variant value) {
    if (value.isText()) {
        double real = 0.0;
        std::int32_t number = 0;
        if (!readEnglishReal(value.text(), real) || !roundToInteger(real, number)) return wrongType();
        return table.setLong(row, number);
    }
    if (!value.toInteger()) return wrongType();
    return table.setLong(row, value.integer());
}

Outcome storeDouble(ParameterTable& table, int row, Variant value) {
    if (value.isText()) {
        double number = 0.0;
        if (!readEnglishReal(value.text(), number)) return wrongType();
        return table.setDouble(row, number);
    }
    if (!value.toReal()) return wrongType();
    return table.setDouble(row, value.real());
}

Outcome storeString(ParameterTable& table, int row, Variant value) {
    if (!value.toText()) return wrongType();
    return table.setString(row, value.text());
}

/// Stores the direction. An incumbent bound at the model's infinity would shut out every solution of the new
/// direction, so it moves to the other end; a value beyond the bound's own limits is left to them.
Outcome storeDirection(ParameterTable& table, int row, Variant value, double infinity) {
    if (!value.toText()) return wrongType();
    std::string direction = value.takeText();
    std::ranges::transform(direction, direction.begin(), lowerCased);
    Outcome stored = table.setString(row, direction);
    if (!stored.isOk()) return stored;

    const int bound = parameterIndex("xipbnd");
    if (std::fabs(table.doubleValue(bound)) >= infinity) {
        static_cast<void>(table.setDouble(bound, direction == "min" ? infinity : -infinity));
    }
    return stored;
}

bool isParameterId(std::int32_t parameterId) { return parameterId >= 1 && parameterId <= parameterCount; }

}  // namespace

Outcome readParameter(const ParameterTable& table, std::string_view name, Variant& value) {
    const LowerName lowerName(name);
    if (const int slot = resultIndex(lowerName.view()); slot >= 0) {
        const bool isLong = resultSlots()[static_cast<std::size_t>(slot)].type == ParameterType::Long;
        value = isLong ? Variant(table.resultLong(slot)) : Variant(table.resultDouble(slot));
        return {};
    }
    const int row = parameterIndex(lowerName.view());
    if (row < 0) return unknownName();
    value = rowValue(table, row);
    return {};
}

Outcome writeParameter(ParameterTable& table, std::string_view name, const Variant& value, double infinity) {
    const LowerName lowerName(name);
    const int row = parameterIndex(lowerName.view());
    if (row < 0) return unknownName();
    Variant plainValue = value.copyDereferenced();
    if (plainValue.isByReference()) plainValue = plainValue.copyDereferenced();  // a reference to a reference
    if (plainValue.isObject() && !plainValue.takeDefaultValue()) return wrongType();
    if (lowerName.view() == "xminmx") return storeDirection(table, row, std::move(plainValue), infinity);
    switch (rowAt(row).type) {
        case ParameterType::Long:
            return storeLong(table, row, std::move(plainValue));
        case ParameterType::Double:
            return storeDouble(table, row, std::move(plainValue));
        case ParameterType::String:
            return storeString(table, row, std::move(plainValue));
    }
    return wrongType();
}

Outcome parameterInfo(const ParameterTable& table, std::int32_t parameterId, ParameterInfo& info) {
    if (!isParameterId(parameterId)) return {status::invalidArgument, "Bad parameter ID."};
    const int row = parameterId - 1;
    const ParameterRow& about = rowAt(row);

    ParameterInfo told;
    told.type = about.type;
    told.name = about.name;
    told.value = rowValue(table, row);
    told.stringLength = about.stringMaxLength;
    told.description = about.description;
    told.section = about.section;
    told.control = about.control;
    switch (about.type) {
        case ParameterType::Long:
            told.minimum = Variant(about.longMinimum);
            told.maximum = Variant(about.longMaximum);
            told.defaultValue = Variant(about.longDefault);
            told.optionCount = static_cast<std::int32_t>(about.options.size());
            break;
        case ParameterType::Double:
            told.minimum = Variant(about.doubleMinimum);
            told.maximum = Variant(about.doubleMaximum);
            told.defaultValue = Variant(about.doubleDefault);
            told.optionCount = 0;
            break;
        case ParameterType::String:
            told.defaultValue = Variant(about.stringDefault);
            break;
    }
    info = std::move(told);
    return {};
}

Outcome parameterOption(std::int32_t parameterId, std::int32_t optionId, ParameterOption& option) {
    if (!isParameterId(parameterId)) return {status::invalidArgument, "Bad parameter ID."};
    const std::span<const ParameterOption> options = rowAt(parameterId - 1).options;
    if (optionId < 1 || static_cast<std::size_t>(optionId) > options.size()) {
        return {status::invalidArgument, "Bad option ID."};
    }
    option = options[static_cast<std::size_t>(optionId) - 1];
    return {};
}

}  // namespace tarq
