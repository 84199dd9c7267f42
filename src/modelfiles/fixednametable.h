// FixedNameTable: finds the position of a FixedName; the inner loop of reading an MPS file.
//
// One probe into one array finds a name, where the store's own index looks at its slots and then at the record. Places
// depend on a secret drawn for each table, so that no file can be made whose names all fall on one place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "modelfiles/fixedname.h"

namespace tarq {

class FixedNameTable {
public:
    static constexpr std::int32_t absent = -1;

    FixedNameTable();

    /// The position of a name, or `absent`.
    [[nodiscard]] std::int32_t find(FixedName name) const { return slots_[slotOf(name)].position; }
    /// Fetches what `find` will look at, for callers that have other work to do before they ask.
    void prefetch([[maybe_unused]] FixedName name) const {
#if defined(__GNUC__)
        __builtin_prefetch(&slots_[placeOf(name)]);
#endif
    }
    /// Makes room for so many names in all.
    void reserve(std::size_t count);
    /// Adds a name that is not empty. The result is the position that the name has from now on: `position`, or an older
    /// one if the name was there before.
    std::int32_t insert(FixedName name, std::int32_t position);

private:
    struct Slot {
        FixedName name;
        std::int32_t position = absent;
    };

    /// The slot that holds the name, else the free one where it belongs.
    [[nodiscard]] std::size_t slotOf(FixedName name) const {
        std::size_t index = placeOf(name);
        while (slots_[index].position != absent && slots_[index].name != name)
            index = (index + 1) & (slots_.size() - 1);
        return index;
    }
    [[nodiscard]] std::size_t placeOf(FixedName name) const {
        std::uint64_t mixed = (name.word() ^ secret_) * 0x9E37'79B9'7F4A'7C15U;
        mixed = (mixed ^ (mixed >> 32U) ^ (secret_ << 7U)) * multiplier_;
        return static_cast<std::size_t>(mixed >> shift_);
    }
    void resize(unsigned slotBits);

    std::vector<Slot> slots_;  ///< a power of two, at most half of them taken
    std::size_t count_ = 0;
    unsigned shift_;
    std::uint64_t secret_;
    std::uint64_t multiplier_;  ///< odd
};

}  // namespace tarq
