// ArrayStore: the cells of a table whose dimensions are indexed by names.
//
// What a client sees is a map from full index names (".a.3") to values. The cells lie in one block, the last dimension
// fastest, as long as the full names of all combinations of elements differ, so that a slice costs what a slice of
// numbers does. They can stop to differ: a renamed element may get the name of another one, and a name may have a point
// inside, by which the elements "a", "b.c" and "a.b", "c" meet in ".a.b.c". Only then the cells are kept by their
// names, and combinations of one name share one cell.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/nameindex.h"
#include "indexed/dimensions/indexset.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

class ArrayStore {
public:
    /// Of at least one dimension. Never null.
    [[nodiscard]] const Dimensions& dimensions() const noexcept { return dimensions_; }
    [[nodiscard]] bool isInitialized() const noexcept { return !dimensions_->empty(); }
    /// Number of cells.
    [[nodiscard]] std::int32_t count() const noexcept;
    [[nodiscard]] std::vector<std::size_t> sizes() const;

    void clear() noexcept;
    /// Takes dimensions, none of them empty, with an Empty cell for each combination; outOfMemory, and no dimensions,
    /// where there are more than 2147483647.
    Outcome initialize(std::vector<Indexset> indexsets);
    /// Takes dimensions without making cells.
    void initializeWithoutCells(std::vector<Indexset> indexsets);

    /// The cell of a combination of positions, one a dimension; null where it has none.
    [[nodiscard]] Variant* cell(std::span<const std::size_t> positions);
    /// The cell of the combination of that number, counted from 0 with the last dimension fastest.
    [[nodiscard]] Variant* cellOfCombination(std::size_t combination);
    /// The cell of a full index name; null where there is none.
    [[nodiscard]] Variant* cellNamed(std::string_view name);

    /// All cells in the order of the combinations; empty where they are kept by name.
    [[nodiscard]] std::span<Variant> block() noexcept { return cells_; }
    [[nodiscard]] std::span<const Variant> block() const noexcept { return cells_; }
    /// Replaces all cells of the block, which isn't empty, by the first of at least as many values.
    void replaceBlock(std::vector<Variant>& values);
    /// Hands every cell to `use`.
    template <class Use>
    void forEachCell(const Use& use);

    /// Gives an element another name. A cell whose new full name is another cell's is dropped. Costs what the cells of
    /// the element do, and a pass over all cells where names begin or end to tell two apart. When memory runs out no
    /// cell is lost and every name is as it was.
    void rename(std::size_t dimension, std::size_t element, std::string name);
    /// Exchanges the two dimensions. When memory runs out nothing has changed.
    void transpose();

private:
    using CellMap = std::map<std::string, Variant, std::less<>>;
    struct Renamed {
        std::size_t combination = 0;
        std::string before;
        std::string after;
    };

    [[nodiscard]] static Dimensions noDimensions();
    [[nodiscard]] std::vector<Indexset>& ownDimensions();
    [[nodiscard]] std::string nameOf(std::size_t combination) const;
    [[nodiscard]] std::vector<std::size_t> positionsOf(std::size_t combination) const;
    [[nodiscard]] bool needsIndex() const;
    [[nodiscard]] bool indexNames(bool withIndex);
    [[nodiscard]] bool findPositions(std::string_view name, std::size_t& combination) const;
    void keepByName();
    void takeNamed(CellMap&& named) noexcept;
    void keepInBlock() noexcept;
    [[nodiscard]] std::vector<Renamed> renamedBy(std::size_t dimension, std::size_t element,
                                                 const std::string& name) const;
    [[nodiscard]] bool renameInIndex(std::size_t dimension, std::size_t element, const std::string& name);
    void renameByName(std::size_t dimension, std::size_t element, std::string name);

    Dimensions dimensions_ = noDimensions();  ///< made as changeable ones, see ownDimensions
    std::vector<Variant> cells_;
    bool byName_ = false;
    CellMap named_;
    NameIndex names_;  ///< of combinations, where a name doesn't tell its parts, or did not; else empty
    bool isIndexed_ = false;
};

template <class Use>
void ArrayStore::forEachCell(const Use& use) {
    for (Variant& value : cells_) use(value);
    for (auto& entry : named_) use(entry.second);
}

}  // namespace tarq
