// Arithmetic of arrays.
#include "tests/indexed/arrayfixture.h"
#include "tests/indexed/standinrange.h"

namespace tarq {
namespace {

Ref<ITARQArray> filled(const ValueList& dimensions, const ValueList& values) {
    const Ref<ITARQArray> array = newArray(dimensions);
    EXPECT_THAT(array->SetValues(values), succeeds());
    return array;
}

TEST(ArrayMatrix, ScalarsMeetNumbersAndPassOverTheRest) {
    const Ref<ITARQArray> array = filled(listOf(4), listOf(1, "x", 2.5));
    EXPECT_EQ(array->AddScalar(0.5), status::arrayCondition);
    EXPECT_EQ(cells(array), "4: 1.5r 'x' 3r kind 0");
    EXPECT_EQ(array->MultiplyScalar(2), status::arrayCondition);
    EXPECT_EQ(cells(array), "4: 3r 'x' 6r kind 0");
    const Ref<ITARQArray> whole = filled(listOf(2), listOf(3, 2147483647));
    EXPECT_THAT(whole->MultiplyScalar(2), succeeds());
    EXPECT_EQ(cells(whole), "2: 6 4294967294r");
    const Ref<ITARQArray> fresh = make<CTARQArray, ITARQArray>();
    EXPECT_THAT(fresh->AddScalar(1), succeeds());
}

TEST(ArrayMatrix, AMatrixOfTheSameSizesIsAdded) {
    const Ref<ITARQArray> array = filled(listOf(2, 2), listOf(1, 2.5, 3, 4));
    EXPECT_THAT(array->AddMatrix(Variant(counted({{5, 2}, {-1, 2}}))), succeeds());
    EXPECT_EQ(cells(array), "2x2: 2 4.5r 6 8");
    EXPECT_THAT(array->AddMatrix(valueOf(array)), succeeds());
    EXPECT_EQ(cells(array), "2x2: 4 9r 12 16");
    for (const Variant& other : {valueOf(newSet(listOf(1, 2, 3, 4))), Variant(counted({{0, 4}})), Variant(1),
                                 Variant(counted({{0, 2}, {0, 3}}))}) {
        EXPECT_THAT(array->AddMatrix(other),
                    raisesAs(classid::TARQArray, status::invalidArgument, "Matrices do not have the same dimensions"));
    }
    const Ref<ITARQArray> mixed = filled(listOf(3), listOf(1, "x", 3));
    EXPECT_THAT(mixed->AddMatrix(valueOf(newSet(listOf(1, 1, 1)))),
                raisesAs(classid::TARQArray, status::invalidArgument,
                         "Matrix addition faild. Some elements of the TARQArray are strings."));
    EXPECT_EQ(cells(mixed), "3: 2 'x' 3");
    const Ref<ITARQArray> fresh = make<CTARQArray, ITARQArray>();
    EXPECT_THAT(fresh->AddMatrix(Variant(1)), succeeds());
}

TEST(ArrayMatrix, ProductsAreSummedInOrder) {
    const Ref<ITARQArray> left = filled(listOf(2, 3), listOf(1, 2, 3, 4, 5, 6));
    const Ref<ITARQArray> product = make<CTARQArray, ITARQArray>();
    ASSERT_THAT(product->MultiplyMatrices(valueOf(left), Variant(counted({{0, 3}, {0, 2}}))), succeeds());
    EXPECT_EQ(cells(product), "2x2: 22 28 49 64");
    EXPECT_EQ(cells(product, 2, 1), "49");
    // 1e16 + 1 - 1e16 in this order is 0.
    const Ref<ITARQArray> sum = filled(listOf(1, 3), listOf(1e16, 1, -1e16));
    ASSERT_THAT(product->MultiplyMatrices(valueOf(sum), valueOf(filled(listOf(3, 1), listOf(1, 1, 1)))), succeeds());
    EXPECT_EQ(cells(product), "0");
    EXPECT_THAT(product->MultiplyMatrices(valueOf(left), valueOf(left)),
                raisesAs(classid::TARQArray, status::invalidArgument,
                         "Dimensions of Matrix1 do not fit dimensions of Matrix2."));
    EXPECT_THAT(product->MultiplyMatrices(valueOf(left), Variant(2.0)),
                raisesAs(classid::TARQArray, status::invalidArgument,
                         "Matrix multiplication only for 2-dimensional arrays allowed."));
    EXPECT_TRUE(left->MultiplyMatrices(valueOf(left), Variant(counted({{0, 3}, {0, 2}}))).failed());
}

TEST(ArrayMatrix, LargeProductsEqualThePlainSums) {
    constexpr std::uint32_t rows = 7;
    constexpr std::uint32_t inner = 5;
    constexpr std::uint32_t columns = 523;
    SafeArray left = counted({{0, rows}, {0, inner}});
    SafeArray right = counted({{0, inner}, {0, columns}});
    for (double& value : right.elements<double>()) value = 1 / value;
    const Ref<ITARQArray> product = make<CTARQArray, ITARQArray>();
    ASSERT_THAT(product->MultiplyMatrices(Variant(left), Variant(right)), succeeds());
    Variant whole;
    ASSERT_THAT(readInto(whole, product), succeeds());
    for (std::uint32_t i = 0; i < rows; ++i) {
        for (std::uint32_t j = 0; j < columns; ++j) {
            double sum = 0;
            for (std::uint32_t k = 0; k < inner; ++k) {
                sum += left.elements<double>()[i * inner + k] * right.elements<double>()[k * columns + j];
            }
            Variant cell = whole.array().elements<Variant>()[i * columns + j];
            ASSERT_TRUE(cell.toReal());
            ASSERT_EQ(cell.real(), sum);
        }
    }
}

TEST(ArrayMatrix, TransposedCellsFollowTheirNames) {
    SafeArray rows = namesOf({"a", "b"});
    SafeArray columns = namesOf({"x", "y", "z"});
    const Ref<ITARQArray> array =
        filled(ValueList({Variant::byReference(rows), Variant::byReference(columns)}), listOf(1, 2, 3, 4, 5, 6));
    ASSERT_THAT(array->TransposeMatrix(), succeeds());
    EXPECT_EQ(cells(array), "3x2: 1 4 2 5 3 6");
    EXPECT_EQ(cells(array, "z", "a"), "3");
    for (const ValueList& dimensions : {listOf(2), listOf(2, 2, 2)}) {
        EXPECT_THAT(newArray(dimensions)->TransposeMatrix(),
                    raisesAs(classid::TARQArray, status::wrongState, "Only 2-dimensional matrices can be transposed."));
    }
}

TEST(ArrayMatrix, AClonePassesNamesAndValuesOn) {
    SafeArray rows = namesOf({"a", "b"});
    const Ref<ITARQArray> source = filled(ValueList({Variant::byReference(rows)}), listOf(1, "t"));
    const Ref<ITARQArray> clone = newArray(listOf(9));
    ASSERT_THAT(clone->CloneFrom(valueOf(source)), succeeds());
    EXPECT_EQ(cells(clone, "b"), "'t'");
    ASSERT_THAT(clone->CloneFrom(valueOf(newSeries(5, 9))), succeeds());
    EXPECT_EQ(cells(clone), "5: 5 6 7 8 9");
    EXPECT_EQ(cells(clone, 5), "9");
    ASSERT_THAT(clone->CloneFrom(Variant(counted({{0, 3}}))), succeeds());
    EXPECT_EQ(cells(clone, 0), "1");
    const Variant range(StandInRange::create({.cells = {{Variant(1), Variant(2)}}, .firstRow = 7, .firstColumn = 3}));
    ASSERT_THAT(clone->CloneFrom(range), succeeds());
    EXPECT_EQ(cells(clone, 7, 4), "2");

    std::int32_t dimensions = -1;
    for (const Variant& scalar : {Variant(5), Variant("t"), valueOf(clone)}) {
        EXPECT_THAT(clone->CloneFrom(scalar), succeeds());
        EXPECT_THAT(clone->get_NumberOfIndexsets(&dimensions), succeeds());
        EXPECT_EQ(dimensions, 0);
    }
    EXPECT_THAT(clone->CloneFrom(Variant(Ref<IUnknown>())),
                raisesAs(classid::TARQArray, status::invalidArgument,
                         "Bad Object. Only TARQArray, TARQSet and TARQSeries allowed."));
    EXPECT_THAT(
        clone->CloneFrom(valueOf(newArray(listOf(1, 2)))),
        raisesAs(classid::TARQArray, status::invalidArgument, "Value cannot be converted to string or numeric."));
    EXPECT_EQ(cells(clone), "1x2: kind 0 kind 0");
}

}  // namespace
}  // namespace tarq
