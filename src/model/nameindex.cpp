#include "model/nameindex.h"

namespace tarq {

void NameIndex::removePositions(std::int32_t first, std::int32_t end) {
    absl::erase_if(entries_, [first, end](const Entry& entry) {
        if (entry.position >= end)
            entry.position -= end - first;
        else if (entry.position >= first)
            return true;
        return false;
    });
}

void NameIndex::clear() noexcept { entries_ = {}; }

}  // namespace tarq
