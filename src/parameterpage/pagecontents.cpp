#include "parameterpage/pagecontents.h"

#include <array>
#include <cstdint>
#include <optional>

#include "parameters/parameteraccess.h"
#include "tarq/frame/variant.h"

namespace tarq {
namespace {

/// What the direction can be; its row is a text and has no options.
constexpr std::array directions{TARQPageOption{"Minimize.", "min"}, TARQPageOption{"Maximize.", "max"}};

/// The kind of a row's item; nothing for a row without one.
std::optional<TARQPageItemKind> kindOf(const ParameterRow& row) {
    switch (row.control) {
        case ParameterControl::None:
            break;
        case ParameterControl::RadioGroup:
            return TARQPageRadioGroup;
        case ParameterControl::CheckBox:
            return TARQPageCheckBox;
        case ParameterControl::ComboBox:
            return TARQPageComboBox;
        case ParameterControl::EditField: {
            const bool isFile = row.type == ParameterType::String && row.section == ParameterSection::Files;
            return isFile ? TARQPageFileEdit : TARQPageEditField;
        }
    }
    return std::nullopt;
}

TARQPageValueType typeOf(const ParameterRow& row) {
    if (row.type == ParameterType::Long) return TARQPageInteger;
    return row.type == ParameterType::Double ? TARQPageReal : TARQPageText;
}

bool isShown(const ParameterRow& row, ParameterSection section) {
    return row.section == section && row.onPage && kindOf(row).has_value();
}

}  // namespace

PageContents::PageContents(const ParameterPage& page) {
    for (const ParameterSection section : sectionsInOrder) {
        const std::vector<TARQPageItem>& items = items_.emplace_back(itemsOf(page, section));
        sections_.push_back({keep(sectionTitle(section)), static_cast<std::int32_t>(items.size()), items.data()});
    }
}

std::vector<TARQPageItem> PageContents::itemsOf(const ParameterPage& page, ParameterSection section) {
    std::vector<TARQPageItem> items;
    for (std::size_t row = 0; row < page.rows().size(); ++row) {
        if (isShown(page.rows()[row], section)) items.push_back(itemOf(page.rows()[row], page.value(row)));
    }
    return items;
}

TARQPageItem PageContents::itemOf(const ParameterRow& row, const Variant& value) {
    const std::vector<TARQPageOption>& options = options_.emplace_back(optionsOf(row));
    return {.name = keep(row.name),
            .description = keep(row.description),
            .kind = *kindOf(row),
            .type = typeOf(row),
            .value = keep(pageText(value)),
            .defaultValue = keep(pageText(defaultOf(row))),
            .minimum = keep(pageText(minimumOf(row))),
            .maximum = keep(pageText(maximumOf(row))),
            .maximumLength = row.stringMaxLength,
            .optionCount = static_cast<std::int32_t>(options.size()),
            .options = options.data()};
}

std::vector<TARQPageOption> PageContents::optionsOf(const ParameterRow& row) {
    if (row.section == ParameterSection::Direction) return {directions.begin(), directions.end()};
    std::vector<TARQPageOption> options;
    for (const ParameterOption& option : row.options) {
        options.push_back({keep(option.text), keep(pageText(Variant(option.value)))});
    }
    return options;
}

}  // namespace tarq
