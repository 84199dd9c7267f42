#include "parameters/parameterrows.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "parameters/parameterrowdata.h"

namespace tarq {
namespace {

using parameterdata::results;
using parameterdata::rows;

/// A name as one integer: six characters and the length. Equal keys are equal names, and no long name has a key.
constexpr std::uint64_t keyOf(std::string_view name) {
    std::uint64_t key = name.size();
    for (const char character : name) key = key << 8U | static_cast<unsigned char>(character);
    return key;
}

/// Finds positions by name with a binary search over sorted keys.
template <std::size_t Count>
struct SortedNames {
    std::array<std::uint64_t, Count> keys{};
    std::array<std::uint8_t, Count> positions{};

    [[nodiscard]] constexpr int find(std::string_view name) const {
        if (name.size() > maximumParameterNameLength) return -1;
        const std::uint64_t key = keyOf(name);
        const auto found = std::ranges::lower_bound(keys, key);
        if (found == keys.end() || *found != key) return -1;
        return positions[static_cast<std::size_t>(found - keys.begin())];
    }
};

template <class Named, std::size_t Count>
consteval SortedNames<Count> indexByName(const std::array<Named, Count>& named) {
    static_assert(Count <= std::numeric_limits<std::uint8_t>::max());
    SortedNames<Count> index;
    for (std::size_t position = 0; position < Count; ++position) index.keys[position] = keyOf(named[position].name);
    std::ranges::sort(index.keys);
    for (std::size_t position = 0; position < Count; ++position) {
        const auto found = std::ranges::lower_bound(index.keys, keyOf(named[position].name));
        index.positions[static_cast<std::size_t>(found - index.keys.begin())] = static_cast<std::uint8_t>(position);
    }
    return index;
}

constexpr SortedNames rowIndex = indexByName(rows);
constexpr SortedNames slotIndex = indexByName(results);

constexpr bool isWellNamed(std::string_view name) {
    return !name.empty() && name.size() <= maximumParameterNameLength &&
           std::ranges::all_of(name, [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); });
}

constexpr bool acceptsItsDefault(const ParameterRow& row) {
    return row.longMinimum <= row.longDefault && row.longDefault <= row.longMaximum &&
           row.doubleMinimum <= row.doubleDefault && row.doubleDefault <= row.doubleMaximum &&
           row.stringDefault.size() <= static_cast<std::size_t>(row.stringMaxLength);
}

constexpr bool acceptsItsOptions(const ParameterRow& row) {
    return std::ranges::all_of(row.options, [&row](const ParameterOption& option) {
        return row.longMinimum <= option.value && option.value <= row.longMaximum;
    });
}

static_assert(results.size() == resultCount);
static_assert(std::ranges::all_of(rows, isWellNamed, &ParameterRow::name));
static_assert(std::ranges::all_of(results, isWellNamed, &ResultSlot::name));
static_assert(std::ranges::adjacent_find(rowIndex.keys) == rowIndex.keys.end(), "parameter names are unique");
static_assert(std::ranges::adjacent_find(slotIndex.keys) == slotIndex.keys.end(), "result names are unique");
static_assert(std::ranges::none_of(results, [](const ResultSlot& slot) { return rowIndex.find(slot.name) >= 0; }));
static_assert(std::ranges::all_of(rows, acceptsItsDefault));
static_assert(std::ranges::all_of(rows, acceptsItsOptions));
static_assert(std::ranges::all_of(rows, [](const ParameterRow& row) {
    return row.options.empty() || row.type == ParameterType::Long;
}));

}  // namespace

std::span<const ParameterRow> parameterRows() { return rows; }

std::span<const ResultSlot> resultSlots() { return results; }

int parameterIndex(std::string_view name) { return rowIndex.find(name); }

int resultIndex(std::string_view name) { return slotIndex.find(name); }

std::string_view typeName(ParameterType type) {
    switch (type) {
        case ParameterType::Long:
            return "long";
        case ParameterType::Double:
            return "double";
        case ParameterType::String:
            return "string";
    }
    return "";
}

}  // namespace tarq
