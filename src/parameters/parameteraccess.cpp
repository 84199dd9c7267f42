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
        if (!readEnglishReal(value.text(), real) || !roundToInteger(real, number)) return wrongKind();
        return table.setLong(row, number);
    }
    if (!value.toInteger()) return wrongKind();
    return table.setLong(row, value.integer());
}

Outcome storeDouble(ParameterTable& table, int row, Variant value) {
    if (value.isText()) {
        double number = 0.0;
        if (!readEnglishReal(value.text(), number)) return wrongKind();
        return table.setDouble(row, number);
    }
    if (!value.toReal()) return wrongKind();
    return table.setDouble(row, value.real());
}

Outcome storeString(ParameterTable& table, int row, Variant value) {
    if (!value.toText()) return wrongKind();
    return table.setString(row, value.text());
}

/// Stores the direction. An incumbent bound at the model's infinity would shut out every solution of the new
/// direction, so it moves to the other end; a value beyond the bound's own limits is left to them.
Outcome storeDirection(ParameterTable& table, int row, Variant value, double infinity) {
    if (!value.toText()) return wrongKind();
    std::string direction = value.takeText();
    std::ranges::transform(direction, direction.begin(), lowerCased);
    TARQ_TRY(table.setString(row, direction));
    const int bound = parameterIndex("xipbnd");
    if (std::fabs(table.doubleValue(bound)) >= infinity) {
        static_cast<void>(table.setDouble(bound, direction == "min" ? infinity : -infinity));
    }
    return {};
}

Outcome badParameterId() { return {status::invalidArgument, "Bad parameter ID."}; }

bool isParameterId(std::int32_t parameterId) { return parameterId >= 1 && parameterId <= parameterCount; }

}  // namespace

Variant defaultOf(const ParameterRow& row) {
    switch (row.type) {
        case ParameterType::Long:
            return Variant(row.longDefault);
        case ParameterType::Double:
            return Variant(row.doubleDefault);
        case ParameterType::String:
            return Variant(row.stringDefault);
    }
    return {};
}

Variant minimumOf(const ParameterRow& row) {
    if (row.type == ParameterType::Long) return Variant(row.longMinimum);
    return row.type == ParameterType::Double ? Variant(row.doubleMinimum) : Variant();
}

Variant maximumOf(const ParameterRow& row) {
    if (row.type == ParameterType::Long) return Variant(row.longMaximum);
    return row.type == ParameterType::Double ? Variant(row.doubleMaximum) : Variant();
}

Result<Variant> readParameter(const ParameterTable& table, std::string_view name) {
    const LowerName lowerName(name);
    if (const int slot = resultIndex(lowerName.view()); slot >= 0) {
        const bool isLong = resultSlots()[static_cast<std::size_t>(slot)].type == ParameterType::Long;
        return isLong ? Variant(table.resultLong(slot)) : Variant(table.resultDouble(slot));
    }
    const int row = parameterIndex(lowerName.view());
    if (row < 0) return unknownName();
    return rowValue(table, row);
}

Outcome writeParameter(ParameterTable& table, std::string_view name, const Variant& value, double infinity) {
    const LowerName lowerName(name);
    const int row = parameterIndex(lowerName.view());
    if (row < 0) return unknownName();
    Variant plainValue = value.copyDereferenced();
    if (plainValue.isByReference()) plainValue = plainValue.copyDereferenced();  // a reference to a reference
    if (plainValue.isObject() && !plainValue.takeDefaultValue()) return wrongKind();
    if (lowerName.view() == "xminmx") return storeDirection(table, row, std::move(plainValue), infinity);
    switch (rowAt(row).type) {
        case ParameterType::Long:
            return storeLong(table, row, std::move(plainValue));
        case ParameterType::Double:
            return storeDouble(table, row, std::move(plainValue));
        case ParameterType::String:
            return storeString(table, row, std::move(plainValue));
    }
    return wrongKind();
}

Result<ParameterInfo> parameterInfo(const ParameterTable& table, std::int32_t parameterId) {
    if (!isParameterId(parameterId)) return badParameterId();
    const int row = parameterId - 1;
    const ParameterRow& about = rowAt(row);
    ParameterInfo told;
    told.type = about.type;
    told.name = about.name;
    told.defaultValue = defaultOf(about);
    told.value = rowValue(table, row);
    told.stringLength = about.stringMaxLength;
    told.description = about.description;
    told.section = about.section;
    told.control = about.control;
    if (about.type != ParameterType::String) {
        told.minimum = minimumOf(about);
        told.maximum = maximumOf(about);
        told.optionCount = static_cast<std::int32_t>(about.options.size());
    }
    return told;
}

Result<ParameterOption> parameterOption(std::int32_t parameterId, std::int32_t optionId) {
    if (!isParameterId(parameterId)) return badParameterId();
    const std::span<const ParameterOption> options = rowAt(parameterId - 1).options;
    if (optionId < 1 || static_cast<std::size_t>(optionId) > options.size()) {
        return Outcome(status::invalidArgument, "Bad option ID.");
    }
    return options[static_cast<std::size_t>(optionId) - 1];
}

}  // namespace tarq
