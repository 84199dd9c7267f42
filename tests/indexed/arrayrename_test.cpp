// Renamed elements: an array is a map from full names to values, also where names meet.
#include <map>
#include <random>

#include "tests/indexed/arrayfixture.h"

namespace tarq {
namespace {

std::string joined(const std::vector<std::string>& names) {
    std::string all;
    for (const std::string& name : names) all.append(".").append(name);
    return all;
}

/// The map that clients see, with no thought about speed.
class NamedCells {
public:
    explicit NamedCells(std::vector<std::vector<std::string>> names) : names_(std::move(names)) {
        forEach([&](const std::string& name, std::size_t) { cells_.emplace(name, Variant()); });
    }

    void rename(std::size_t dimension, std::size_t element, const std::string& name) {
        std::vector<std::pair<std::string, std::string>> ways;
        forEachPosition([&](const std::vector<std::size_t>& at) {
            if (at[dimension] != element) return;
            ways.emplace_back(nameAt(at, dimension, names_[dimension][element]), nameAt(at, dimension, name));
        });
        for (const auto& [from, to] : ways) {
            const auto cell = cells_.find(from);
            if (cell == cells_.end()) continue;
            const Variant value = cell->second;
            cells_.erase(cell);
            cells_.emplace(to, value);
        }
        names_[dimension][element] = name;
    }
    void put(const std::string& name, const Variant& value) {
        if (cells_.contains(name)) cells_[name] = value;
    }
    void transpose() {
        std::map<std::string, Variant> cells;
        forEachPosition([&](const std::vector<std::size_t>& at) {
            const auto cell = cells_.find(nameAt(at, 0, names_[0][at[0]]));
            const std::string turned = joined({names_[1][at[1]], names_[0][at[0]]});
            if (cell != cells_.end()) cells[turned] = cell->second;
        });
        cells_ = std::move(cells);
        std::swap(names_[0], names_[1]);
    }

    template <class Use>
    void forEach(const Use& use) const {
        std::size_t number = 0;
        forEachPosition([&](const std::vector<std::size_t>& at) { use(nameAt(at, 0, names_[0][at[0]]), number++); });
    }
    const std::map<std::string, Variant>& cells() const { return cells_; }
    const std::vector<std::vector<std::string>>& names() const { return names_; }

private:
    template <class Use>
    void forEachPosition(const Use& use) const {
        for (std::size_t i = 0; i < names_[0].size(); ++i) {
            for (std::size_t j = 0; j < names_[1].size(); ++j) use(std::vector<std::size_t>{i, j});
        }
    }
    std::string nameAt(const std::vector<std::size_t>& at, std::size_t dimension, const std::string& other) const {
        std::string name;
        for (std::size_t i = 0; i < at.size(); ++i) name.append(".").append(i == dimension ? other : names_[i][at[i]]);
        return name;
    }

