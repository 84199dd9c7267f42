// Random models through write and read: equal but for what each format is known to lose.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "tests/modelfiles/writtenfile.h"

namespace tarq {
namespace {

using enum TARQFileFormatType;

constexpr double infinity = WrittenFile::infinity;

/// Makes models whose names, numbers and rows each format can hold.
class RandomModel {
public:
    RandomModel(WrittenFile& file, std::uint32_t seed) : file_(file), random_(seed) {}

    void build(bool ranges) {
        const int columns = upTo(12) + 1;
        const int rows = upTo(8) + 1;
        for (int i = 1; i <= columns; ++i) addColumn(numbered('C', i));
        for (int i = 1; i <= rows; ++i) addRow(numbered('R', i), ranges);
        // Every row and column has an entry, so that it occurs in each format.
        for (int i = 1; i <= std::max(rows, columns); ++i)
            file_.nonzero((i - 1) % rows + 1, (i - 1) % columns + 1, number());
        for (int i = upTo(30); i > 0; --i) file_.nonzero(upTo(rows - 1) + 1, upTo(columns - 1) + 1, number());
    }

private:
    static std::string numbered(char letter, int number) {
        return std::string(1, letter).append(std::to_string(number));
    }
    int upTo(int most) { return std::uniform_int_distribution(0, most)(random_); }
    /// Not 0, and with few enough digits for every format.
    double number() { return (upTo(1) == 0 ? 1 : -1) * (upTo(9999) + 1) / std::pow(10.0, upTo(6)); }

    void addColumn(const std::string& name) {
        const double low = upTo(1) == 0 ? 0 : number();
        const double lower = upTo(5) == 0 ? -infinity : low;
        const double upper = upTo(2) == 0 ? infinity : low + upTo(5);
        const int type = upTo(3);
        if (type == 0) return file_.column(name, 0, 1, number(), TARQColType::Binary);
        // Whole bounds, as integer columns have them; other than those of a binary one.
        if (type == 1) return file_.column(name, upTo(5), upTo(5) + 6, number(), TARQColType::Integer);
        file_.column(name, lower, upper, upTo(3) == 0 ? 0 : number());
    }
    void addRow(const std::string& name, bool ranges) {
        const double side = number();
        switch (upTo(ranges ? 3 : 2)) {
            case 0:
                return file_.row(name, side, side);
            case 1:
                return file_.row(name, -infinity, side);
            case 2:
                return file_.row(name, side, infinity);
            default:
                return file_.row(name, side, side + upTo(8) + 1);
        }
    }

    WrittenFile& file_;
    std::mt19937 random_;
};

void expectEqual(const ModelStore& read, const ModelStore& written) {
    const auto near = [](double left, double right) { return std::abs(left - right) <= 1e-9 * (1 + std::abs(right)); };
    ASSERT_EQ(read.columnCount(), written.columnCount());
    ASSERT_EQ(read.rowCount(), written.rowCount());
    for (std::int32_t i = 0; i < written.columnCount(); ++i) {
        // Columns come in the order in which a format first meets them.
        const ColumnRecord& expected = written.column(i);
        const std::int32_t found = read.findColumn(expected.name);
        ASSERT_GE(found, 0) << expected.name;
        const ColumnRecord& column = read.column(found);
        EXPECT_EQ(column.type, expected.type) << expected.name;
        EXPECT_TRUE(near(column.lowerBound, expected.lowerBound)) << expected.name;
        EXPECT_TRUE(near(column.upperBound, expected.upperBound)) << expected.name;
        EXPECT_TRUE(near(column.cost, expected.cost)) << expected.name;
        for (std::int32_t row = 1; row <= written.rowCount(); ++row) {
            const double here = read.nonzeroAt(found + 1, row);
            const double there = written.nonzeroAt(i + 1, row);
            EXPECT_TRUE((here == 0) == (there == 0) && near(here, there)) << expected.name << ' ' << row;
        }
    }
    for (std::int32_t i = 0; i < written.rowCount(); ++i) {
        EXPECT_EQ(read.row(i).name, written.row(i).name);
        EXPECT_TRUE(near(read.row(i).lowerBound, written.row(i).lowerBound)) << written.row(i).name;
        EXPECT_TRUE(near(read.row(i).upperBound, written.row(i).upperBound)) << written.row(i).name;
    }
}

class RoundTrip : public testing::TestWithParam<TARQFileFormatType> {};

TEST_P(RoundTrip, RandomModelsComeBackAsTheyWere) {
    for (std::uint32_t seed = 1; seed <= 300 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        WrittenFile file;
        RandomModel(file, seed).build(GetParam() != Lindo);
        const std::string text = file.textIn(GetParam());
        MpsModel read;
        ASSERT_THAT(read.read(text, GetParam()), succeeds()) << text;
        expectEqual(read.modelStore, file.target.modelStore);
        if (HasFailure()) std::puts(text.c_str());
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, RoundTrip, testing::Values(MPS, Triplet, Lindo));

TEST(RoundTripOfTriplet, AnyNameAndNumberOfSixteenDigitsIsExact) {
    WrittenFile file;
    for (const double value : {0.1, 1.0 / 3, 1e-300, 12345678901234.5, -2.5e24}) {
        file.column(std::to_string(value) + " with blanks", value, infinity, value);
    }
    file.column("", -infinity, infinity);
    file.row("", -2, 5);
    file.row("r\xC3\xB6w", -infinity, 0);
    file.nonzero(1, 1, 1e-7);
    MpsModel read;
    ASSERT_THAT(read.read(file.textIn(Triplet), Triplet), succeeds());
    for (std::int32_t i = 0; i < read.modelStore.columnCount(); ++i) {
        EXPECT_EQ(read.modelStore.column(i).name, file.target.modelStore.column(i).name);
        EXPECT_NEAR(read.modelStore.column(i).cost, file.target.modelStore.column(i).cost,
                    1e-15 * std::abs(file.target.modelStore.column(i).cost));
    }
    EXPECT_EQ(read.modelStore.row(0).lowerBound, -2);
    EXPECT_EQ(read.modelStore.row(1).name, "r\xC3\xB6w");
    EXPECT_EQ(read.modelStore.row(1).upperBound, 0);
}

}  // namespace
}  // namespace tarq
