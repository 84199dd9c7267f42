#include "parametervalues.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace tarq::engine {

namespace {

struct KnownNumber {
    std::string_view name;
    double value;
};

// The defaults are those of the component's parameter table.
constexpr std::array knownNumbers{
    KnownNumber{"xabgap", 0.0},   KnownNumber{"xcbnnd", 0.0},       KnownNumber{"xdjscl", 1.0},
    KnownNumber{"xdropm", 1e-7},  KnownNumber{"xfrinv", 100.0},     KnownNumber{"xglgap", 1e-4},
    KnownNumber{"xheutp", 6.0},   KnownNumber{"xipbnd", 1e20},      KnownNumber{"xipxov", 2.0},
    KnownNumber{"xlptyp", 2.0},   KnownNumber{"xmiter", 2e7},       KnownNumber{"xmxint", 32767.0},
    KnownNumber{"xmxmin", 120.0}, KnownNumber{"xmxnod", 9999999.0}, KnownNumber{"xmxtlp", 1e20},
    KnownNumber{"xnopre", 1.0},   KnownNumber{"xnproc", 1.0},       KnownNumber{"xoutlv", 1.0},
    KnownNumber{"xoutsl", 2.0},   KnownNumber{"xrduce", 2.0},       KnownNumber{"xscale", 2.0},
    KnownNumber{"xtold2", 1e-7},  KnownNumber{"xtolin", 1e-5},      KnownNumber{"xtolx", 1e-4},
};

struct KnownText {
    std::string_view name;
    std::string_view value;
};

constexpr std::array knownTexts{
    KnownText{"xfnips", ""}, KnownText{"xfnlog", ""},    KnownText{"xfnlps", ""},
    KnownText{"xfnsta", ""}, KnownText{"xminmx", "min"},
};

template <typename Table>
auto find(const Table& table, std::string_view name) {
    return std::find_if(table.begin(), table.end(), [&](const auto& row) { return row.name == name; });
}

}  // namespace

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    for (char& character : lower) {
        if (character >= 'A' && character <= 'Z') character = static_cast<char>(character - 'A' + 'a');
    }
    return lower;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
    return text;
}

std::optional<double> parseNumber(std::string_view text) {
    if (text.starts_with('+') && text.substr(1).find_first_of("+-") != 0) text.remove_prefix(1);
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(value)) return std::nullopt;
    return value;
}

std::string ParameterValues::assign(std::string_view assignment) {
    const auto equals = assignment.find('=');
    if (equals == std::string_view::npos) return fmt::format("'{}' is not an assignment name=value.", assignment);
    std::string name = lowerCase(trimmed(assignment.substr(0, equals)));
    if (name.empty()) return fmt::format("'{}' names no parameter.", assignment);

    std::string_view text = trimmed(assignment.substr(equals + 1));
    if (text.starts_with('\'')) {
        if (text.size() < 2 || !text.ends_with('\'')) return fmt::format("The value of {} has no closing quote.", name);
        text = text.substr(1, text.size() - 2);
    }
    Value value{std::string(text)};
    if (find(knownNumbers, name) != knownNumbers.end()) {
        const auto number = parseNumber(text);
        if (!number) return fmt::format("The value of {} is not a number: '{}'.", name, text);
        value.number = *number;
    }
    values_.insert_or_assign(std::move(name), std::move(value));
    return {};
}

double ParameterValues::number(std::string_view name) const {
    if (const auto given = values_.find(name); given != values_.end()) return given->second.number;
    const auto known = find(knownNumbers, name);
    return known == knownNumbers.end() ? 0.0 : known->value;
}

std::string ParameterValues::text(std::string_view name) const {
    if (const auto given = values_.find(name); given != values_.end()) return given->second.text;
    const auto known = find(knownTexts, name);
    return known == knownTexts.end() ? std::string() : std::string(known->value);
}

int ParameterValues::integer(std::string_view name) const {
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(number(name), lowest, highest));
}

std::optional<std::string> ParameterValues::shown(std::string_view name) const {
    if (const auto given = values_.find(name); given != values_.end()) return given->second.text;
    if (const auto known = find(knownNumbers, name); known != knownNumbers.end()) {
        return fmt::format("{:.16g}", known->value);
    }
    if (const auto known = find(knownTexts, name); known != knownTexts.end()) return std::string(known->value);
    return std::nullopt;
}

}  // namespace tarq::engine