    std::vector<std::vector<std::string>> names_;
    std::map<std::string, Variant> cells_;
};

void expectSame(const Ref<ITARQArray>& array, const NamedCells& expected) {
    std::int32_t count = -1;
    EXPECT_THAT(array->get_Count(&count), succeeds());
    EXPECT_EQ(count, static_cast<std::int32_t>(expected.cells().size()));
    expected.forEach([&](const std::string& name, std::size_t) {
        Variant value;
        const Status read = array->get_ValueByFullIndexName(name, &value);
        const auto cell = expected.cells().find(name);
        EXPECT_EQ(read.isOk(), cell != expected.cells().end()) << name;
        if (cell != expected.cells().end()) {
            EXPECT_EQ(shown(value), shown(cell->second)) << name;
        }
    });
    Variant whole;
    const Status read = readInto(whole, array);
    std::string values;
    bool complete = true;
    expected.forEach([&](const std::string& name, std::size_t) {
        const auto cell = expected.cells().find(name);
        complete = complete && cell != expected.cells().end();
        if (complete) values.append(" ").append(shown(cell->second));
    });
    ASSERT_EQ(read.isOk(), complete);
    if (complete && whole.isArray()) {
        EXPECT_EQ(shownCells(whole).substr(4), values);
    }
}

TEST(ArrayRename, RandomRenamesGiveTheMapOfNames) {
    std::mt19937 random(3);
    const auto upTo = [&](std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random); };
    // Few names, so that they meet, with and without points.
    const std::vector<std::string> names{"a", "b", "a.b", "b.a", "b.b", "c", ".", "", "c.a"};
    for (int round = 0; round < 400 && !testing::Test::HasFailure(); ++round) {
        std::vector<std::vector<std::string>> chosen(2);
        for (auto& dimension : chosen) {
            dimension = names;
            std::ranges::shuffle(dimension, random);
            dimension.resize(1 + upTo(3));
        }
        SafeArray rows = namesOf(chosen[0]);
        SafeArray columns = namesOf(chosen[1]);
        const Ref<ITARQArray> array = newArray(ValueList({Variant::byReference(rows), Variant::byReference(columns)}));
        NamedCells expected(chosen);
        for (int step = 0; step < 12 && !testing::Test::HasFailure(); ++step) {
            SCOPED_TRACE(std::to_string(round) + "/" + std::to_string(step));
            if (upTo(5) == 0) {
                ASSERT_THAT(array->TransposeMatrix(), succeeds());
                expected.transpose();
            } else if (upTo(1) == 0) {
                const std::size_t dimension = upTo(1);
                const std::size_t element = upTo(expected.names()[dimension].size() - 1);
                const std::string name = names[upTo(names.size() - 1)];
                ASSERT_THAT(array->put_IndexsetElement(static_cast<std::int32_t>(dimension) + 1,
                                                       static_cast<std::int32_t>(element) + 1, name),
                            succeeds());
                expected.rename(dimension, element, name);
            } else {
                const std::string row = expected.names()[0][upTo(expected.names()[0].size() - 1)];
                const std::string column = expected.names()[1][upTo(expected.names()[1].size() - 1)];
                const Variant value(round * 100 + step);
                const std::string name = joined({row, column});
                EXPECT_EQ(putAt(array, value, row, column).isOk(), expected.cells().contains(name));
                expected.put(name, value);
            }
            expectSame(array, expected);
        }
    }
}

TEST(ArrayRename, ArraysWithoutCellsTakeNamesToo) {
    const Ref<ITARQArray> empty = make<CTARQArray, ITARQArray>();
    ASSERT_THAT(empty->CloneFrom(Variant(counted({{0, 0}, {0, 2}}))), succeeds());
    EXPECT_THAT(empty->put_IndexsetElement(2, 1, "1"), succeeds());
    EXPECT_EQ(cells(empty), "0x2:");
    EXPECT_THAT(empty->TransposeMatrix(), succeeds());
    EXPECT_EQ(cells(empty), "2x0:");

    // More combinations than anybody could walk.
    const Ref<ITARQArray> vast = make<CTARQArray, ITARQArray>();
    EXPECT_TRUE(vast->Init(listOf(100'000, 100'000, "x")).failed());
    EXPECT_THAT(vast->put_IndexsetElement(2, 1, "n"), succeeds());
    EXPECT_THAT(vast->TransposeMatrix(), succeeds());
    const auto nowhere = raisesAs(classid::TARQArray, status::invalidArgument, "Index '.n.1' does not exist.");
    Variant value;
    EXPECT_THAT(readInto(value, vast), nowhere);
    EXPECT_THAT(putAt(vast, 5), nowhere);
    EXPECT_THAT(putAt(vast, true),
                raisesAs(classid::TARQArray, status::invalidArgument, "Parameter for value is of wrong type."));
}

class SharedCellTest : public testing::Test {
protected:
    /// The elements a, a, c with the values 1, 1, 3.
    Ref<ITARQArray> array = newArray(listOf(newSet(listOf("a", "b", "c"))));
    void SetUp() override {
        ASSERT_THAT(array->put_IndexsetElement(1, 2, "a"), succeeds());
        ASSERT_THAT(array->SetValues(listOf(7, 1, 3)), succeeds());
    }
};

TEST_F(SharedCellTest, ACloneSharesItTheSameWay) {
    const Ref<ITARQArray> clone = make<CTARQArray, ITARQArray>();
    ASSERT_THAT(clone->CloneFrom(valueOf(array)), succeeds());
    EXPECT_EQ(cells(clone), "3: 1 1 3");
    std::int32_t count = 0;
    EXPECT_THAT(clone->get_Count(&count), succeeds());
    EXPECT_EQ(count, 2);
    EXPECT_THAT(putAt(clone, 5, "a"), succeeds());
    EXPECT_EQ(cells(clone), "3: 5 5 3");
}

TEST_F(SharedCellTest, EverySummandIsAddedToIt) {
    ASSERT_THAT(array->AddMatrix(Variant(counted({{0, 3}}))), succeeds());
    EXPECT_EQ(cells(array), "3: 4 4 6");
}

TEST(ArrayRename, SixDimensionsAreClonedAsFiveAre) {
    const Ref<ITARQArray> six = newArray(listOf(2, 1, 1, 1, 1, 2));
    ASSERT_THAT(six->SetValues(listOf(1, 2, 3, 4)), succeeds());
    const Ref<ITARQArray> clone = make<CTARQArray, ITARQArray>();
    EXPECT_THAT(clone->CloneFrom(valueOf(six)), succeeds());
    EXPECT_EQ(cells(clone), "2x1x1x1x1x2: 1 2 3 4");
    ASSERT_THAT(six->put_IndexsetElement(1, 2, "1"), succeeds());
    EXPECT_THAT(clone->CloneFrom(valueOf(six)), succeeds());
    EXPECT_EQ(cells(clone), "2x1x1x1x1x2: 1 2 1 2");
}

}  // namespace
}  // namespace tarq
