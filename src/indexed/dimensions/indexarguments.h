// What callers give as indices: the dimensions of a new array or family, and selections from those that are there.
//
// Failures are worded here and have the status invalidArgument.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/result.h"
#include "indexed/dimensions/indexset.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// The optional index arguments of a member, in their order.
inline constexpr std::size_t indexArgumentCount = 5;
using IndexArguments = std::array<const Variant*, indexArgumentCount>;
/// Whether an index argument is omitted, which a client may also do by reference to a missing value.
[[nodiscard]] inline bool isMissingIndex(const Variant& argument) noexcept {
    const Variant* const referenced = argument.referenced<Variant>();
    return (referenced != nullptr ? *referenced : argument).isMissing();
}

/// Appends one dimension for each entry: a number n is the names "1" to "n", an array by reference or an object gives
/// its values as names. What stands before an entry that fails stays in `indexsets`.
Outcome readIndexsetList(const ValueList& list, std::vector<Indexset>& indexsets);

/// Elements of one dimension in the order in which they were selected.
class SelectedDimension {
public:
    /// All of a dimension of `size` elements.
    explicit SelectedDimension(std::size_t size) : size_(size), isWhole_(true) {}
    explicit SelectedDimension(std::vector<std::int32_t> positions)
        : size_(positions.size()), isWhole_(false), positions_(std::move(positions)) {}

    [[nodiscard]] std::size_t size() const noexcept { return size_; }
    [[nodiscard]] bool isWhole() const noexcept { return isWhole_; }
    /// Position in the dimension of the i-th selected element.
    [[nodiscard]] std::size_t operator[](std::size_t i) const noexcept {
        return isWhole_ ? i : static_cast<std::size_t>(positions_[i]);
    }

private:
    std::size_t size_;
    bool isWhole_;
    std::vector<std::int32_t> positions_;
};

/// A block of selected elements, one dimension each of what it was selected from.
class Selection {
public:
    void append(SelectedDimension dimension);
    [[nodiscard]] std::span<const SelectedDimension> dimensions() const noexcept { return dimensions_; }
    [[nodiscard]] std::span<const std::size_t> sizes() const noexcept { return sizes_; }
    /// Number of selected combinations.
    [[nodiscard]] std::size_t count() const noexcept { return combinationCount(sizes_); }

    /// Hands the positions of each combination, the last dimension fastest, to `take`, which returns an Outcome, until
    /// that fails.
    template <class Take>
    Outcome walk(const Take& take) const;

private:
    std::vector<SelectedDimension> dimensions_;
    std::vector<std::size_t> sizes_;
};

/// Selects from `base` by names. A missing argument is the whole dimension; so are those behind the fifth.
Outcome selectIndexsets(const IndexArguments& arguments, std::span<const Indexset> base, Selection& selection);

/// prefix, and for each dimension a point and the name at the position.
[[nodiscard]] std::string fullIndexName(std::string_view prefix, std::span<const Indexset> indexsets,
                                        std::span<const std::size_t> positions);

template <class Take>
Outcome Selection::walk(const Take& take) const {
    if (count() == 0) return {};
    std::vector<std::size_t> turn(sizes_.size(), 0);
    std::vector<std::size_t> positions(sizes_.size());
    do {
        for (std::size_t i = 0; i < turn.size(); ++i) positions[i] = dimensions_[i][turn[i]];
        TARQ_TRY(take(std::span<const std::size_t>(positions)));
    } while (nextIndexCombination(sizes_, turn));
    return {};
}

}  // namespace tarq
