#include "model/nonzeroloader.h"

#include <algorithm>
#include <utility>

#include "platform/largepages.h"

namespace tarq {

void NonzeroLoader::addChunk() {
    const std::size_t length =
        chunks_.empty() ? firstChunkLength : std::min(4 * chunks_.back().length, largestChunkLength);
    chunks_.push_back({std::make_unique_for_overwrite<Triple[]>(length), length});
    preferLargePages(chunks_.back().triples.get(), length * sizeof(Triple));
    usedInLast_ = 0;
    lengthOfLast_ = length;
}

void NonzeroLoader::growRows(std::size_t rowCount) { rowCounts_.resize(rowCount); }

void NonzeroLoader::dropBeyond(std::int32_t columnCount, std::int32_t rowCount) {
    if (largestColumn_ <= columnCount && std::cmp_less_equal(rowCounts_.size(), rowCount)) return;
    NonzeroLoader kept;
    forEach([&](const Triple& triple) {
        if (triple.columnNumber > columnCount || triple.rowNumber > rowCount) return;
        kept.append(triple.columnNumber, triple.rowNumber, triple.value);
    });
    *this = std::move(kept);
}

}  // namespace tarq
