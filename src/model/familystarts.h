// FamilyStarts: where the members of each family begin, so that finding a family needs no walk over the model.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>

#include "model/familymark.h"

namespace tarq {

/// The first place of each mark among the records of a table, which tells of all that it adds and removes. Families
/// stay where they are when others go, so that clearing one of many costs what its own members do.
class FamilyStarts {
public:
    static constexpr std::int32_t absent = -1;

    [[nodiscard]] std::int32_t find(FamilyMark mark) const {
        const auto found = families_.find(mark.value());
        return found == families_.end() ? absent : found->second.start;
    }

    /// A record with this mark was added at `place`, behind all others.
    void added(FamilyMark mark, std::int32_t place) {
        if (mark == nullptr) return;
        if (mark != last_) {
            countLast();
            families_.try_emplace(mark.value(), Members{.start = place, .count = 0});
            last_ = mark;
        }
        ++lastCount_;
    }

    /// The records at the positions from `first` to before `end`, of `count` in all, are about to be removed. `markOf`
    /// and `placeOf` tell of a position. Looks behind the range only where a family that begins in it has members there
    /// too, which stand apart then.
    template <class MarkOf, class PlaceOf>
    void removing(std::int32_t first, std::int32_t end, std::int32_t count, const MarkOf& markOf,
                  const PlaceOf& placeOf);
    /// Each place is now what `renumbered` makes of it.
    template <class Renumbered>
    void renumber(const Renumbered& renumbered) {
        for (auto& family : families_) family.second.start = renumbered(family.second.start);
    }

    void clear() noexcept {
        families_.clear();
        last_ = FamilyMark();
        lastCount_ = 0;
    }

private:
    struct Members {
        std::int32_t start;
        std::int32_t count;
    };
    struct Hash {
        std::size_t operator()(std::uint64_t mark) const noexcept {
            // Marks are all odd or all multiples of 8 and more.
            return static_cast<std::size_t>((mark * 0x9E37'79B9'7F4A'7C15U) >> 17U);
        }
    };

    void countLast() noexcept {
        if (lastCount_ > 0) families_.find(last_.value())->second.count += lastCount_;
        last_ = FamilyMark();
        lastCount_ = 0;
    }
    template <class MarkOf, class PlaceOf>
    void findNext(std::int32_t end, std::int32_t count, const MarkOf& markOf, const PlaceOf& placeOf);

    std::unordered_map<std::uint64_t, Members, Hash> families_;
    FamilyMark last_;             ///< of the last record added that has one
    std::int32_t lastCount_ = 0;  ///< how many of these were added since; not in its count yet
};

template <class MarkOf, class PlaceOf>
void FamilyStarts::removing(std::int32_t first, std::int32_t end, std::int32_t count, const MarkOf& markOf,
                            const PlaceOf& placeOf) {
    countLast();
    bool isApart = false;
    for (std::int32_t position = first; position < end;) {
        const FamilyMark mark = markOf(position);
        const std::int32_t begin = position;
        while (++position < end && markOf(position) == mark) {
        }
        if (mark == nullptr) continue;
        const auto family = families_.find(mark.value());
        Members& members = family->second;
        members.count -= position - begin;
        if (members.count == 0) {
            families_.erase(family);
        } else if (members.start == placeOf(begin)) {
            members.start = absent;
            isApart = true;
        }
    }
    if (isApart) findNext(end, count, markOf, placeOf);
}

/// Members that stand apart, behind removed ones, are the first of their families now.
template <class MarkOf, class PlaceOf>
void FamilyStarts::findNext(std::int32_t end, std::int32_t count, const MarkOf& markOf, const PlaceOf& placeOf) {
    for (std::int32_t position = end; position < count; ++position) {
        const FamilyMark mark = markOf(position);
        if (mark == nullptr) continue;
        Members& members = families_.find(mark.value())->second;
        if (members.start == absent) members.start = placeOf(position);
    }
}

}  // namespace tarq
