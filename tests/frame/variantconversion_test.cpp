// The conversions of Variant. They run under the user's locale of the test, so texts and reals here read the same in
// every locale; what marks do is tested with localnumbers.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "frame/convertelement.h"
#include "frame/localnumbers.h"
#include "tarq/frame/safearray.h"
#include "tarq/frame/variant.h"
#include "tests/frame/variantmatchers.h"

namespace tarq {
namespace {

using Convert = bool (Variant::*)();

/// Checks a conversion: Empty as the expected value means that it fails and leaves the value as it is.
void expectConversion(const Variant& source, Convert convert, const Variant& expected) {
    Variant value = source;
    const bool converted = (value.*convert)();
    EXPECT_EQ(converted, !expected.isEmpty()) << testing::PrintToString(source);
    EXPECT_THAT(value, isVariant(converted ? expected : source));
}

const Variant fails;

TEST(VariantConversionTest, NumbersOfEveryKindBecomeRealsAndIntegers) {
    constexpr std::int64_t big = 3'000'000'000;
    const Decimal tooLarge{0, 0, 0xFFFFFFFF, 0, true};
    struct {
        Variant source;
        Variant real;
        Variant integer;
    } const cases[] = {
        {Variant(), Variant(0.0), Variant(0)},
        {Variant(std::int16_t{-2}), Variant(-2.0), Variant(-2)},
        {Variant(7), Variant(7.0), Variant(7)},
        {Variant(0.1F), Variant(static_cast<double>(0.1F)), Variant(0)},
        {Variant(2.5), Variant(2.5), Variant(2)},
        {Variant(3.5), Variant(3.5), Variant(4)},
        {Variant(2147483647.5), Variant(2147483647.5), fails},
        {Variant(2147483647.4), Variant(2147483647.4), Variant(2147483647)},
        {Variant(-2147483648.5), Variant(-2147483648.5), Variant(std::numeric_limits<std::int32_t>::min())},
        {Variant(1e300), Variant(1e300), fails},
        {Variant(Currency{-25000}), Variant(-2.5), Variant(-2)},
        {Variant::date(36526.75), Variant(36526.75), Variant(36527)},
        {Variant(true), Variant(-1.0), Variant(-1)},
        {Variant(Decimal{12345, 0, 0, 2, true}), Variant(-123.45), Variant(-123)},
        {Variant(tooLarge), Variant(-79228162495817593519834398720.0), fails},
        {Variant::integerOf(Kind::Int8, -128), Variant(-128.0), Variant(-128)},
        {Variant::integerOf(Kind::UInt8, 255), Variant(255.0), Variant(255)},
        {Variant::integerOf(Kind::UInt16, 65535), Variant(65535.0), Variant(65535)},
        {Variant::integerOf(Kind::UInt32, big), Variant(3e9), fails},
        {Variant(big), Variant(3e9), fails},
        {Variant::integerOf(Kind::Int, -5), Variant(-5.0), Variant(-5)},
        {Variant::integerOf(Kind::UInt, big), Variant(3e9), fails},
        {Variant("12"), Variant(12.0), Variant(12)},
        {Variant("1,5"), Variant(15.0), Variant(15)},
        {Variant("1.5"), Variant(1.5), Variant(2)},
        {Variant(""), fails, fails},
        {Variant("x"), fails, fails},
        {Variant::null(), fails, fails},
        {Variant(Ref<IUnknown>(nullptr)), fails, fails},
        {Variant(SafeArray::of(std::vector<double>{1})), fails, fails},
        {Variant::narrowPointer("1"), fails, fails},
    };
    for (const auto& row : cases) {
        expectConversion(row.source, &Variant::toReal, row.real);
        expectConversion(row.source, &Variant::toInteger, row.integer);
    }
}

TEST(VariantConversionTest, ValuesShowAsText) {
    const std::string mark = userNumberMarks().decimal;
    struct {
        Variant source;
        Variant text;
    } const cases[] = {
        {Variant(-7), Variant("-7")},
        {Variant(2.5), Variant("2" + mark + "5")},
        {Variant(0.1F), Variant("0" + mark + "1")},
        {Variant(true), Variant("-1")},
        {Variant(std::numeric_limits<std::int64_t>::min()), Variant("-9223372036854775808")},
        {Variant(Currency{-12500}), Variant("-1" + mark + "25")},
        {Variant(Decimal{0, 0, 1, 0, false}), Variant("18446744073709551616")},
        {Variant::date(45351.5), Variant("2024-02-29 12:00:00")},
        {Variant("as it is"), Variant("as it is")},
        {Variant(), Variant("")},
        {Variant::null(), fails},
        {Variant::missing(), fails},
        {Variant(Ref<IUnknown>(nullptr)), fails},
        {Variant::widePointer(u"x"), fails},
        {Variant::date(1e9), fails},
    };
    for (const auto& row : cases) expectConversion(row.source, &Variant::toText, row.text);
}

TEST(VariantConversionTest, NormalizedValuesAreTextIntegersOrReals) {
    struct {
        Variant source;
        Variant expected;
    } const cases[] = {
        {Variant("3"), Variant("3")},
        {Variant(std::int16_t{3}), Variant(3)},
        {Variant(3), Variant(3)},
        {Variant::integerOf(Kind::Int8, -1), Variant(-1)},
        {Variant::integerOf(Kind::UInt8, 255), Variant(255)},
        {Variant::integerOf(Kind::UInt16, 65535), Variant(65535)},
        {Variant::integerOf(Kind::Int, 3), Variant(3)},
        {Variant::integerOf(Kind::UInt, 3), Variant(3)},
        {Variant::integerOf(Kind::UInt, 4294967295), fails},
        {Variant::integerOf(Kind::UInt32, 3), fails},
        {Variant(std::int64_t{3}), fails},
        {Variant(3.0), Variant(3)},
        {Variant(-2147483648.0), Variant(std::numeric_limits<std::int32_t>::min())},
        {Variant(3.5), Variant(3.5)},
        {Variant(3.0F), Variant(3.0)},
        {Variant(true), fails},
        {Variant(), fails},
        {Variant::null(), fails},
        {Variant(Currency{30000}), fails},
        {Variant::missing(), fails},
    };
    for (const auto& row : cases) expectConversion(row.source, &Variant::normalizeValue, row.expected);
    Variant notANumber(std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(notANumber.normalizeValue());
    EXPECT_TRUE(notANumber.is(Kind::Double));
}

TEST(VariantConversionTest, ConversionsFollowReferencesAndLeaveTheCallersValue) {
    std::string text = "12";
    bool truth = true;
    Variant inner = Variant::byReference(text);
    Variant loop;
    loop = Variant::byReference(loop);
    expectConversion(Variant::byReference(text), &Variant::toReal, Variant(12.0));
    expectConversion(Variant::byReference(inner), &Variant::toInteger, Variant(12));
    expectConversion(Variant::byReference(truth), &Variant::toText, Variant("-1"));
    expectConversion(Variant::byReference(loop), &Variant::toText, fails);
    expectConversion(Variant::byReference(text), &Variant::normalizeValue, fails);
    EXPECT_EQ(text, "12");
}

TEST(ConvertElementTest, EachTargetConvertsOrSaysWhatItWanted) {
    const char* const any = "Value cannot be converted to string or numeric.";
    const char* const integer = "Value cound not be converted to integer.";
    const char* const numeric = "Value cound not be converted to numeric.";
    const char* const string = "Value cound not be converted to string.";
    struct {
        Variant source;
        Kind target;
        Variant expected;
        const char* message;
    } const cases[] = {
        {Variant(3.0), Kind::Empty, Variant(3), ""},
        {Variant::missing(), Kind::Empty, fails, any},
        {Variant(), Kind::Empty, fails, any},
        {Variant(2.5), Kind::Long, Variant(2), ""},
        {Variant::missing(), Kind::Long, Variant(0), ""},
        {Variant("a"), Kind::Long, fails, integer},
        {Variant("12"), Kind::Double, Variant(12.0), ""},
        {Variant::missing(), Kind::Double, Variant(0.0), ""},
        {Variant("a"), Kind::Double, fails, numeric},
        {Variant(7), Kind::Text, Variant("7"), ""},
        {Variant::missing(), Kind::Text, Variant(""), ""},
        {Variant::null(), Kind::Text, fails, string},
        {Variant::null(), Kind::Object, Variant::null(), ""},
        {Variant::missing(), Kind::Bool, Variant::missing(), ""},
    };
    for (const auto& row : cases) {
        std::vector<Variant> list{Variant("before")};
        std::string message;
        const bool converted = convertElement(row.source, row.target, list, message);
        EXPECT_EQ(message, row.message);
        EXPECT_EQ(converted, message.empty());
        ASSERT_EQ(list.size(), converted ? 2U : 1U);
        EXPECT_THAT(list.back(), isVariant(converted ? row.expected : Variant("before")));
    }
}

}  // namespace
}  // namespace tarq
