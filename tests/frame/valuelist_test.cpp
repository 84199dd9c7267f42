#include "tarq/frame/valuelist.h"

#include <gtest/gtest.h>

#include "tests/frame/variantmatchers.h"

namespace tarq {
namespace {

TEST(ValueListTest, LengthFollowsTheBounds) {
    ValueList list;
    EXPECT_EQ(list.length(), 0U);
    EXPECT_EQ(ValueList::create(-2, 1, list), status::ok);
    EXPECT_EQ(list.length(), 4U);
    EXPECT_EQ(list.upperBound(), 1);
    EXPECT_EQ(ValueList::create(5, 3, list), status::invalidArgument);
    EXPECT_EQ(list.length(), 4U);
    EXPECT_EQ(ValueList::create(5, 4, list), status::ok);
    EXPECT_EQ(list.length(), 0U);
    EXPECT_EQ(list.at(5), nullptr);
}

TEST(ValueListTest, ValuesAreFoundFromTheCallersLowerBound) {
    ValueList list({Variant("a"), Variant(2)}, 7);
    EXPECT_EQ(list.put(8, Variant("b")), status::ok);
    EXPECT_EQ(list.put(9, Variant("c")), status::indexOutOfRange);
    EXPECT_EQ(list.append(Variant("c")), status::ok);
    EXPECT_THAT(*list.at(9), isVariant(Variant("c")));
    EXPECT_EQ(list.at(6), nullptr);
    EXPECT_EQ(list.at(10), nullptr);
    std::string walked;
    for (const Variant& value : list.walk()) walked += value.text();
    EXPECT_EQ(walked, "abc");
}

TEST(ValueListTest, WalkLocksTheList) {
    ValueList list({Variant(1)});
    {
        const ValueList::Walk walk = list.walk();
        EXPECT_EQ(list.append(Variant(2)), status::wrongState);
        EXPECT_EQ(list.put(0, Variant(2)), status::wrongState);
        ValueList copy = list;
        EXPECT_EQ(copy.append(Variant(2)), status::ok);
    }
    EXPECT_EQ(list.append(Variant(2)), status::ok);
}

}  // namespace
}  // namespace tarq
