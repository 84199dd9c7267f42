#include "indexed/dimensions/selectionwalk.h"

#include <vector>

namespace tarq {

std::string SelectionWalk::name(std::size_t position) const {
    std::vector<std::size_t> positions(base_->size());
    for (std::size_t i = base_->size(); i-- > 0;) {
        const std::size_t size = selection_.sizes()[i];
        positions[i] = selection_.dimensions()[i][position % size];
        position /= size;
    }
    return fullIndexName(prefix_, *base_, positions);
}

bool SelectionWalk::skip(std::size_t items) noexcept {
    if (items >= count() - position_) return false;
    position_ += items;
    return true;
}

}  // namespace tarq
