#include "frame/nameindex.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "platform/entropy.h"

namespace tarq {
namespace {

// Fuller than the library's own choice: an entry is compared by its hash first, which makes long searches cheap.
constexpr float largestLoad = 0.8F;

}  // namespace

NameIndex::NameIndex() : secret_(entropyWord()), multiplier_(entropyWord() | 1U) { entries_.max_load_factor(largestLoad); }

// Multiply and fold, eight bytes at a time.
std::uint32_t NameIndex::hashOf(std::string_view name) const {
    std::uint64_t hash = secret_ ^ name.size();
    while (!name.empty()) {
        std::uint64_t word = 0;
        const std::size_t length = std::min(name.size(), sizeof(word));
        std::memcpy(&word, name.data(), length);
        name.remove_prefix(length);
        hash = (hash ^ word) * multiplier_;
        hash ^= hash >> 32U;
    }
    hash *= multiplier_;
    return static_cast<std::uint32_t>(hash >> 32U);
}

void NameIndex::removePositions(std::int32_t first, std::int32_t end) {
    // An erased entry draws others into its place, also from the far end of the table, so nothing is renumbered before
    // the last one is gone.
    for (auto entry = entries_.begin(); entry != entries_.end();) {
        const bool erased = entry->position >= first && entry->position < end;
        entry = erased ? entries_.erase(entry) : std::next(entry);
    }
    for (const Entry& entry : entries_) {
        if (entry.position >= end) entry.position -= end - first;
    }
}

void NameIndex::clear() noexcept {
    entries_ = Entries();
    entries_.max_load_factor(largestLoad);
}

}  // namespace tarq
