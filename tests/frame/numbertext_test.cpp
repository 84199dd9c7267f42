#include "frame/numbertext.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace tarq {
namespace {

std::string printed(const char* format, double value) {
    std::array<char, 64> buffer{};
    std::snprintf(buffer.data(), buffer.size(), format, value);
    return buffer.data();
}

std::vector<std::string> words(const std::string& line) {
    std::istringstream all(line);
    return {std::istream_iterator<std::string>(all), {}};
}

/// Any finite double, all exponents alike.
double anyReal(std::mt19937_64& random) {
    double value = 0;
    do {
        value = std::bit_cast<double>(random());
    } while (!std::isfinite(value));
    return value;
}

TEST(NumberTextTest, RealsPrintAsPrintfDoes) {
    std::mt19937_64 random(1);
    std::vector<double> values{0,    -0.0, 1,      -1,      0.1,   1e15, 1e16, 123456789012345680,
                               1e20, 1e25, 0.0001, 0.00001, 5e-324};
    for (int i = 0; i < 20000; ++i) values.push_back(anyReal(random));
    for (int i = 0; i < 20000; ++i) values.push_back(static_cast<double>(random() % 2000000) / 1000);
    values.push_back(HUGE_VAL);
    for (const double value : values) EXPECT_EQ(realText(value), printed("%.16g", value));
}

TEST(NumberTextTest, RealsReadAsTheNearestDouble) {
    std::mt19937_64 random(2);
    std::vector<std::string> texts = words(
        "0 -0 +1.5 5. .5 -.5e1 1E5 1e+05 1e-05 000000000000000000000000012 1e22 1e23 9007199254740993 "
        "9007199254740992e22 0.1e-22 4.9e-324 2.4e-324 1e-400 -1e400 1e308 1.8e308 0e99999999999 1e99999999999 "
        "1e-99999999999 18446744073709551617 99999999999999999999e-5 2.2250738585072011e-308 "
        "179769313486231580793728971405301e276");
    texts.push_back("0." + std::string(400, '0') + "1e401");
    texts.push_back("1" + std::string(400, '0') + "e-400");
    texts.push_back("1" + std::string(400, '0'));
    texts.push_back("-0." + std::string(400, '0') + "1");
    for (int i = 0; i < 20000; ++i) texts.push_back(printed(i % 2 == 0 ? "%.17g" : "%.6g", anyReal(random)));
    for (int i = 0; i < 20000; ++i) texts.push_back(printed("%.4f", static_cast<double>(random() % 100000000) / 999));
    for (const std::string& text : texts) {
        double value = 99;
        EXPECT_TRUE(parseReal(text, value)) << text;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(std::strtod(text.c_str(), nullptr)))
            << text;
    }
}

TEST(NumberTextTest, OtherTextsAreNoReals) {
    for (const std::string_view text : {std::string_view(), std::string_view("1\0", 2)}) {
        double value = 99;
        EXPECT_FALSE(parseReal(text, value));
    }
    std::vector<std::string> texts =
        words("+ - . -. e5 .e5 1e 1e+ 1e5. 1e5e5 1.2.3 --1 +-1 1,5 inf -inf infinity nan 0x10 1x 1d5 \xc2\xb2");
    for (const char* const blank : {" 1", "1 "}) texts.emplace_back(blank);
    for (const std::string& text : texts) {
        double value = 99;
        EXPECT_FALSE(parseReal(text, value)) << text;
        EXPECT_EQ(value, 99);
    }
}

TEST(NumberTextTest, IntegersAreWholeTextsHeldWithin32Bits) {
    struct {
        const char* text;
        std::int32_t value;
    } const good[] = {{"0", 0},
                      {"-12", -12},
                      {"+7", 7},
                      {"2147483647", 2147483647},
                      {"-2147483648", INT32_MIN},
                      {"007", 7},
                      {"2147483648", INT32_MAX},
                      {"-2147483649", INT32_MIN},
                      {"+99999999999999999999", INT32_MAX}};
    for (const auto& row : good) {
        std::int32_t value = 99;
        EXPECT_TRUE(parseInteger(row.text, value)) << row.text;
        EXPECT_EQ(value, row.value);
    }
    for (const char* text : {"", "+", "-", "+-1", "--1", " 1", "1 ", "1.", "1e2", "0x1", "99999999999x"}) {
        std::int32_t value = 99;
        EXPECT_FALSE(parseInteger(text, value)) << text;
        EXPECT_EQ(value, 99);
    }
}

}  // namespace
}  // namespace tarq
