// ValueList: the one-dimensional array of Variants in which variadic arguments arrive.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "tarq/frame/export.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Values from a lower to an upper bound, both inclusive; the lower bound is whatever the caller made it. Positions,
/// unlike bounds, count from 0. While a Walk lives the list is locked: it can't be changed and must not be moved from,
/// assigned or destroyed. Not safe for use by two threads at once.
class TARQ_API ValueList {
public:
    class Walk;

    ValueList() = default;
    explicit ValueList(std::vector<Variant> values, std::int32_t lowerBound = 0)
        : lowerBound_(lowerBound), values_(std::move(values)) {}
    /// A copy is not locked.
    ValueList(const ValueList& other) : lowerBound_(other.lowerBound_), values_(other.values_) {}
    ValueList(ValueList&& other) noexcept : lowerBound_(other.lowerBound_), values_(std::move(other.values_)) {}
    ValueList& operator=(ValueList other) noexcept {
        lowerBound_ = other.lowerBound_;
        values_ = std::move(other.values_);
        return *this;
    }
    ~ValueList() = default;

    /// Makes a list of Empty values; an upper bound one below the lower makes one without values. invalidArgument for
    /// an upper bound below that, outOfMemory; `list` is then unchanged.
    static Status create(std::int32_t lowerBound, std::int32_t upperBound, ValueList& list);

    [[nodiscard]] std::int32_t lowerBound() const noexcept { return lowerBound_; }
    [[nodiscard]] std::int64_t upperBound() const noexcept {
        return lowerBound_ + static_cast<std::int64_t>(values_.size()) - 1;
    }
    /// Upper bound minus lower bound plus 1.
    [[nodiscard]] std::size_t length() const noexcept { return values_.size(); }

    /// The value at an index from lowerBound to upperBound, else null.
    [[nodiscard]] const Variant* at(std::int64_t index) const noexcept;
    /// Stores a value at an index; indexOutOfRange, or wrongState while the list is locked.
    Status put(std::int64_t index, Variant value);
    /// Adds a value behind the last; wrongState while the list is locked.
    Status append(Variant value);

    /// Locks the list and walks it: `for (const Variant& value : list.walk())`.
    [[nodiscard]] Walk walk() const noexcept;

private:
    std::int32_t lowerBound_ = 0;
    mutable std::uint32_t lockCount_ = 0;
    std::vector<Variant> values_;
};

/// The values of a list from its lower to its upper bound; the list is locked while this lives.
class ValueList::Walk {
public:
    explicit Walk(const ValueList& list) noexcept : list_(list) { ++list_.lockCount_; }
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;
    ~Walk() { --list_.lockCount_; }

    [[nodiscard]] auto begin() const noexcept { return values().begin(); }
    [[nodiscard]] auto end() const noexcept { return values().end(); }
    [[nodiscard]] std::span<const Variant> values() const noexcept { return list_.values_; }

private:
    const ValueList& list_;
};

inline ValueList::Walk ValueList::walk() const noexcept { return Walk(*this); }

}  // namespace tarq
