// RecordTable: the columns or the rows of a model, in model order, with an index of their names.
//
// Every non-empty name stands once in the index, with the record's current position. Any number of records may have an
// empty name; those are not in the index. Names are compared byte by byte. A record's family is fixed when it is added.
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
#include "frame/status.h"
#include "model/familystarts.h"
#include "model/positionguess.h"
#include "platform/largepages.h"

namespace tarq {

/// Longest name of a column or row in bytes. Checked where a client gives a name; readers have limits of their own.
inline constexpr std::size_t nameLengthLimit = 64;

/// How the failures of one kind of record are worded.
struct NameTexts {
    std::string_view duplicate;      ///< the name follows
    std::string_view tooLongBefore;  ///< the name follows
    std::string_view tooLongAfter;
    Status badName;
};

template <class Record>
class RecordTable {
public:
    explicit RecordTable(const NameTexts& texts) : texts_(&texts) {}

    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(records_.size()); }
    [[nodiscard]] bool holds(std::int32_t position) const { return position >= 0 && position < count(); }
    [[nodiscard]] const Record& operator[](std::int32_t position) const { return records_[toIndex(position)]; }
    [[nodiscard]] Record& operator[](std::int32_t position) { return records_[toIndex(position)]; }
    [[nodiscard]] const std::vector<Record>& records() const { return records_; }

    [[nodiscard]] std::int32_t find(std::string_view name) const {
        if (name.empty()) return NameIndex::absent;
        std::int32_t position = findAtGuess(name);
        if (position == NameIndex::absent) position = names_.find(name, nameOf());
        if (position != NameIndex::absent) guess_.found(position);
        return position;
    }
    /// Position of the first record with this mark, or `absent`.
    [[nodiscard]] std::int32_t findFamily(FamilyMark family) const { return families_.find(family); }
    /// Fetches what `find` and `add` of this name will look at.
    void prefetch(std::string_view name) const { names_.prefetch(name); }
    void reserve(std::int32_t count) {
        reserveRecords(toIndex(count));
        names_.reserve(toIndex(count));
    }

    Outcome add(Record&& record) {
        // Room first: once the name is in the index, the record must follow.
        if (records_.size() == records_.capacity()) reserveRecords(std::max<std::size_t>(16, 2 * records_.size()));
        if (!record.name.empty() && !names_.insert(record.name, count(), nameOf())) return duplicate(record.name);
        records_.push_back(std::move(record));
        noteFamily();
        return {};
    }

    /// A name that is taken costs the record its old name as well.
    Outcome rename(std::int32_t position, std::string name) {
        if (!holds(position)) return {status::indexOutOfRange, "Index out of valid range."};
        if (name.size() > nameLengthLimit) {
            return {texts_->badName, std::string(texts_->tooLongBefore) + name + std::string(texts_->tooLongAfter)};
        }
        Record& record = (*this)[position];
        if (!record.name.empty()) names_.erase(record.name, position);
        record.name.clear();
        if (!name.empty() && !names_.insert(name, position, nameOf())) return duplicate(name);
        record.name = std::move(name);
        return {};
    }

    /// Removes the records from number `first` to `last`, both within 1 and the count.
    void remove(std::int32_t first, std::int32_t last) {
        families_.removing(first - 1, last, count(),
                           [this](std::int32_t position) { return (*this)[position].family; });
        names_.removePositions(first - 1, last);
        records_.erase(records_.begin() + (first - 1), records_.begin() + last);
    }

    /// Names every record `prefix` and its number.
    void autoRename(char prefix) {
        names_.clear();
        names_.reserve(records_.size());
        std::array<char, 16> text{prefix};
        for (std::int32_t position = 0; position < count(); ++position) {
            const auto end = std::to_chars(text.data() + 1, text.data() + text.size(), position + 1).ptr;
            Record& record = (*this)[position];
            record.name.assign(text.data(), end);
            names_.insert(record.name, position, nameOf());
        }
    }

    /// Empties the table and gives its memory back.
    void clear() noexcept {
        names_.clear();
        families_.clear();
        std::vector<Record>().swap(records_);
    }

private:
    [[nodiscard]] static std::size_t toIndex(std::int32_t position) { return static_cast<std::size_t>(position); }
    /// A name stands in one record only, so that the record guessed is the right one where it has the name.
    [[nodiscard]] std::int32_t findAtGuess(std::string_view name) const {
        const std::int64_t guess = guess_.next();
        if (guess < 0 || guess >= count() || records_[static_cast<std::size_t>(guess)].name != name) {
            return NameIndex::absent;
        }
        return static_cast<std::int32_t>(guess);
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
    [[nodiscard]] auto nameOf() const {
        return [this](std::int32_t position) -> std::string_view { return (*this)[position].name; };
    }
    /// Of the record just added, which doesn't stay where there is no memory for it.
    void noteFamily() {
        const std::int32_t position = count() - 1;
        try {
            families_.added(records_.back().family, position);
        } catch (...) {
            if (!records_.back().name.empty()) names_.erase(records_.back().name, position);
            records_.pop_back();
            throw;
        }
    }
    [[nodiscard]] Outcome duplicate(const std::string& name) const {
        return {texts_->badName, std::string(texts_->duplicate) + name};
    }

    const NameTexts* texts_;
    std::vector<Record> records_;
    NameIndex names_;
    FamilyStarts families_;
    mutable PositionGuess guess_;
};

}  // namespace tarq
