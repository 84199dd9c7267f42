#include "tarq/frame/variant.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "tarq/frame/countedobject.h"
#include "tarq/frame/safearray.h"
#include "tests/frame/variantmatchers.h"

namespace tarq {
namespace {

/// An object that tells how many of its kind live.
class Probe final : public CountedObject<Probe, IUnknown> {
public:
    Probe() { ++living; }
    ~Probe() { --living; }
    static inline int living = 0;
};

struct KindCase {
    Variant value;
    std::uint16_t code;
    bool isScalar;
};

std::vector<KindCase> casesOfAllKinds() {
    static std::int32_t referenced = 5;
    static SafeArray array;
    return {
        {Variant(), 0, true},
        {Variant::null(), 1, false},
        {Variant(std::int16_t{-2}), 2, true},
        {Variant(-2), 3, true},
        {Variant(0.5F), 4, true},
        {Variant(0.5), 5, true},
        {Variant(Currency{15000}), 6, true},
        {Variant::date(1.5), 7, true},
        {Variant("text"), 8, true},
        {Variant(Ref<IUnknown>(nullptr)), 9, false},
        {Variant::error(7), 10, false},
        {Variant::missing(), 10, false},
        {Variant(true), 11, true},
        {Variant(Decimal{15, 0, 0, 1, false}), 14, true},
        {Variant::integerOf(Kind::Int8, -3), 16, true},
        {Variant::integerOf(Kind::UInt8, 3), 17, true},
        {Variant::integerOf(Kind::UInt16, 3), 18, true},
        {Variant::integerOf(Kind::UInt32, 3), 19, true},
        {Variant(std::int64_t{1} << 40), 20, true},
        {Variant::integerOf(Kind::Int, -3), 22, true},
        {Variant::integerOf(Kind::UInt, 3), 23, false},
        {Variant::narrowPointer("n"), 30, true},
        {Variant::widePointer(u"w"), 31, true},
        {Variant(SafeArray::of(std::vector<double>{1, 2})), 0x2005, false},
        {Variant::byReference(referenced), 0x4003, false},
        {Variant::byReference(array), 0x600C, false},
    };
}

TEST(VariantTest, EveryKindHasItsCodeAndCopiesWhole) {
    for (const KindCase& row : casesOfAllKinds()) {
        EXPECT_EQ(row.value.code(), row.code);
        EXPECT_EQ(row.value.isScalarKind(), row.isScalar) << row.code;
        EXPECT_EQ(row.value.isText(), row.code == 8);
        EXPECT_EQ(row.value.isRealKind(), row.code == 4 || row.code == 5);
        Variant copy(row.value);
        EXPECT_THAT(copy, isVariant(row.value));
        const Variant moved(std::move(copy));
        EXPECT_THAT(moved, isVariant(row.value));
        EXPECT_TRUE(copy.isEmpty());  // NOLINT: what a move leaves behind is promised
    }
}

TEST(VariantTest, KindLiesInTheFirstTwoBytesAndThePayloadInTheLastEight) {
    const Variant value(2.5);
    std::uint16_t code = 0;
    double payload = 0;
    std::memcpy(&code, &value, sizeof code);
    std::memcpy(&payload, reinterpret_cast<const char*>(&value) + 8, sizeof payload);
    EXPECT_EQ(code, 5);
    EXPECT_EQ(payload, 2.5);
}

TEST(VariantTest, CopiesOwnTheirTextsAndArrays) {
    Variant array(SafeArray::of(std::vector<double>{1, 2}));
    Variant copy = array;
    copy.array().elements<double>()[0] = 9;
    EXPECT_EQ(array.array().elements<double>()[0], 1);
    Variant text("a text that is too long to lie inside of its string object");
    copy = text;
    EXPECT_EQ(text.takeText(), copy.text());
    EXPECT_TRUE(text.isEmpty());
    Variant& alias = copy;
    copy = alias;
    EXPECT_TRUE(copy.text().starts_with("a text"));
}

TEST(VariantTest, ObjectsAreCounted) {
    {
        Variant first{Ref<IUnknown>(new Probe)};  // NOLINT: the reference owns it
        Variant second = first;
        std::vector<Variant> many(10, second);
        first = Variant(1);
        second = std::move(many[3]);
        EXPECT_EQ(Probe::living, 1);
        Ref<IUnknown> reference(second.object());
        const Variant resolved = Variant::byReference(reference).copyDereferenced();
        EXPECT_EQ(resolved.object(), reference.get());
    }
    EXPECT_EQ(Probe::living, 0);
}

TEST(VariantTest, CopyDereferencedResolvesOneLevel) {
    Variant inner("inner");
    std::int32_t integer = 3;
    double real = 0.5;
    std::string text = "t";
    float single = 0.25F;
    std::uint8_t byte = 200;
    std::int16_t shortInteger = -7;
    Variant nested = Variant::byReference(real);
    struct {
        Variant reference;
        Variant expected;
    } const cases[] = {
        {Variant::byReference(inner), Variant("inner")},
        {Variant::byReference(integer), Variant(3)},
        {Variant::byReference(real), Variant(0.5)},
        {Variant::byReference(text), Variant("t")},
        {Variant::byReference(single), Variant(0.25F)},
        {Variant::byReference(byte), Variant::integerOf(Kind::UInt8, 200)},
        {Variant::byReference(shortInteger), Variant(std::int16_t{-7})},
        {Variant::byReference(nested), Variant::byReference(real)},
        {Variant("plain"), Variant("plain")},
    };
    for (const auto& row : cases) EXPECT_THAT(row.reference.copyDereferenced(), isVariant(row.expected));
}

TEST(VariantTest, ReferencesToArraysAndOtherKindsStayReferences) {
    SafeArray array = SafeArray::of(std::vector<std::int32_t>{1});
    bool truth = true;
    EXPECT_EQ(Variant::byReference(array).copyDereferenced().code(), 0x6003);
    EXPECT_EQ(Variant::byReference(truth).copyDereferenced().code(), 0x400B);
    Variant writable = Variant::byReference(truth);
    *writable.referenced<bool>() = false;
    EXPECT_FALSE(truth);
    EXPECT_EQ(writable.referenced<double>(), nullptr);
}

}  // namespace
}  // namespace tarq
