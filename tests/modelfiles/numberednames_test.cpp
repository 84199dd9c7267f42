// Names that count up are found by their digits, and no other name is taken for one of them.
#include "modelfiles/numberednames.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tarq {
namespace {

constexpr std::int32_t absent = NumberedNames::absent;

TEST(NumberedNames, AreFoundAndNoOthers) {
    const struct {
        std::string prefix;
        std::size_t leastDigits;
        int first;
        int length;
        std::vector<std::pair<const char*, std::int32_t>> found;
        std::vector<const char*> missed;
    } cases[] = {
        {"X",
         1,
         1,
         120,
         {{"X1", 0}, {"X9", 8}, {"X10", 9}, {"X120", 119}},
         {"X121", "X0", "X", "X01", "X010", "Y1", "XX1", "1", "X1A", "X1:", "X1/", ""}},
        {"C_", 2, 80, 40, {{"C_80", 0}, {"C_99", 19}, {"C_100", 20}, {"C_119", 39}}, {"C_120", "C_79", "C_081", "C_8"}},
        {"C", 7, 9'999'990, 10, {{"C9999990", 0}, {"C9999999", 9}}, {"C0999999", "C"}},
    };
    for (const auto& one : cases) {
        NumberedNames names;
        for (int i = 0; i < one.length; ++i) {
            std::string digits = std::to_string(one.first + i);
            if (digits.size() < one.leastDigits) digits.insert(0, one.leastDigits - digits.size(), '0');
            EXPECT_EQ(names.findOrAppend(FixedName(one.prefix + digits), true), i);
        }
        for (const auto& [name, position] : one.found) EXPECT_EQ(names.find(FixedName(name)), position) << name;
        for (const char* name : one.missed) EXPECT_EQ(names.find(FixedName(name)), absent) << name;
    }
}

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
