// Arithmetic with the elements of a set.
#include <limits>

#include "tests/indexed/datafixture.h"

namespace tarq {
namespace {

constexpr Status textsLeft{0x0004200A};
constexpr const char* wrongType = "Parameter for value is of wrong type.";
constexpr const char* wrongLength = "Lengths of vectors do not fit.";

auto raisesInSet(Status status, const char* description) { return raisesAs(classid::TARQSet, status, description); }

using Operation = Status (ITARQSet::*)(const Variant& value);

struct Combination {
    ValueList elements;
    Variant operand;
    const char* sum;
    const char* product;
};

TEST(SetArithmeticTest, IntegersStayIntegersWhereTheyCanAndRealsStayReals) {
    const Variant vector(SafeArray::of(std::vector<double>{1, 0.5}, 4));
    const Combination cases[] = {
        {listOf(3, 2.5), Variant(2), "5 4.5r", "6 5r"},
        {listOf(3, 2.5), Variant(0.5), "3.5r 3r", "1.5r 1.25r"},
        {listOf(2000000000, 1), Variant(2000000000), "4000000000r 2000000001", "4E+18r 2000000000"},
        {listOf(3, 2.5), Variant("1.5"), "4.5r 4r", "4.5r 3.75r"},
        {listOf(3, 2.5), vector, "4 3r", "3 1.25r"},
        {listOf(3, 2.5), valueOf(newSet(listOf(2, "4"))), "5 6.5r", "6 10r"},
        {listOf(3, 2.5), valueOf(newSeries(0, 1)), "3 3.5r", "0 2.5r"},
        {listOf(), Variant(SafeArray::of(std::vector<double>{})), "", ""},
        {listOf(), Variant(1), "", ""},
    };
    for (const Combination& c : cases) {
        const Ref<ITARQSet> summed = newSet(c.elements);
        EXPECT_THAT(summed->Addition(c.operand), succeeds());
        EXPECT_EQ(shown(summed), c.sum);
        const Ref<ITARQSet> multiplied = newSet(c.elements);
        EXPECT_THAT(multiplied->Multiplication(c.operand), succeeds());
        EXPECT_EQ(shown(multiplied), c.product);
    }
}

TEST(SetArithmeticTest, RealThatBecameWholeIsNotTheInteger) {
    const Ref<ITARQSet> set = newSet(listOf(2.5));
    ASSERT_THAT(set->Addition(Variant(0.5)), succeeds());
    std::int32_t index = -1;
    ASSERT_THAT(set->get_Index(Variant(3), &index), succeeds());
    EXPECT_EQ(index, 0);
}

TEST(SetArithmeticTest, TextsStayAndTheStatusTellsOfThem) {
    const Ref<ITARQSet> set = newSet(listOf(1, "a", 2.5));
    EXPECT_THAT(set->Addition(Variant(1)), raisesInSet(textsLeft, "Addition faild for string elements of TARQSet."));
    EXPECT_EQ(shown(set), "2 'a' 3.5r");
    EXPECT_THAT(set->Multiplication(Variant(SafeArray::of(std::vector<double>{2, 2, 4}))),
                raisesInSet(textsLeft, "Multiplication faild for string elements of TARQSet."));
    EXPECT_EQ(shown(set), "4 'a' 14r");
}

TEST(SetArithmeticTest, SetCanBeItsOwnOperand) {
    const Ref<ITARQSet> set = newSet(listOf(1, 2.5));
    ASSERT_THAT(set->Addition(valueOf(set)), succeeds());
    EXPECT_EQ(shown(set), "2 5r");
}

TEST(SetArithmeticTest, RefusedOperandChangesNothing) {
    SafeArray referred = SafeArray::of(std::vector<double>{1, 2});
    struct Case {
        Variant operand;
        const char* description;
    };
    const Case cases[] = {
        {Variant("x"), wrongType},
        {Variant::missing(), wrongType},
        {Variant::null(), wrongType},
        {Variant(SafeArray::of(std::vector<double>{1, 2, 3})), wrongLength},
        {Variant(SafeArray::of(std::vector<double>{1})), wrongLength},
        {Variant(SafeArray()), wrongLength},
        {valueOf(newSet()), wrongLength},
        {valueOf(newSet(listOf(1, "x"))), "Value cound not be converted to numeric."},
        {Variant::byReference(referred), "Array has wrong data type."},
        {Variant(Ref<IUnknown>()), "Passed object is not allowed."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.description);
        const Ref<ITARQSet> set = newSet(listOf(1, 2.5));
        for (const Operation operation : {&ITARQSet::Addition, &ITARQSet::Multiplication}) {
            EXPECT_THAT((set.get()->*operation)(c.operand), raisesInSet(status::invalidArgument, c.description));
        }
        double product = 7;
        EXPECT_THAT(set->get_DotProduct(c.operand, &product), raisesInSet(status::invalidArgument, c.description));
        EXPECT_EQ(product, 7);
        EXPECT_EQ(shown(set), "1 2.5r");
    }
}

TEST(SetDotProductTest, SumsElementTimesEntry) {
    double product = 0;
    EXPECT_THAT(
        newSet(listOf(1, 2.5))->get_DotProduct(Variant(SafeArray::of(std::vector<std::int16_t>{4, -2}, 1)), &product),
        succeeds());
    EXPECT_EQ(product, -1);
    EXPECT_THAT(newSet(listOf(3))->get_DotProduct(Variant("2"), &product), succeeds());
    EXPECT_EQ(product, 6);
    EXPECT_THAT(newSet()->get_DotProduct(Variant(SafeArray()), &product), succeeds());
    EXPECT_EQ(product, 0);
}

TEST(SetDotProductTest, TextsFailAndLengthsAreComparedFirst) {
    double product = 7;
    const Ref<ITARQSet> set = newSet(listOf(1, "2"));
    EXPECT_THAT(
        set->get_DotProduct(valueOf(newSet(listOf(1, 1))), &product),
        raisesInSet(status::invalidArgument, "Vector operation faild. Some elements of the TARQSet are strings."));
    EXPECT_THAT(set->get_DotProduct(Variant(1), &product), raisesInSet(status::invalidArgument, wrongLength));
    EXPECT_EQ(product, 7);
}

}  // namespace
}  // namespace tarq
