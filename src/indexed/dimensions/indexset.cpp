#include "indexed/dimensions/indexset.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>
#include "frame/result.h"

namespace tarq {
namespace {

std::string wholeText(std::int32_t value) {
    std::array<char, 16> text;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

bool isPointed(const std::string& name) { return name.find('.') != std::string::npos; }

/// Whether a real is a whole number of 32 bits.
bool isWhole(double real) {
    constexpr double least = std::numeric_limits<std::int32_t>::min();
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    return real >= least && real <= most && std::trunc(real) == real;
}

}  // namespace

std::int32_t Indexset::find(std::string_view name) const {
    return index_.find(name, [this](std::int32_t position) -> const std::string& {
        return names_[static_cast<std::size_t>(position)];
    });
}

void Indexset::reserve(std::size_t count) {
    names_.reserve(count);
    index_.reserve(count);
}

void Indexset::append(std::string name) {
    pointed_ += isPointed(name) ? 1U : 0U;
    names_.push_back(std::move(name));
    index(names_.size() - 1);
}

void Indexset::index(std::size_t position) {
    const auto nameOf = [this](std::int32_t other) -> const std::string& {
        return names_[static_cast<std::size_t>(other)];
    };
    duplicates_ += index_.insert(names_[position], static_cast<std::int32_t>(position), nameOf) ? 0U : 1U;
}

void Indexset::rename(std::size_t position, std::string name) {
    const bool isUnique = duplicates_ == 0 && find(name) == absent;
    const auto pointed = pointed_ - (isPointed(names_[position]) ? 1U : 0U) + (isPointed(name) ? 1U : 0U);
    if (isUnique) {
        index_.erase(names_[position], static_cast<std::int32_t>(position));
        index_.insertNew(name, static_cast<std::int32_t>(position));
    } else {
        // Another element of the old name, or one behind this of the new name, may now be the first of its name.
        const auto nameOf = [&](std::int32_t other) -> const std::string& {
            return static_cast<std::size_t>(other) == position ? name : names_[static_cast<std::size_t>(other)];
        };
        NameIndex index;
        index.reserve(names_.size());
        std::size_t duplicates = 0;
        for (std::int32_t i = 0; i < static_cast<std::int32_t>(names_.size()); ++i) {
            duplicates += index.insert(nameOf(i), i, nameOf) ? 0U : 1U;
        }
        index_ = std::move(index);
        duplicates_ = duplicates;
    }
    pointed_ = pointed;
    names_[position] = std::move(name);
}

Indexset Indexset::numbered(std::int32_t count) {
    Indexset names;
    names.reserve(static_cast<std::size_t>(count));
    for (std::int32_t number = 1; number <= count; ++number) names.append(wholeText(number));
    return names;
}

Outcome indexElementName(const Variant& value, std::string& name) {
    if (value.isText()) {
        name = value.text();
        return {};
    }
    if (value.is(Kind::Long)) {
        name = wholeText(value.integer());
        return {};
    }
    if (value.isRealKind()) {
        if (!isWhole(value.real())) return {status::invalidArgument, "Only whole numbers allowed as index value."};
        name = wholeText(static_cast<std::int32_t>(value.real()));
        return {};
    }
    Variant text = value;
    if (!text.toText()) return {status::invalidArgument, "Value cannot be converted to valid index value."};
    name = text.takeText();
    return {};
}

Outcome addIndexElement(const Variant& value, Indexset& names) {
    std::string name;
    TARQ_TRY(indexElementName(value, name));
    if (names.find(name) != Indexset::absent) {
        return {status::invalidArgument, std::string("Duplicate element '").append(name).append("' in index.")};
    }
    names.append(std::move(name));
    return {};
}

bool nextIndexCombination(std::span<const std::size_t> sizes, std::span<std::size_t> positions) noexcept {
    for (std::size_t dimension = sizes.size(); dimension-- > 0;) {
        if (positions[dimension] + 1 < sizes[dimension]) {
            ++positions[dimension];
            return true;
        }
        positions[dimension] = 0;
    }
    return false;
}

std::size_t combinationCount(std::span<const std::size_t> sizes) noexcept {
    if (sizes.empty()) return 0;
    std::size_t count = 1;
    bool overflow = false;
    for (const std::size_t size : sizes) {
        if (size == 0) return 0;
        overflow = overflow || count > std::numeric_limits<std::size_t>::max() / size;
        count *= size;
    }
    return overflow ? std::numeric_limits<std::size_t>::max() : count;
}

}  // namespace tarq
