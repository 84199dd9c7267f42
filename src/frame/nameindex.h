// NameIndex: finds the position of a name without keeping the name.
//
// An entry is a hash and a position, 8 bytes; the names stay in the records of the owner, which hands in `nameOf`, a
// function from a position to the name that stands there. Names are compared byte by byte. The hash depends on a secret
// drawn for each index, so that no model can be made whose names all fall on one place. When memory runs out an
// operation throws std::bad_alloc and leaves the index as it was.
#pragma once

#include <tsl/robin_set.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/largepages.h"

namespace tarq {

class NameIndex {
public:
    static constexpr std::int32_t absent = -1;

    NameIndex();

    /// Position of a name, or `absent`.
    template <class NameOf>
    [[nodiscard]] std::int32_t find(std::string_view name, const NameOf& nameOf) const {
        const auto found = entries_.find(Wanted<NameOf>{hashOf(name), name, nameOf});
        return found == entries_.end() ? absent : found->position;
    }

    /// True when the name was free and is now at `position`.
    template <class NameOf>
    bool insert(std::string_view name, std::int32_t position, const NameOf& nameOf) {
        const Wanted<NameOf> wanted{hashOf(name), name, nameOf};
        if (entries_.find(wanted) != entries_.end()) return false;
        entries_.insert(Entry{wanted.hash, position});
        return true;
    }

    /// Takes out the name that stands at `position`.
    void erase(std::string_view name, std::int32_t position) { entries_.erase(Entry{hashOf(name), position}); }

    /// Takes out the positions from `first` to before `end` and moves those behind them up. Linear, whatever the range.
    void removePositions(std::int32_t first, std::int32_t end);

    void reserve(std::size_t count) { entries_.reserve(count); }
    /// Empties the index and gives its memory back.
    void clear() noexcept;

private:
    struct Entry {
        std::uint32_t hash;
        mutable std::int32_t position;  ///< has no part in the hash
    };
    template <class NameOf>
    struct Wanted {
        std::uint32_t hash;
        std::string_view name;
        const NameOf& nameOf;
    };
    struct Hash {
        template <class Key>
        std::size_t operator()(const Key& key) const {
            return key.hash;
        }
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(const Entry& left, const Entry& right) const { return left.position == right.position; }
        template <class NameOf>
        bool operator()(const Entry& entry, const Wanted<NameOf>& wanted) const {
            return entry.hash == wanted.hash && wanted.nameOf(entry.position) == wanted.name;
        }
        template <class NameOf>
        bool operator()(const Wanted<NameOf>& wanted, const Entry& entry) const {
            return (*this)(entry, wanted);
        }
    };
    using Entries = tsl::robin_set<Entry, Hash, Equal, LargePageAllocator<Entry>>;

    [[nodiscard]] std::uint32_t hashOf(std::string_view name) const;

    Entries entries_;
    std::uint64_t secret_;
    std::uint64_t multiplier_;  ///< odd
};

}  // namespace tarq
