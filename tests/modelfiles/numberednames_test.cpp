// Names that count up are found by their digits, and no other name is taken for one of them.
#include "modelfiles/numberednames.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarq {
namespace {

constexpr std::int32_t absent = NumberedNames::absent;

struct Expectation {
    std::string_view name;
    std::int32_t position;
};

struct Series {
    std::string_view prefix;
    std::size_t leastDigits;
    int first;
    int length;
    std::vector<Expectation> found;
};

class NumberedNamesOf : public testing::TestWithParam<Series> {
protected:
    NumberedNamesOf() {
        for (int i = 0; i < GetParam().length; ++i) {
            std::string digits = std::to_string(GetParam().first + i);
            if (digits.size() < GetParam().leastDigits) digits.insert(0, GetParam().leastDigits - digits.size(), '0');
            EXPECT_EQ(names_.findOrAppend(FixedName(std::string(GetParam().prefix).append(digits)), true), i);
        }
    }

    NumberedNames names_;
};

TEST_P(NumberedNamesOf, AreFoundAndNoOthers) {
    for (const auto& [name, position] : GetParam().found) EXPECT_EQ(names_.find(FixedName(name)), position) << name;
}

const Series plain{"X",
                   1,
                   1,
                   120,
                   {{"X1", 0},
                    {"X9", 8},
                    {"X10", 9},
                    {"X120", 119},
                    {"X121", absent},
                    {"X0", absent},
                    {"X", absent},
                    {"X01", absent},
                    {"X010", absent},
                    {"Y1", absent},
                    {"XX1", absent},
                    {"1", absent},
                    {"X1A", absent},
                    {"X1:", absent},
                    {"X1/", absent},
                    {"", absent}}};
const Series padded{"C_",
                    2,
                    80,
                    40,
                    {{"C_80", 0},
                     {"C_99", 19},
                     {"C_100", 20},
                     {"C_119", 39},
                     {"C_120", absent},
                     {"C_79", absent},
                     {"C_081", absent},
                     {"C_8", absent}}};
const Series longest{"C", 7, 9'999'990, 10, {{"C9999990", 0}, {"C9999999", 9}, {"C0999999", absent}, {"C", absent}}};
INSTANTIATE_TEST_SUITE_P(Series, NumberedNamesOf, testing::Values(plain, padded, longest));

TEST(NumberedNames, GrowOnlyByTheNextOne) {
    NumberedNames names;
    EXPECT_EQ(names.findOrAppend(FixedName("COST"), true), absent);
    EXPECT_EQ(names.findOrAppend(FixedName("X5"), false), absent);
    EXPECT_EQ(names.findOrAppend(FixedName("X5"), true), 0);
    EXPECT_EQ(names.findOrAppend(FixedName("X7"), true), absent);
    EXPECT_EQ(names.findOrAppend(FixedName("X4"), true), absent);
    EXPECT_EQ(names.findOrAppend(FixedName("X6"), false), absent);
    EXPECT_EQ(names.findOrAppend(FixedName("X6"), true), 1);
    EXPECT_EQ(names.findOrAppend(FixedName("X5"), false), 0);
    EXPECT_EQ(names.count(), 2);
}

}  // namespace
}  // namespace tarq
