// Equality of set elements, and a table that finds values by it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "frame/nameindex.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Whether two values in the form of normalizeValue are the same element: same kind and same number or text. An integer
/// never equals a real, and not-a-number equals nothing. Two null values are equal.
[[nodiscard]] bool sameElement(const Variant& left, const Variant& right) noexcept;

/// A list of values in the form of normalizeValue that finds an equal one in constant time.
class ElementLookup {
public:
    static constexpr std::int32_t absent = NameIndex::absent;

    /// Throws std::bad_alloc for more values than a 32-bit position can tell.
    explicit ElementLookup(std::vector<Variant> values);

    [[nodiscard]] std::size_t size() const noexcept { return values_.size(); }
    /// Number of values of which none equals an earlier one.
    [[nodiscard]] std::size_t distinctCount() const noexcept { return distinctCount_; }
    /// Position of the first value that equals `element`, or `absent`.
    [[nodiscard]] std::int32_t find(const Variant& element) const;
    [[nodiscard]] bool contains(const Variant& element) const { return find(element) != absent; }

private:
    [[nodiscard]] bool isIndexed() const noexcept { return values_.size() > fewValues; }
    [[nodiscard]] std::int32_t search(const Variant& element) const noexcept;
    void buildIndex();
    void addToIndex(std::int32_t position);

    /// So few values are compared one after the other in less time than a hash takes.
    static constexpr std::size_t fewValues = 4;

    std::vector<Variant> values_;
    std::size_t distinctCount_ = 0;
    NameIndex texts_;
    NameIndex numbers_;  ///< by the bytes of the number, of which a real has more than an integer
};

}  // namespace tarq
