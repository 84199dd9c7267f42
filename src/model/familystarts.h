// FamilyStarts: where the members of each family begin, so that finding a family needs no walk over the model.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <unordered_map>

#include "model/familymark.h"

namespace tarq {

/// The first position of each mark among the records of a table, which tells of all that it adds and removes.
class FamilyStarts {
public:
    static constexpr std::int32_t absent = -1;

    [[nodiscard]] std::int32_t find(FamilyMark mark) const {
        const auto found = starts_.find(mark.value());
        return found == starts_.end() ? absent : found->second;
    }

    /// A record with this mark was added at `position`, behind all others.
    void added(FamilyMark mark, std::int32_t position) {
        if (mark == nullptr || mark == last_) return;
        starts_.try_emplace(mark.value(), position);
        last_ = mark;
    }

    /// The positions from `first` to before `end` are about to be removed. `markOf` gives the mark of the record at a
    /// position before `count`. Looks at records only where a family begins in the range.
    template <class MarkOf>
    void removing(std::int32_t first, std::int32_t end, std::int32_t count, const MarkOf& markOf);

    void clear() noexcept {
        starts_.clear();
        last_ = FamilyMark();
    }

private:
    struct Hash {
        std::size_t operator()(std::uint64_t mark) const noexcept {
            // Marks are all odd or all multiples of 8 and more.
            return static_cast<std::size_t>((mark * 0x9E37'79B9'7F4A'7C15U) >> 17U);
        }
    };

    std::unordered_map<std::uint64_t, std::int32_t, Hash> starts_;
    FamilyMark last_;  ///< of the last record added that has one
};

template <class MarkOf>
void FamilyStarts::removing(std::int32_t first, std::int32_t end, std::int32_t count, const MarkOf& markOf) {
    last_ = FamilyMark();
    if (starts_.empty()) return;
    const std::int32_t removed = end - first;
    bool begins = false;
    for (auto entry = starts_.begin(); entry != starts_.end(); ++entry) {
        std::int32_t& start = entry->second;
        if (start >= end) {
            start -= removed;
        } else if (start >= first) {
            begins = true;
            start = absent;
        }
    }
    if (!begins) return;
    // Members of such a family that stand apart, behind the range, are its first ones now.
    for (std::int32_t position = end; position < count; ++position) {
        const FamilyMark mark = markOf(position);
        if (mark == nullptr) continue;
        const auto found = starts_.find(mark.value());
        if (found != starts_.end() && found->second == absent) found->second = position - removed;
    }
    for (auto entry = starts_.begin(); entry != starts_.end();) {
        entry = entry->second == absent ? starts_.erase(entry) : std::next(entry);
    }
}

}  // namespace tarq
