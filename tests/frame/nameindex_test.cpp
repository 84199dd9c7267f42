#include "frame/nameindex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarq {
namespace {

/// A list of names with their index, beside a map that says what the index should find.
class IndexedNames {
    [[nodiscard]] auto nameOf() const {
        return [this](std::int32_t position) -> std::string_view { return names_[static_cast<std::size_t>(position)]; };
    }

public:
    void insert(const std::string& name) {
        const auto position = static_cast<std::int32_t>(names_.size());
        const bool isNew = expected_.emplace(name, position).second;
        names_.push_back(name);
        EXPECT_EQ(index_.insert(name, position, nameOf()), isNew) << name;
        if (!isNew) names_.pop_back();
    }
    /// Takes the name out of the index; its place in the list stays.
    void erase(const std::string& name) {
        const auto found = expected_.find(name);
        if (found == expected_.end()) return;
        index_.erase(name, found->second);
        expected_.erase(found);
    }
    void removePositions(std::int32_t first, std::int32_t end) {
        index_.renumber([&](std::int32_t position) {
            if (position >= first && position < end) return NameIndex::absent;
            return position < first ? position : position - (end - first);
        });
        names_.erase(names_.begin() + first, names_.begin() + end);
        std::erase_if(expected_, [&](const auto& entry) { return entry.second >= first && entry.second < end; });
        for (auto& [name, position] : expected_) position -= position >= end ? end - first : 0;
    }
    [[nodiscard]] std::int32_t size() const { return static_cast<std::int32_t>(names_.size()); }
    [[nodiscard]] NameIndex& index() { return index_; }
    [[nodiscard]] std::int32_t find(std::string_view name) const { return index_.find(name, nameOf()); }

    void expectAllFound(int nameCount) const {
        for (int number = 0; number < nameCount; ++number) {
            const std::string name = std::to_string(number);
            index_.prefetch(name);
            const auto found = expected_.find(name);
            ASSERT_EQ(find(name), found == expected_.end() ? NameIndex::absent : found->second) << name;
        }
    }

private:
    std::vector<std::string> names_;
    NameIndex index_;
    std::map<std::string, std::int32_t> expected_;
};

// Several sizes: a table is as full as it gets just before it grows.
TEST(NameIndex, FindsWhatAMapFindsAfterRandomChanges) {
    for (const int nameCount : {1, 13, 200, 5000}) {
        SCOPED_TRACE(nameCount);
        std::mt19937 random(static_cast<unsigned>(nameCount));
        const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
        IndexedNames names;
        for (int round = 0; round < 30; ++round) {
            const int inserted = below(nameCount) + 1;
            for (int i = 0; i < inserted; ++i) names.insert(std::to_string(below(nameCount)));
            names.expectAllFound(nameCount);
            for (int i = 0; i < inserted / 3; ++i) names.erase(std::to_string(below(nameCount)));
            names.expectAllFound(nameCount);
            const int first = below(names.size() + 1);
            names.removePositions(first, first + below(names.size() - first + 1) / (round % 3 + 1));
            names.expectAllFound(nameCount);
        }
    }
}

TEST(NameIndex, NamesOfAllLengthsAndBytesAreTold) {
    IndexedNames names;
    std::vector<std::string> given{"", std::string(1, '\0'), std::string(2, '\0')};
    for (std::size_t length = 1; length <= 70; ++length) {
        given.emplace_back(length, 'a');
        given.push_back(std::string(length, 'a').append(1, '\xFF'));
    }
    for (const std::string& name : given) names.insert(name);
    for (std::size_t i = 0; i < given.size(); ++i) EXPECT_EQ(names.find(given[i]), static_cast<std::int32_t>(i));
}

TEST(NameIndex, EmptyOnesFindAndLoseNothing) {
    const auto none = [](std::int32_t) -> std::string_view { return {}; };
    NameIndex index;
    for (const bool filled : {false, true}) {
        SCOPED_TRACE(filled);
        if (filled) {
            EXPECT_TRUE(index.insert("a", 0, none));
            index.clear();
        }
        index.prefetch("a");
        index.erase("a", 0);
        index.renumber([](std::int32_t) { return NameIndex::absent; });
        EXPECT_EQ(index.find("a", none), NameIndex::absent);
    }
}

TEST(NameIndex, ErasingANameThatIsNotThereChangesNothing) {
    IndexedNames names;
    for (int number = 0; number < 12; ++number) names.insert(std::to_string(number));
    names.index().erase("99", 3);
    names.index().erase("99", 99);
    names.expectAllFound(100);
}

TEST(NameIndex, CopiesAndMovesKeepTheNamesAndLeaveAUsableIndex) {
    const auto nameOf = [](std::int32_t position) {
        return std::string_view("abc").substr(static_cast<std::size_t>(position), 1);
    };
    NameIndex index;
    for (const std::int32_t position : {0, 1}) index.insert(nameOf(position), position, nameOf);
    NameIndex copy = index;
    NameIndex moved = std::move(index);
    EXPECT_TRUE(copy.insert("c", 2, nameOf));
    EXPECT_EQ(moved.find("b", nameOf), 1);
    EXPECT_EQ(moved.find("c", nameOf), NameIndex::absent);
    // NOLINTBEGIN(bugprone-use-after-move): what was moved from is promised to be empty.
    EXPECT_EQ(index.find("b", nameOf), NameIndex::absent);
    EXPECT_TRUE(index.insert("c", 2, nameOf));
    // NOLINTEND(bugprone-use-after-move)
    copy = std::move(index);
    EXPECT_EQ(copy.find("c", nameOf), 2);
    EXPECT_EQ(copy.find("a", nameOf), NameIndex::absent);
}

}  // namespace
}  // namespace tarq
