// NameIndex: finds the position of a name without keeping the name.
//
// An entry is a hash and a position, 8 bytes; the names stay in the records of the owner, which hands in `nameOf`, a
// function from a position to the name that stands there. Names are compared byte by byte. The hash depends on a secret
// drawn once in each process, so that no model can be made whose names all fall on one place. When memory runs out an
// operation throws std::bad_alloc and leaves the index as it was.
//
// A table of our own: with a million names each search waits for memory, and only one that tells the place of a name
// beforehand lets a reader fetch the places of the next names while it works on the present one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/largepages.h"

namespace tarq {

class NameIndex {
public:
    static constexpr std::int32_t absent = -1;

    NameIndex();
    NameIndex(const NameIndex&) = default;
    NameIndex(NameIndex&& other) noexcept;
    NameIndex& operator=(NameIndex other) noexcept;
    ~NameIndex() = default;

    /// Position of a name, or `absent`.
    template <class NameOf>
    [[nodiscard]] std::int32_t find(std::string_view name, const NameOf& nameOf) const {
        return slots_.empty() ? absent : slots_[slotOf(hashOf(name), name, nameOf)].position;
    }

    /// Fetches what `find` and `insert` will look at, for callers that have other work to do before they ask.
    void prefetch([[maybe_unused]] std::string_view name) const {
#if defined(__GNUC__)
        if (!slots_.empty()) __builtin_prefetch(&slots_[placeOf(hashOf(name))]);
#endif
    }

    /// True when the name was free and is now at `position`.
    template <class NameOf>
    bool insert(std::string_view name, std::int32_t position, const NameOf& nameOf) {
        if (count_ == countLimit_) grow();
        const std::uint32_t hash = hashOf(name);
        Slot& slot = slots_[slotOf(hash, name, nameOf)];
        if (slot.position != absent) return false;
        slot = {hash, position};
        ++count_;
        return true;
    }

    /// Enters a name that isn't there, for which room was reserved; so it can't fail.
    void insertNew(std::string_view name, std::int32_t position) noexcept {
        putDown({hashOf(name), position});
        ++count_;
    }

    /// Takes out the name that stands at `position`, if it is there.
    void erase(std::string_view name, std::int32_t position) noexcept;

    /// Gives each name the position that `renumbered` makes of its present one, or takes it out where that is `absent`.
    /// One pass over the index, which gives memory back where few names are left.
    template <class Renumbered>
    void renumber(const Renumbered& renumbered);

    /// Makes room for so many names in all.
    void reserve(std::size_t count);
    /// Empties the index and gives its memory back.
    void clear() noexcept;

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::int32_t position = absent;
    };
    using Slots = std::vector<Slot, LargePageAllocator<Slot>>;

    /// Multiply and fold, eight bytes at a time.
    [[nodiscard]] std::uint32_t hashOf(std::string_view name) const {
        std::uint64_t hash = secret_ ^ name.size();
        std::uint64_t word = 0;
        for (; name.size() >= sizeof(word); name.remove_prefix(sizeof(word))) {
            std::memcpy(&word, name.data(), sizeof(word));
            hash = mixed(hash ^ word);
        }
        if (!name.empty()) {
            word = 0;
            std::memcpy(&word, name.data(), name.size());
            hash = mixed(hash ^ word);
        }
        return static_cast<std::uint32_t>(hash * multiplier_ >> 32U);
    }
    [[nodiscard]] std::uint64_t mixed(std::uint64_t hash) const {
        hash *= multiplier_;
        return hash ^ hash >> 32U;
    }
    /// Where the search for a hash begins. The order of the places is that of the hashes, so that a larger table is
    /// filled from one end to the other.
    [[nodiscard]] std::size_t placeOf(std::uint32_t hash) const { return hash >> shift_; }
    [[nodiscard]] std::size_t nextPlace(std::size_t place) const { return (place + 1) & (slots_.size() - 1); }
    /// The slot that holds the name, else the free one where it belongs.
    template <class NameOf>
    [[nodiscard]] std::size_t slotOf(std::uint32_t hash, std::string_view name, const NameOf& nameOf) const {
        std::size_t place = placeOf(hash);
        for (; slots_[place].position != absent; place = nextPlace(place)) {
            if (slots_[place].hash == hash && nameOf(slots_[place].position) == name) break;
        }
        return place;
    }
    /// Puts an entry that isn't there into the first free slot of its own.
    void putDown(const Slot& entry) noexcept;
    void grow();
    void shrink() noexcept;
    void resize(unsigned slotBits);

    Slots slots_;  ///< none, or a power of two; always some of them free
    std::size_t count_ = 0;
    std::size_t countLimit_ = 0;
    unsigned shift_ = 0;
    std::uint64_t secret_;
    std::uint64_t multiplier_;  ///< odd
};

template <class Renumbered>
void NameIndex::renumber(const Renumbered& renumbered) {
    // Each entry is taken up and put down again, at its slot or before it. Beginning behind a free slot, no search
    // passes a slot that is yet to be taken up.
    std::size_t start = 0;
    while (start < slots_.size() && slots_[start].position != absent) ++start;
    for (std::size_t step = 1; step < slots_.size(); ++step) {
        Slot entry = std::exchange(slots_[(start + step) & (slots_.size() - 1)], {});
        if (entry.position == absent) continue;
        entry.position = renumbered(entry.position);
        if (entry.position == absent) {
            --count_;
        } else {
            putDown(entry);
        }
    }
    shrink();
}

}  // namespace tarq
