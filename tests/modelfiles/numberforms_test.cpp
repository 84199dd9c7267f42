// The forms of numbers, against printf in the C locale.
#include "modelfiles/numberforms.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>

namespace tarq {
namespace {

std::string printed(const char* form, double value) {
    std::array<char, 512> text;
    return {text.data(), static_cast<std::size_t>(std::snprintf(text.data(), text.size(), form, value))};
}

template <class Write, class Value>
std::string made(const Write& write, Value value) {
    std::array<char, longestNumberForm> text;
    return {text.data(), write(text.data(), value)};
}

std::string expectedPlain(double value) {
    std::string text = printed("%.11f", value);
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string expectedField(double value) {
    for (const char* form : {"%.11g", "%.5g"}) {
        if (const std::string text = printed(form, value); text.size() <= 12) return text;
    }
    return printed("%.3g", value);
}

void expectForms(double value) {
    if (value == 0.0) value = 0.0;
    EXPECT_EQ(made(writeRealToken, value), printed("%.16g", value) + " ");
    EXPECT_EQ(made(writeFixedFieldNumber, value), expectedField(value));
    if (!std::isfinite(value)) return;
    EXPECT_EQ(made(writePlainDecimal, value), expectedPlain(value));
}

TEST(NumberForms, ChosenValuesReadAsToldInEachForm) {
    struct {
        double value;
        const char* token;
        const char* field;
        const char* plain;
    } const cases[] = {
        {0.0, "0 ", "0", "0"},
        {-0.0, "0 ", "0", "0"},
        {1e25, "1e+25 ", "1e+25", "10000000000000000905969664"},
        {1e-12, "1e-12 ", "1e-12", "0"},
        {-1e-12, "-1e-12 ", "-1e-12", "0"},
        {1e-11, "9.999999999999999e-12 ", "1e-11", "0.00000000001"},
        {5e-324, "4.940656458412465e-324 ", "4.9407e-324", "0"},
        {1234567.12345678, "1234567.12345678 ", "1234567.1235", "1234567.12345678"},
        {-1234567.12345678, "-1234567.12345678 ", "-1.2346e+06", "-1234567.12345678"},
        {1e16, "1e+16 ", "1e+16", "10000000000000000"},
        {0.1 + 0.2, "0.3 ", "0.3", "0.3"},
        {-1.23456789e-300, "-1.23456789e-300 ", "-1.2346e-300", "0"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(made(writeRealToken, one.value), one.token);
        EXPECT_EQ(made(writeFixedFieldNumber, one.value), one.field);
        // Eleven digits behind the point show where 1234567.12345678 isn't one of a computer's numbers.
        if (std::string(one.plain).find(".12345678") == std::string::npos) {
            EXPECT_EQ(made(writePlainDecimal, one.value), one.plain);
        }
        expectForms(one.value);
    }
    EXPECT_EQ(made(writeIntegerToken, INT32_MIN), "-2147483648 ");
}

TEST(NumberForms, RandomValuesReadAsPrintfWritesThem) {
    std::mt19937_64 random(11);
    for (int turn = 0; turn < 100'000; ++turn) {
        expectForms(std::bit_cast<double>(random()));
        // Decimal numbers of all lengths, as models hold them.
        const auto digits = static_cast<double>(static_cast<std::int64_t>(random() >> (random() % 60)));
        expectForms(digits / std::pow(10.0, static_cast<double>(random() % 20)));
        expectForms(-digits * std::pow(10.0, static_cast<double>(random() % 8)));
        if (HasFailure()) break;
    }
}

}  // namespace
}  // namespace tarq
