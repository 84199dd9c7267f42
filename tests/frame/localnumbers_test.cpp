#include "frame/localnumbers.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>

namespace tarq {
namespace {

struct UserLocale {
    const char* name;
    NumberMarks marks;
};

const UserLocale locales[] = {
    {"C", {".", ""}},           {"English", {".", ","}},           {"German", {",", "."}}, {"French", {",", "\u202f"}},
    {"Swiss", {".", "\u2019"}}, {"Persian", {"\u066b", "\u066c"}},
};

TEST(LocalNumbersTest, NumbersReadTheSameInEveryLocale) {
    struct {
        const char* text;
        double real;
    } const cases[] = {
        {"1.5", 1.5},  {"1,5", 15},     {"15", 15},     {" \t-15 ", -15}, {"+.5", 0.5},
        {"1e3", 1000}, {"1.5E-1", .15}, {"1,0,0", 100}, {"0", 0},         {"1e-400", 0},
    };
    for (const UserLocale& locale : locales) {
        for (const auto& row : cases) {
            double value = -99;
            const bool twoCommas = std::string_view(row.text) == "1,0,0";
            const bool passes = readGatedReal(row.text, locale.marks, value);
            EXPECT_EQ(passes, !(twoCommas && locale.marks.decimal == ",")) << locale.name << ": " << row.text;
            EXPECT_EQ(value, passes ? row.real : -99) << locale.name << ": " << row.text;
        }
    }
}

TEST(LocalNumbersTest, WhatIsNoEnglishNumberIsNoneInAnyLocale) {
    for (const UserLocale& locale : locales) {
        for (const char* text :
             {"",      " ",     "-",    ".",   ",",     "e5",  "1e",     "1e+",        "1.2.3", "1.5,0",
              "1e5,0", "1 000", "- 1",  "--1", "+-1",   "1-",  "(1)",    "$1",         "1%",    "inf",
              "nan",   "0x1F",  "&H1F", "1d5", "1e400", "12a", "\u0661", "1\u202f000", "1e5.0", "1e1e1"}) {
            double value = -99;
            EXPECT_FALSE(readGatedReal(text, locale.marks, value)) << locale.name << ": " << text;
            EXPECT_EQ(value, -99);
        }
        EXPECT_FALSE([&] {
            double value = 0;
            return readGatedReal(std::string_view("1\0", 2), locale.marks, value);
        }());
    }
}

TEST(LocalNumbersTest, SecondGateRefusesWhatTheUsersLocaleCantRead) {
    const NumberMarks german{",", "."};
    double real = 0;
    std::int32_t integer = 0;
    EXPECT_FALSE(readGatedReal("1,234.5", german, real));
    EXPECT_FALSE(readGatedReal("1.5e308", german, real)) << "15e308 for the user";
    EXPECT_TRUE(readGatedReal("1.5e308", NumberMarks{}, real));
    EXPECT_FALSE(readGatedInteger("2000000000.5", german, integer)) << "20000000005 for the user";
    EXPECT_TRUE(readGatedInteger("2000000000.5", NumberMarks{}, integer));
    EXPECT_EQ(integer, 2000000000);
}

TEST(LocalNumbersTest, MarksOfTheLocaleItselfAreRead) {
    double value = 0;
    EXPECT_TRUE(readLocalReal("1\u202f234,5", NumberMarks{",", "\u202f"}, value));
    EXPECT_EQ(value, 1234.5);
    EXPECT_TRUE(readLocalReal("1\u066c234\u066b5", NumberMarks{"\u066b", "\u066c"}, value));
    EXPECT_EQ(value, 1234.5);
}

TEST(LocalNumbersTest, RealsShowFifteenDigitsAndTheUsersMark) {
    const NumberMarks comma{",", "."};
    struct {
        double value;
        const char* text;
    } const cases[] = {
        {7, "7"},
        {2.5, "2,5"},
        {0.1, "0,1"},
        {1e20, "1E+20"},
        {1e14, "100000000000000"},
        {1e15, "1E+15"},
        {0.0001, "0,0001"},
        {0.00001, "1E-05"},
        {1.0 / 3, "0,333333333333333"},
        {-0.0, "0"},
        {0.1 + 0.2, "0,3"},
        {-1.5e-7, "-1,5E-07"},
    };
    for (const auto& row : cases) EXPECT_EQ(displayReal(row.value, 15, comma), row.text);
}

TEST(LocalNumbersTest, FixedPointNumbersShowTheDigitsThatCount) {
    const NumberMarks marks{".", ""};
    EXPECT_EQ(displayCurrency(Currency{5}, marks), "0.0005");
    EXPECT_EQ(displayCurrency(Currency{-120000}, marks), "-12");
    EXPECT_EQ(displayCurrency(Currency{std::numeric_limits<std::int64_t>::min()}, marks), "-922337203685477.5808");
    EXPECT_EQ(displayDecimal({0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 28, false}, marks), "7.9228162514264337593543950335");
    EXPECT_EQ(displayDecimal({0, 0, 0, 3, true}, marks), "0");
    EXPECT_EQ(displayDecimal({1500, 0, 0, 3, true}, marks), "-1.5");
    EXPECT_EQ(displayDecimal({1'000'000'000, 0, 0, 0, false}, marks), "1000000000");
}

TEST(LocalNumbersTest, DatesShowDateAndTimeWhereTheyAreNotZero) {
    struct {
        double days;
        std::optional<std::string> text;
    } const cases[] = {
        {0, "00:00:00"},
        {0.5, "12:00:00"},
        {1, "1899-12-31"},
        {-1.25, "1899-12-29 06:00:00"},
        {45351.999999, "2024-03-01"},
        {-657434, "0100-01-01"},
        {2958465.5, "9999-12-31 12:00:00"},
        {-657435, std::nullopt},
        {2958466, std::nullopt},
        {std::numeric_limits<double>::quiet_NaN(), std::nullopt},
    };
    for (const auto& row : cases) {
        std::string text;
        EXPECT_EQ(displayDate(row.days, text), row.text.has_value()) << row.days;
        EXPECT_EQ(text, row.text.value_or(""));
    }
}

}  // namespace
}  // namespace tarq
