#include "model/nonzerotable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace tarq {
namespace {

/// The same matrix as a plain ordered map, keyed row first as the table is walked.
class PlainTable {
public:
    using Key = std::pair<std::int32_t, std::int32_t>;

    void set(std::int32_t column, std::int32_t row, double value) {
        if (value == 0.0) {
            entries_.erase({row, column});
        } else {
            entries_[{row, column}] = value;
        }
    }
    void add(std::int32_t column, std::int32_t row, double delta) {
        const auto found = entries_.find({row, column});
        set(column, row, (found == entries_.end() ? 0.0 : found->second) + delta);
    }
    void remove(std::int32_t Key::*number, std::int32_t first, std::int32_t last) {
        std::map<Key, double> kept;
        for (const auto& [oldKey, value] : entries_) {
            Key key = oldKey;
            if (key.*number >= first && key.*number <= last) continue;
            if (key.*number > last) key.*number -= last - first + 1;
            kept[key] = value;
        }
        entries_ = std::move(kept);
    }
    [[nodiscard]] const std::map<Key, double>& entries() const { return entries_; }

private:
    std::map<Key, double> entries_;
};

std::map<PlainTable::Key, double> walked(const NonzeroTable& table) {
    std::map<PlainTable::Key, double> entries;
    PlainTable::Key last{0, 0};
    table.forEach([&](std::int32_t column, std::int32_t row, double value) {
        const PlainTable::Key key{row, column};
        EXPECT_LT(last, key) << "walked out of order";
        EXPECT_NE(value, 0.0);
        last = key;
        entries.emplace(key, value);
    });
    return entries;
}

struct Shape {
    std::string name;
    std::int32_t columns;
    std::int32_t rows;
    int operations;
};

class NonzeroTableProperty : public testing::TestWithParam<Shape> {
protected:
    std::int32_t draw(std::int32_t limit) { return std::uniform_int_distribution<std::int32_t>(1, limit)(random_); }
    double drawValue() { return draw(5) - 1; }

    void setInOrder(std::int32_t row) {
        for (std::int32_t column = 1; column <= GetParam().columns; column += draw(3)) {
            const double value = drawValue();
            table_.set(column, row, value);
            plain_.set(column, row, value);
        }
    }
    void eraseMany() {
        for (int i = 0; i < GetParam().operations / 4; ++i) {
            const std::int32_t column = draw(GetParam().columns);
            const std::int32_t row = draw(GetParam().rows);
            EXPECT_EQ(table_.erase(column, row), plain_.entries().contains({row, column}));
            plain_.set(column, row, 0.0);
        }
    }
    void addMany() {
        for (int i = 0; i < GetParam().operations; ++i) {
            const std::int32_t column = draw(GetParam().columns);
            const std::int32_t row = draw(GetParam().rows);
            const double delta = drawValue() - 2.0;
            table_.add(column, row, delta);
            plain_.add(column, row, delta);
        }
    }
    void loadMany() {
        NonzeroLoader loader;
        for (int i = 0; i < GetParam().operations; ++i) {
            const std::int32_t column = draw(GetParam().columns);
            const std::int32_t row = draw(GetParam().rows);
            const double value = drawValue();
            loader.append(column, row, value);
            plain_.set(column, row, value);
        }
        table_.load(loader);
        EXPECT_TRUE(loader.empty());
    }
    void removeSome() {
        const std::int32_t firstColumn = draw(GetParam().columns);
        const std::int32_t lastColumn = firstColumn + draw(1 + GetParam().columns / 8) - 1;
        table_.removeColumns(firstColumn, lastColumn);
        plain_.remove(&PlainTable::Key::second, firstColumn, lastColumn);
        if (GetParam().rows == 1) return;
        const std::int32_t row = draw(GetParam().rows);
        table_.removeRows(row, row + 1);
        plain_.remove(&PlainTable::Key::first, row, row + 1);
    }
    void expectEqual() {
        EXPECT_EQ(walked(table_), plain_.entries());
        EXPECT_EQ(table_.size(), static_cast<std::int64_t>(plain_.entries().size()));
        for (int i = 0; i < 200; ++i) {
            const PlainTable::Key key{draw(GetParam().rows + 2), draw(GetParam().columns + 2)};
            const double* found = table_.find(key.second, key.first);
            const auto expected = plain_.entries().find(key);
            ASSERT_EQ(found != nullptr, expected != plain_.entries().end());
            if (found != nullptr) {
                EXPECT_EQ(*found, expected->second);
            }
        }
    }

