#include "frame/text.h"

#include <gtest/gtest.h>

namespace tarq {
namespace {

TEST(TextTest, LengthCountsUtf16UnitsAndEachStrayByteOnce) {
    struct {
        std::string_view text;
        std::size_t length;
    } const cases[] = {
        {"", 0},
        {"abc", 3},
        {"\u00e9\u20ac", 2},
        {"\U0001F600", 2},
        {"\xED\x9F\xBF\xEE\x80\x80", 2},
        {"\xE2\x82", 2},
        {"\x80\xFF", 2},
        {"\xC0\x80", 2},
        {"\xE0\x9F\xBF", 3},
        {"\xED\xA0\x80", 3},
        {"\xF0\x8F\xBF\xBF", 4},
        {"\xF4\x90\x80\x80", 4},
    };
    for (const auto& row : cases) EXPECT_EQ(utf16Length(row.text), row.length) << row.text;
}

TEST(TextTest, StrayBytesBecomeReplacementCharacters) {
    EXPECT_EQ(wellFormedText("a\u20ac\U0001F600"), "a\u20ac\U0001F600");
    EXPECT_EQ(wellFormedText("\xFF"
                             "a\xE2\x82"
                             "b\xC3"),
              "\uFFFDa\uFFFD\uFFFDb\uFFFD");
}

TEST(TextTest, CaseOfAsciiLettersAloneIsForgiven) {
    EXPECT_TRUE(equalWithoutCase("tarq.TARQModel", "TARQ.tarqmodel"));
    EXPECT_FALSE(equalWithoutCase("model", "models"));
    EXPECT_FALSE(equalWithoutCase("@[`{", "`{@["));
    EXPECT_FALSE(equalWithoutCase("\u00c4", "\u00e4"));
}

}  // namespace
}  // namespace tarq
