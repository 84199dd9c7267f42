#include "model/nonzeroloader.h"

#include <utility>

namespace tarq {

void NonzeroLoader::addChunk() {
    chunks_.push_back(std::make_unique_for_overwrite<Chunk>());
    usedInLast_ = 0;
}

void NonzeroLoader::growRows(std::size_t rowCount) { rowCounts_.resize(rowCount); }

void NonzeroLoader::clear() noexcept { *this = NonzeroLoader(); }

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
