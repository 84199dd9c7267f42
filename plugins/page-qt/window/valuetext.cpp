#include "valuetext.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>
#include <system_error>

#include "tarq/frame/wholenumber.h"

namespace tarq::page {
namespace {

std::optional<double> numberIn(std::string_view text) {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    double number = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number)) return std::nullopt;
    return number;
}

bool hasOptions(const Item& item) {
    return item.kind == TARQPageRadioGroup || item.kind == TARQPageCheckBox || item.kind == TARQPageComboBox;
}

}  // namespace

bool isSameValue(const Item& item, const std::string& one, const std::string& other) {
    if (one == other) return true;
    if (item.type == TARQPageText) return false;
    const auto number = numberIn(one);
    return number && number == numberIn(other);
}

std::string limitsText(const Item& item) {
    if (hasOptions(item)) return {};
    if (item.type == TARQPageText) {
        return item.maximumLength > 0 ? "up to " + std::to_string(item.maximumLength) + " characters" : std::string();
    }
    if (item.minimum.empty()) return item.maximum.empty() ? std::string() : "at most " + item.maximum;
    return item.maximum.empty() ? "at least " + item.minimum : item.minimum + " to " + item.maximum;
}

std::string shownValue(const Item& item, const std::string& value) {
    const auto option = hasOptions(item) ? std::ranges::find(item.options, value, &Option::value) : item.options.end();
    if (option == item.options.end()) return value.empty() ? "empty" : value;
    if (item.kind == TARQPageCheckBox) return option == item.options.begin() ? "ticked" : "not ticked";
    return option->text;
}

std::string doubtAbout(const Item& item, const std::string& value) {
    if (hasOptions(item) || item.type == TARQPageText) return {};
    const auto number = numberIn(value);
    if (!number) return "This is not a number.";
    if (item.type == TARQPageInteger && !isWholeNumber(value)) return "This takes a whole number in digits alone.";
    const auto minimum = numberIn(item.minimum);
    const auto maximum = numberIn(item.maximum);
    if ((minimum && *number < *minimum) || (maximum && *number > *maximum)) {
        return "Outside its limits, " + limitsText(item) + '.';
    }
    return {};
}

}  // namespace tarq::page
