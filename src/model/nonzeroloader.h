// NonzeroLoader: collects nonzeros in any order for a table that takes them all at once.
//
// For readers of whole models: cheaper than setting each nonzero, and the table ends up without slack. 16 bytes a
// nonzero until the table has taken them, in chunks that are given back one by one while it does.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace tarq {

class NonzeroLoader {
public:
    struct Triple {
        std::int32_t columnNumber;
        std::int32_t rowNumber;
        double value;
    };

    /// Notes a nonzero; numbers from 1, others are passed over. A later one of the same place replaces an earlier one,
    /// and 0.0 erases it.
    void append(std::int32_t columnNumber, std::int32_t rowNumber, double value) {
        if (columnNumber < 1 || rowNumber < 1) return;
        if (usedInLast_ == lengthOfLast_) addChunk();
        if (static_cast<std::size_t>(rowNumber) > rowCounts_.size()) growRows(static_cast<std::size_t>(rowNumber));
        chunks_.back().triples[usedInLast_++] = {columnNumber, rowNumber, value};
        ++rowCounts_[static_cast<std::size_t>(rowNumber) - 1];
        largestColumn_ = std::max(largestColumn_, columnNumber);
    }
    [[nodiscard]] bool empty() const { return chunks_.empty(); }
    /// Forgets the nonzeros of columns and rows behind these. Costs a pass only when there are any.
    void dropBeyond(std::int32_t columnCount, std::int32_t rowCount);

private:
    friend class NonzeroTable;
    /// Small models stay small; large ones get chunks that large pages pay for.
    static constexpr std::size_t firstChunkLength = 4'096;
    static constexpr std::size_t largestChunkLength = 1'048'576;
    struct Chunk {
        std::unique_ptr<Triple[]> triples;
        std::size_t length = 0;
    };

    void addChunk();
    void growRows(std::size_t rowCount);
    /// Calls visit(triple) in the order of appending.
    template <class Visit>
    void forEach(Visit visit) const {
        for (const Chunk& chunk : chunks_) forEachInChunk(chunk, visit);
    }
    template <class Visit>
    void forEachInChunk(const Chunk& chunk, Visit visit) const {
        const std::size_t length = &chunk == &chunks_.back() ? usedInLast_ : chunk.length;
        for (std::size_t i = 0; i < length; ++i) visit(chunk.triples[i]);
    }

    std::vector<Chunk> chunks_;
    std::size_t usedInLast_ = 0;
    std::size_t lengthOfLast_ = 0;
    std::int32_t largestColumn_ = 0;
    std::vector<std::uint32_t> rowCounts_;  ///< appended so far, by the row's position
};

}  // namespace tarq
