// RecordTable: the columns or the rows of a model, in model order, with an index of their names.
//
// Every non-empty name stands once in the index, with the place of its record. Any number of records may have an empty
// name; those are not in the index. Names are compared byte by byte. A record's family is fixed when it is added.
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/nameindex.h"
#include "interfaces/commonfailures.h"
#include "interfaces/sides.h"
#include "model/familystarts.h"
#include "model/positionguess.h"
#include "model/removedplaces.h"
#include "platform/largepages.h"
#include "tarq/frame/status.h"
#include "tarq/interfaces/limits.h"

namespace tarq {

template <class Record>
class RecordTable {
public:
    [[nodiscard]] std::int32_t count() const { return placeCount() - removed_.count(); }
    [[nodiscard]] bool holds(std::int32_t position) const { return position >= 0 && position < count(); }
    [[nodiscard]] const Record& operator[](std::int32_t position) const { return at(removed_.placeOf(position)); }
    [[nodiscard]] Record& operator[](std::int32_t position) { return at(removed_.placeOf(position)); }

    [[nodiscard]] std::int32_t find(std::string_view name) const {
        if (name.empty()) return NameIndex::absent;
        std::int32_t position = findAtGuess(name);
        if (position == NameIndex::absent) position = positionOf(names_.find(name, nameOf()));
        if (position != NameIndex::absent) guess_.found(position);
        return position;
    }
    /// Position of the first record with this mark, or `absent`.
    [[nodiscard]] std::int32_t findFamily(FamilyMark family) const { return positionOf(families_.find(family)); }
    /// Fetches what `find` and `add` of this name will look at.
    void prefetch(std::string_view name) const { names_.prefetch(name); }
    void reserve(std::int32_t count) {
        reserveRecords(toIndex(count));
        names_.reserve(toIndex(count));
    }

    Outcome add(Record&& record) {
        // Room first: once the name is in the index, the record must follow.
        if (records_.size() == records_.capacity()) makeRecordRoom();
        if (!record.name.empty() && !names_.insert(record.name, placeCount(), nameOf())) return duplicate(record.name);
        records_.push_back(std::move(record));
        noteFamily();
        return {};
    }

    /// A name that is taken costs the record its old name as well.
    Outcome rename(std::int32_t position, std::string name) {
        if (!holds(position)) return failures::indexRange();
        if (name.size() > longestItemName) {
            return {words.badName,
                    std::string(words.shortKind).append(" name '").append(name).append("' is too long.")};
        }
        const std::int32_t place = removed_.placeOf(position);
        Record& record = at(place);
        if (!record.name.empty()) names_.erase(record.name, place);
        record.name.clear();
        if (!name.empty() && !names_.insert(name, place, nameOf())) return duplicate(name);
        record.name = std::move(name);
        return {};
    }

    /// Removes the records from number `first` to `last`, both within 1 and the count. On the average this costs what
    /// the removed records do and a pass over the table for every eighth of it, or every 64th removal.
    void remove(std::int32_t first, std::int32_t last) {
        const std::int32_t begin = first - 1;
        if (removed_.isFull()) closeGaps();
        removed_.makeRoom();
        const bool isMuch = removed_.count() + (last - begin) > placeCount() / 8;
        families_.removing(
            begin, last, count(), [this](std::int32_t position) { return (*this)[position].family; },
            [this](std::int32_t position) { return removed_.placeOf(position); });
        for (std::int32_t position = begin; position < last; ++position) {
            const std::int32_t place = removed_.placeOf(position);
            std::string name = std::exchange(at(place).name, {});
            if (!isMuch && !name.empty()) names_.erase(name, place);
        }
        removed_.remove(begin, last);
        if (isMuch) closeGaps();
    }