    std::mt19937 random_{7};
    NonzeroTable table_;
    PlainTable plain_;
};

TEST_P(NonzeroTableProperty, AnySequenceOfOperationsEqualsAnOrderedMap) {
    for (int round = 0; round < 40; ++round) {
        SCOPED_TRACE(round);
        switch (draw(6)) {
            case 1:
                setInOrder(draw(GetParam().rows));
                break;
            case 2:
                eraseMany();
                break;
            case 3:
                loadMany();
                break;
            case 4:
                removeSome();
                break;
            case 5:
                table_.shrinkToFit();
                break;
            default:
                addMany();
                break;
        }
        expectEqual();
        if (HasFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(Shapes, NonzeroTableProperty,
                         testing::Values(Shape{"OneDenseRow", 6000, 1, 4000}, Shape{"FewDenseRows", 2500, 4, 4000},
                                         Shape{"Square", 60, 60, 1500}, Shape{"Sparse", 3000, 3000, 2000},
                                         Shape{"OneColumn", 1, 800, 500}),
                         [](const auto& shape) { return shape.param.name; });

TEST(NonzeroTable, DenseRowEmptiedInRandomOrderGivesItsMemoryBack) {
    constexpr std::int32_t columns = 20'000;
    std::vector<std::int32_t> order;
    for (std::int32_t column = 1; column <= columns; ++column) order.push_back(column);
    std::mt19937 random(3);
    NonzeroTable table;
    std::ranges::shuffle(order, random);
    for (const std::int32_t column : order) table.set(column, 1, column);
    EXPECT_LT(table.memoryBytes(), 24U * columns);

    std::ranges::shuffle(order, random);
    for (std::size_t i = 0; i + 10 < order.size(); ++i) ASSERT_TRUE(table.erase(order[i], 1));
    EXPECT_EQ(table.size(), 10);
    EXPECT_LT(table.memoryBytes(), 1000U);
    for (std::size_t i = order.size() - 10; i < order.size(); ++i) EXPECT_NE(table.find(order[i], 1), nullptr);
}

TEST(NonzeroTable, RowIsWalkedWithForAcrossItsPieces) {
    NonzeroTable table;
    for (std::int32_t column = 3000; column >= 1; --column) table.set(column, 2, column);
    EXPECT_GT(table.row(2).runCount(), 1U);
    std::int32_t expected = 1;
    for (const auto [column, value] : table.row(2)) {
        ASSERT_EQ(column, expected++);
        ASSERT_EQ(value, column);
    }
    EXPECT_EQ(expected, 3001);
    for (const std::int32_t row : {-1, 0, 1, 3}) EXPECT_EQ(table.row(row).begin(), table.row(row).end()) << row;
}

TEST(NonzeroTable, LoadedRowsHaveExactCapacity) {
    NonzeroLoader loader;
    for (std::int32_t column = 1; column <= 500; ++column) {
        for (std::int32_t row = 1; row <= 100; ++row) loader.append(column, row, 1.5);
    }
    NonzeroTable table;
    table.load(loader);
    EXPECT_EQ(table.size(), 50'000);
    EXPECT_LE(table.memoryBytes(), 100U * (16 + 500 * 12 + 16));
}

}  // namespace
}  // namespace tarq
