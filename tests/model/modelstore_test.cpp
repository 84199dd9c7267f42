#include "model/modelstore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "tests/support/outcomematchers.h"

namespace tarq {
namespace {

using testing::ElementsAre;

class ModelStoreTest : public testing::Test {
protected:
    void addColumns(const std::vector<std::string>& names) {
        for (const std::string& name : names) ASSERT_THAT(store_.add(ColumnRecord{.name = name}), succeeds());
    }
    void addRows(const std::vector<std::string>& names) {
        for (const std::string& name : names) ASSERT_THAT(store_.add(RowRecord{.name = name}), succeeds());
    }
    /// "column,row" and value of every nonzero, in the order of the walk.
    std::vector<std::string> nonzeros() const {
        std::vector<std::string> texts;
        store_.nonzeros().forEach([&](std::int32_t column, std::int32_t row, double value) {
            texts.push_back(std::to_string(column) + ',' + std::to_string(row) + '=' +
                            std::to_string(static_cast<int>(value)));
        });
        return texts;
    }

    ModelStore store_;
};

TEST_F(ModelStoreTest, TakenNameIsRefusedAndNothingIsAdded) {
    addColumns({"x", "", "", "X"});
    addRows({"x"});
    EXPECT_THAT(store_.add(ColumnRecord{.name = "x"}), failsWith(status::badColumnName, "Duplicate col name: x"));
    EXPECT_THAT(store_.add(RowRecord{.name = "x"}), failsWith(status::badRowName, "Duplicate row name: x"));
    EXPECT_EQ(store_.columnCount(), 4);
    EXPECT_EQ(store_.rowCount(), 1);
    EXPECT_EQ(store_.findColumn("X"), 3);
    EXPECT_EQ(store_.findColumn(""), -1);
}

TEST_F(ModelStoreTest, RenamingToATakenNameCostsTheOldNameToo) {
    addColumns({"x", "y"});
    EXPECT_THAT(store_.rename<ColumnRecord>(1, "x"), failsWith(status::badColumnName, "Duplicate col name: x"));
    EXPECT_EQ(store_.column(1).name, "");
    EXPECT_EQ(store_.findColumn("y"), -1);
    EXPECT_EQ(store_.findColumn("x"), 0);
    EXPECT_THAT(store_.rename<ColumnRecord>(0, "y"), succeeds());
    EXPECT_EQ(store_.findColumn("y"), 0);
}

TEST_F(ModelStoreTest, RenamingToTheSameOrToNoNameWorks) {
    addRows({"r", "a name that is too long to lie inside the string"});
    EXPECT_THAT(store_.rename<RowRecord>(1, store_.row(1).name), succeeds());
    EXPECT_EQ(store_.findRow("a name that is too long to lie inside the string"), 1);
    EXPECT_THAT(store_.rename<RowRecord>(0, ""), succeeds());
    EXPECT_EQ(store_.findRow("r"), -1);
}

TEST_F(ModelStoreTest, LongNameAndPositionOutsideChangeNothing) {
    addColumns({"x"});
    addRows({"r"});
    const std::string longName(65, 'n');
    EXPECT_THAT(store_.rename<ColumnRecord>(0, longName),
                failsWith(status::badColumnName, "Col name '" + longName + "' is too long."));
    EXPECT_THAT(store_.rename<RowRecord>(0, longName),
                failsWith(status::badRowName, "Row name '" + longName + "' is too long."));
    EXPECT_THAT(store_.rename<ColumnRecord>(0, std::string(64, 'n')), succeeds());
    EXPECT_THAT(store_.rename<RowRecord>(1, "s"), failsWith(status::indexOutOfRange, "Index out of valid range."));
    EXPECT_EQ(store_.findRow("r"), 0);
}

TEST_F(ModelStoreTest, RemovedColumnTakesItsNonzerosAndMovesTheOthersUp) {
    addColumns({"a", "b", "c"});
    addRows({"r", "s"});
    for (const std::int32_t row : {1, 2}) {
        for (const std::int32_t column : {1, 2, 3}) store_.setNonzero(column, row, 10 * column + row);
    }
    store_.remove<ColumnRecord>(2, 2);
    EXPECT_EQ(store_.findColumn("b"), -1);
    EXPECT_EQ(store_.findColumn("c"), 1);
    EXPECT_THAT(nonzeros(), ElementsAre("1,1=11", "2,1=31", "1,2=12", "2,2=32"));
    store_.remove<RowRecord>(-5, 1);
    EXPECT_EQ(store_.findRow("s"), 0);
    EXPECT_THAT(nonzeros(), ElementsAre("1,1=12", "2,1=32"));
    store_.remove<ColumnRecord>(3, 2);
    store_.remove<ColumnRecord>(1, std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(store_.columnCount(), 0);
    EXPECT_EQ(store_.nonzeros().size(), 0);
}

TEST_F(ModelStoreTest, NameIndexFollowsRandomChanges) {
    std::mt19937 random(11);
    std::vector<std::string> names;
    for (int step = 0; step < 3000; ++step) {
        const std::string name = std::to_string(random() % 400);
        const auto position = names.empty() ? 0 : static_cast<std::int32_t>(random() % names.size());
        const bool isTaken = std::ranges::find(names, name) != names.end();
        if (step % 3 != 0 || names.empty()) {
            EXPECT_EQ(store_.add(ColumnRecord{.name = name}).isOk(), !isTaken);
            if (!isTaken) names.push_back(name);
        } else if (step % 2 == 0) {
            const bool isOwn = names[static_cast<std::size_t>(position)] == name;
            EXPECT_EQ(store_.rename<ColumnRecord>(position, name).isOk(), !isTaken || isOwn);
            names[static_cast<std::size_t>(position)] = isTaken && !isOwn ? "" : name;
        } else {
            const auto last = std::min(position + 3, static_cast<std::int32_t>(names.size()));
            store_.remove<ColumnRecord>(position + 1, last);
            names.erase(names.begin() + position, names.begin() + last);
        }
    }
    std::map<std::string, std::int32_t> expected;
    for (std::size_t i = 0; i < names.size(); ++i) expected[names[i]] = static_cast<std::int32_t>(i);
    expected[""] = -1;
    for (int number = 0; number < 400; ++number) expected.try_emplace(std::to_string(number), -1);
    for (const auto& [name, position] : expected) EXPECT_EQ(store_.findColumn(name), position) << name;
}

struct SeriesCase {
    const char* change;
    void (*make)(ModelStore& store);
    std::int32_t position;  ///< of "x3" afterwards
};

constexpr SeriesCase seriesCases[] = {
    {"none", [](ModelStore&) {}, 3},
    {"another record has the name",
     [](ModelStore& store) {
         EXPECT_THAT(store.rename<ColumnRecord>(3, "y"), succeeds());
         EXPECT_THAT(store.rename<ColumnRecord>(7, "x3"), succeeds());
     },
     7},
    {"a record before it is gone", [](ModelStore& store) { store.remove<ColumnRecord>(2, 2); }, 2},
    {"all from there on are gone", [](ModelStore& store) { store.remove<ColumnRecord>(4, 10); }, -1},
    {"nothing is left", [](ModelStore& store) { store.clear(); }, -1},
};

TEST_F(ModelStoreTest, SearchThatGoesOnASeriesSeesWhatChanged) {
    for (const SeriesCase& series : seriesCases) {
        store_.clear();
        addColumns({"x0", "x1", "x2", "x3", "x4", "x5", "x6", "x7", "x8", "x9"});
        for (const char* name : {"x0", "x1", "x2"}) ASSERT_GE(store_.findColumn(name), 0);
        series.make(store_);
        EXPECT_EQ(store_.findColumn("x3"), series.position) << series.change;
    }
}

TEST_F(ModelStoreTest, SeriesOfSearchesMayRunAnyWay) {
    addColumns({"x0", "x1", "x2", "x3", "x4", "x5", "x6", "x7", "x8", "x9"});
    const std::vector<std::int32_t> ways[] = {
        {0, 1, 2, 3, 9, 4}, {1, 4, 7, 2}, {5, 5, 5, 6}, {3, 2, 1, 0, 9}, {8, 4, 0, 7}};
    for (const std::vector<std::int32_t>& way : ways) {
        for (const std::int32_t position : way) {
            EXPECT_EQ(store_.findColumn(std::string("x").append(std::to_string(position))), position);
        }
        EXPECT_EQ(store_.findColumn("y"), -1);
    }
}

TEST_F(ModelStoreTest, NonzerosThatAddUpToZeroVanish) {
    addColumns({"x"});
    addRows({"r"});
    store_.addToNonzero(1, 1, 0.0);
    EXPECT_EQ(store_.nonzeros().size(), 0);
    store_.addToNonzero(1, 1, 2.0);
    store_.addToNonzero(1, 1, 3.0);
    EXPECT_EQ(store_.nonzeroAt(1, 1), 5.0);
    store_.addToNonzero(1, 1, -5.0);
    EXPECT_EQ(store_.nonzeroAt(1, 1), 0.0);
    EXPECT_EQ(store_.nonzeros().size(), 0);
}

TEST_F(ModelStoreTest, PlacesOutsideTheTablesHoldNothing) {
    addColumns({"x"});
    addRows({"r"});
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    NonzeroLoader loader;
    for (const auto& [column, row] : {std::pair{0, 1}, {2, 1}, {1, 0}, {1, 2}, {least, 1}, {1, least}, {1, 1}}) {
        if (column != row) store_.setNonzero(column, row, 1.0);
        if (column != row) store_.addToNonzero(column, row, 1.0);
        EXPECT_FALSE(store_.eraseNonzero(column, row));
        loader.append(column, row, 7.0);
    }
    EXPECT_EQ(store_.nonzeros().size(), 0);
    store_.loadNonzeros(loader);
    EXPECT_THAT(nonzeros(), ElementsAre("1,1=7"));
}

TEST_F(ModelStoreTest, AutoRenameNamesEverythingByNumber) {
    addColumns({"R1", "", "C1"});
    addRows({"C1"});
    store_.autoRename();
    EXPECT_EQ(store_.column(2).name, "C3");
    EXPECT_EQ(store_.findColumn("C1"), 0);
    EXPECT_EQ(store_.findColumn("R1"), -1);
    EXPECT_EQ(store_.findRow("R1"), 0);
}

TEST_F(ModelStoreTest, ClearedStoreKeepsOnlyItsInfinity) {
    store_.setInfinity(1e20);
    addColumns({"x"});
    addRows({"r"});
    store_.setNonzero(1, 1, 1.0);
    store_.clear();
    EXPECT_EQ(store_.columnCount() + store_.rowCount(), 0);
    EXPECT_EQ(store_.nonzeros().size(), 0);
    EXPECT_EQ(store_.infinity(), 1e20);
    EXPECT_EQ(store_.clampToInfinity(-1e25), -1e20);
    addColumns({"x"});
    EXPECT_EQ(store_.findColumn("x"), 0);
}

TEST_F(ModelStoreTest, AnyTypeButContinuousMakesTheModelInteger) {
    addColumns({"x", "y"});
    EXPECT_FALSE(store_.hasIntegerColumn());
    store_.column(1).type = TARQColType{7};
    EXPECT_TRUE(store_.hasIntegerColumn());
}

}  // namespace
}  // namespace tarq