    /// An index with room for the names that `autoRename` gives.
    [[nodiscard]] NameIndex makeNameRoom() const {
        NameIndex room;
        room.reserve(toIndex(count()));
        return room;
    }
    /// Names every record `prefix` and its number.
    void autoRename(char prefix, NameIndex&& room) noexcept {
        names_ = std::move(room);
        std::array<char, 16> text{prefix};
        for (std::int32_t position = 0; position < count(); ++position) {
            const auto end = std::to_chars(text.data() + 1, text.data() + text.size(), position + 1).ptr;
            const std::int32_t place = removed_.placeOf(position);
            at(place).name.assign(text.data(), end);  // so short that it needs no memory
            names_.insertNew(at(place).name, place);
        }
    }

    /// Empties the table and gives its memory back.
    void clear() noexcept {
        names_.clear();
        families_.clear();
        removed_.clear();
        std::vector<Record>().swap(records_);
    }

private:
    [[nodiscard]] static std::size_t toIndex(std::int32_t position) { return static_cast<std::size_t>(position); }
    [[nodiscard]] std::int32_t placeCount() const { return static_cast<std::int32_t>(records_.size()); }
    [[nodiscard]] const Record& at(std::int32_t place) const { return records_[toIndex(place)]; }
    [[nodiscard]] Record& at(std::int32_t place) { return records_[toIndex(place)]; }
    /// Of the place that a search found, if any.
    [[nodiscard]] std::int32_t positionOf(std::int32_t place) const {
        return place == NameIndex::absent ? place : removed_.positionOf(place);
    }
    /// A name stands in one record only, so that the record guessed is the right one where it has the name.
    [[nodiscard]] std::int32_t findAtGuess(std::string_view name) const {
        const std::int64_t guess = guess_.next();
        if (guess < 0 || guess >= count()) return NameIndex::absent;
        const auto position = static_cast<std::int32_t>(guess);
        return (*this)[position].name == name ? position : NameIndex::absent;
    }
    /// The records that move there are the first to fill the new room.
    void reserveRecords(std::size_t count) {
        if (count <= records_.capacity()) return;
        std::vector<Record> larger;
        larger.reserve(count);
        preferLargePages(larger.data(), count * sizeof(Record));
        larger.insert(larger.end(), std::make_move_iterator(records_.begin()), std::make_move_iterator(records_.end()));
        records_.swap(larger);
    }
    void makeRecordRoom() {
        closeGaps();
        // A little room that gaps had would be full again soon.
        if (records_.size() < records_.capacity() / 16 * 15) return;
        reserveRecords(std::max<std::size_t>(16, 2 * records_.size()));
    }
    [[nodiscard]] auto nameOf() const {
        return [this](std::int32_t place) -> std::string_view { return at(place).name; };
    }
    /// Moves the records together that stand between gaps.
    void closeGaps() noexcept {
        if (removed_.count() == 0) return;
        names_.renumber([this](std::int32_t place) {
            return removed_.holds(place) ? NameIndex::absent : removed_.positionOf(place);
        });
        families_.renumber([this](std::int32_t place) { return removed_.positionOf(place); });
        auto target = records_.begin();
        removed_.forEachPiece(placeCount(), [&](std::int32_t begin, std::int32_t end) {
            const auto piece = records_.begin() + begin;
            target = target == piece ? records_.begin() + end : std::move(piece, records_.begin() + end, target);
        });
        records_.erase(target, records_.end());
        removed_.clear();
    }
    /// Of the record just added, which doesn't stay where there is no memory for it.
    void noteFamily() {
        const std::int32_t place = placeCount() - 1;
        try {
            families_.added(records_.back().family, place);
        } catch (...) {
            if (!records_.back().name.empty()) names_.erase(records_.back().name, place);
            records_.pop_back();
            throw;
        }
    }
    [[nodiscard]] static Outcome duplicate(const std::string& name) {
        return {words.badName, std::string("Duplicate ").append(words.shortKindInside).append(" name: ").append(name)};
    }

    static constexpr const SideWords& words = wordsOf(Record::side);

    std::vector<Record> records_;  ///< with gaps where some were removed
    RemovedPlaces removed_;
    NameIndex names_;        ///< of places
    FamilyStarts families_;  ///< of places
    mutable PositionGuess guess_;
};

}  // namespace tarq
