// Indexset: the element names of one dimension, and the walk over combinations of them.
//
// A full index name, by which a cell or a member of a family is known, is a prefix and for each dimension a point and
// the element's name: ".a.3". Every walk takes the last dimension fastest.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/nameindex.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Names in their order, found in constant time. Positions count from 0.
class Indexset {
public:
    static constexpr std::int32_t absent = NameIndex::absent;

    [[nodiscard]] std::size_t size() const noexcept { return names_.size(); }
    [[nodiscard]] bool empty() const noexcept { return names_.empty(); }
    [[nodiscard]] const std::string& operator[](std::size_t position) const noexcept { return names_[position]; }
    [[nodiscard]] const std::vector<std::string>& names() const noexcept { return names_; }
    /// Whether a name has a point inside, which is also what stands between the names of a cell.
    [[nodiscard]] bool hasPoint() const noexcept { return pointed_ > 0; }
    /// Whether several elements have the same name.
    [[nodiscard]] bool hasDuplicates() const noexcept { return duplicates_ > 0; }
    /// First position of a name, or `absent`.
    [[nodiscard]] std::int32_t find(std::string_view name) const;

    void reserve(std::size_t count);
    /// Appends a name, which may be there already.
    void append(std::string name);
    /// Gives an element another name, which other elements may have too. When memory runs out nothing has changed.
    void rename(std::size_t position, std::string name);

    /// The names "1" to "count".
    static Indexset numbered(std::int32_t count);

private:
    void index(std::size_t position);

    std::vector<std::string> names_;
    NameIndex index_;
    std::size_t pointed_ = 0;     ///< number of names with a point
    std::size_t duplicates_ = 0;  ///< number of elements behind the first one of their name
};

/// The dimensions of an array or family. They don't change while somebody else than their owner holds on to them, such
/// as a walk.
using Dimensions = std::shared_ptr<const std::vector<Indexset>>;

/// The text under which a value is an element: a text as it is, a number as it reads. Reals have to be whole and to fit
/// 32 bits ("Only whole numbers allowed as index value."); what has no text is refused ("Value cannot be converted to
/// valid index value."). Failures have the status invalidArgument.
Outcome indexElementName(const Variant& value, std::string& name);

/// Appends the element of a value. Fails as indexElementName, and with "Duplicate element 'x' in index."
Outcome addIndexElement(const Variant& value, Indexset& names);

/// Goes to the next combination of positions, of which dimension i has sizes[i]; false, with all positions 0 again,
/// behind the last one.
bool nextIndexCombination(std::span<const std::size_t> sizes, std::span<std::size_t> positions) noexcept;

/// Number of combinations; 0 without dimensions. SIZE_MAX where it is larger than that.
[[nodiscard]] std::size_t combinationCount(std::span<const std::size_t> sizes) noexcept;

}  // namespace tarq
