// RemovedPlaces: which records of a table are gone while the others still stand where they stood.
//
// Taking a record out of the middle moves all behind it and makes wrong what is known of their places. A table leaves
// gaps instead, a few at a time, and closes them together. A position counts the records that are there, a place is
// where one stands; without gaps both are the same.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

namespace tarq {

class RemovedPlaces {
public:
    /// With as few gaps as these a search for one costs less than one for a name.
    static constexpr std::size_t mostGaps = 64;

    /// Number of places that are gaps.
    [[nodiscard]] std::int32_t count() const noexcept { return count_; }

    [[nodiscard]] std::int32_t placeOf(std::int32_t position) const noexcept {
        return count_ == 0 ? position : position + removedBefore(position, &Gap::position);
    }
    /// Of a place that is no gap.
    [[nodiscard]] std::int32_t positionOf(std::int32_t place) const noexcept {
        return count_ == 0 ? place : place - removedBefore(place, &Gap::endPlace);
    }
    [[nodiscard]] bool holds(std::int32_t place) const noexcept {
        return count_ != 0 && placeOf(positionOf(place)) != place;
    }

    [[nodiscard]] bool isFull() const noexcept { return gaps_.size() == mostGaps; }
    /// Has the memory for all gaps, so that `remove` can't fail.
    void makeRoom() { gaps_.reserve(mostGaps); }
    /// Makes a gap of the records at the positions from `first` to before `end`. Not when full.
    void remove(std::int32_t first, std::int32_t end) noexcept;
    void clear() noexcept {
        gaps_.clear();
        count_ = 0;
    }

    /// Hands the places of each piece between gaps, from and to before, to `use`.
    template <class Use>
    void forEachPiece(std::int32_t placeCount, const Use& use) const;

private:
    struct Gap {
        std::int32_t position;  ///< of the first record behind it
        std::int32_t removed;   ///< places removed up to its end

        [[nodiscard]] std::int32_t endPlace() const noexcept { return position + removed; }
    };

    /// Places removed by the gaps whose `key` isn't above `limit`.
    template <class Key>
    [[nodiscard]] std::int32_t removedBefore(std::int32_t limit, Key key) const noexcept {
        const auto behind = std::ranges::upper_bound(gaps_, limit, {}, key);
        return behind == gaps_.begin() ? 0 : std::prev(behind)->removed;
    }

    std::vector<Gap> gaps_;  ///< ascending, no two at one position
    std::int32_t count_ = 0;
};

inline void RemovedPlaces::remove(std::int32_t first, std::int32_t end) noexcept {
    const std::int32_t removed = end - first;
    // Those that touch the removed records become one with them.
    const Gap made{first, removedBefore(end, &Gap::position) + removed};
    const auto begin = std::ranges::lower_bound(gaps_, first, {}, &Gap::position);
    const auto behind = std::ranges::upper_bound(gaps_, end, {}, &Gap::position);
    for (auto gap = behind; gap != gaps_.end(); ++gap) *gap = {gap->position - removed, gap->removed + removed};
    if (begin == behind) {
        gaps_.insert(begin, made);
    } else {
        *begin = made;
        gaps_.erase(begin + 1, behind);
    }
    count_ += removed;
}

template <class Use>
void RemovedPlaces::forEachPiece(std::int32_t placeCount, const Use& use) const {
    std::int32_t begin = 0;
    std::int32_t removed = 0;
    for (const Gap& gap : gaps_) {
        use(begin, gap.position + removed);
        begin = gap.endPlace();
        removed = gap.removed;
    }
    use(begin, placeCount);
}

}  // namespace tarq
