#include "tarq/frame/safearray.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "tests/frame/variantmatchers.h"

namespace tarq {
namespace {

using Indices = std::vector<std::int32_t>;

SafeArray makeArray(Kind kind, const std::vector<Dimension>& dimensions) {
    SafeArray array;
    EXPECT_EQ(SafeArray::create(kind, dimensions, array), status::ok);
    return array;
}

TEST(SafeArrayTest, LastIndexRunsFastestWithinFreeBounds) {
    SafeArray array = makeArray(Kind::Double, {{-1, 2}, {5, 3}});
    double next = 0;
    for (std::int32_t row = -1; row <= 0; ++row) {
        for (std::int32_t column = 5; column <= 7; ++column) {
            EXPECT_EQ(array.put(Indices{row, column}, Variant(next++)), status::ok);
        }
    }
    const auto elements = array.elements<double>();
    EXPECT_EQ(std::vector<double>(elements.begin(), elements.end()), (std::vector<double>{0, 1, 2, 3, 4, 5}));
    Variant element;
    EXPECT_EQ(array.get(Indices{0, 6}, element), status::ok);
    EXPECT_THAT(element, isVariant(Variant(4.0)));
    EXPECT_TRUE(array.elements<float>().empty());
}

TEST(SafeArrayTest, IndicesOutsideOfTheBoundsAreRefused) {
    SafeArray array = makeArray(Kind::Long, {{-1, 2}, {5, 3}});
    const std::vector<Indices> wrong{{}, {0}, {0, 5, 0}, {-2, 5}, {1, 5}, {0, 4}, {0, 8}, {INT32_MIN, INT32_MAX}};
    for (const Indices& indices : wrong) {
        Variant element("before");
        EXPECT_EQ(array.get(indices, element), status::indexOutOfRange);
        EXPECT_THAT(element, isVariant(Variant("before")));
        EXPECT_EQ(array.put(indices, Variant(1)), status::indexOutOfRange);
    }
    Variant element;
    EXPECT_EQ(array.getAt(6, element), status::indexOutOfRange);
    EXPECT_EQ(makeArray(Kind::Long, {{0, 3}, {0, 0}}).get(Indices{0, 0}, element), status::indexOutOfRange);
    EXPECT_EQ(SafeArray().get({}, element), status::indexOutOfRange);
}

TEST(SafeArrayTest, ElementsOfEveryKindComeBackAsTheyWerePut) {
    const Variant samples[] = {
        Variant(std::int16_t{-2}),
        Variant(3),
        Variant(0.5F),
        Variant(0.25),
        Variant(Currency{15000}),
        Variant::date(1.5),
        Variant("text"),
        Variant(Ref<IUnknown>(nullptr)),
        Variant::missing(),
        Variant(true),
        Variant::integerOf(Kind::Int8, -3),
        Variant::integerOf(Kind::UInt8, 200),
        Variant::integerOf(Kind::UInt16, 60000),
        Variant::integerOf(Kind::UInt32, 4000000000),
        Variant(std::int64_t{1} << 40),
        Variant::integerOf(Kind::Int, -3),
        Variant::integerOf(Kind::UInt, 4000000000),
    };
    for (const Variant& sample : samples) {
        SafeArray typed = makeArray(sample.kind(), {{1, 2}});
        SafeArray variants = makeArray(Kind::Variant, {{1, 2}});
        for (SafeArray* array : {&typed, &variants}) {
            Variant element;
            EXPECT_EQ(array->putAt(1, sample), status::ok);
            EXPECT_EQ(array->get(Indices{2}, element), status::ok);
            EXPECT_THAT(element, isVariant(sample));
            const SafeArray copy(*array);
            EXPECT_EQ(copy.getAt(1, element), status::ok);
            EXPECT_THAT(element, isVariant(sample));
        }
        Variant fresh;
        EXPECT_EQ(typed.getAt(0, fresh), status::ok);
        EXPECT_TRUE(fresh.is(sample.kind()));
        EXPECT_EQ(typed.putAt(0, Variant::null()), status::wrongKind);
    }
}

TEST(SafeArrayTest, ImpossibleArraysAreRefusedAndLeaveTheOldOne) {
    SafeArray array = makeArray(Kind::Long, {{0, 2}});
    const auto create = [&array](Kind kind, std::vector<Dimension> dimensions) {
        return SafeArray::create(kind, dimensions, array);
    };
    EXPECT_EQ(create(Kind::Null, {{0, 1}}), status::wrongKind);
    EXPECT_EQ(create(Kind::Decimal, {{0, 1}}), status::wrongKind);
    EXPECT_EQ(create(Kind::Long, {{INT32_MAX, 2}}), status::invalidArgument);
    EXPECT_EQ(create(Kind::Long, {{INT32_MIN, 0}}), status::invalidArgument);
    EXPECT_EQ(create(Kind::Double, std::vector<Dimension>(4, {0, 2'000'000'000})), status::outOfMemory);
    EXPECT_EQ(array.elementCount(), 2U);
    EXPECT_EQ(create(Kind::Double, {{0, 2'000'000'000}, {0, 2'000'000'000}, {0, 2'000'000'000}, {0, 0}}), status::ok);
    EXPECT_EQ(array.elementCount(), 0U);
}

TEST(SafeArrayTest, LockedArrayKeepsItsBoundsAndContent) {
    SafeArray array = SafeArray::of(std::vector<std::string>{"a", "b"}, 1);
    const std::array<Dimension, 1> larger{Dimension{0, 5}};
    {
        const SafeArrayLock outer(array);
        const SafeArrayLock inner(array);
        EXPECT_EQ(array.lockCount(), 2U);
        EXPECT_EQ(array.redimension(larger), status::wrongState);
        EXPECT_EQ(array.clear(), status::wrongState);
        EXPECT_EQ(SafeArray(array).lockCount(), 0U);
        EXPECT_EQ(array.elements<std::string>()[1], "b");
    }
    EXPECT_EQ(array.redimension(larger), status::ok);
    EXPECT_EQ(array.elements<std::string>().size(), 5U);
    EXPECT_EQ(array.elements<std::string>()[0], "");
    EXPECT_EQ(array.elementKind(), Kind::Text);
    EXPECT_EQ(array.clear(), status::ok);
    EXPECT_TRUE(array.dimensions().empty());
}

}  // namespace
}  // namespace tarq
