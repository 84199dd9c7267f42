// What a caller's arrays, objects, ranges and single values give to the cells that they are assigned to.
#include "indexed/values/valueimport.h"

#include "tests/indexed/arrayfixture.h"
#include "tests/indexed/standinrange.h"

namespace tarq {
namespace {

Variant rangeOf(std::vector<std::vector<Variant>> cells, std::int32_t areas = 1) {
    return Variant(StandInRange::create({.cells = std::move(cells), .areas = areas}));
}

Variant grid(std::size_t rows, std::size_t columns) {
    std::vector<std::vector<Variant>> cells(rows);
    int number = 0;
    for (auto& row : cells) {
        for (std::size_t i = 0; i < columns; ++i) row.emplace_back(++number);
    }
    return rangeOf(std::move(cells));
}

TEST(ValueImport, ASelectionTakesWhatItsSourceGives) {
    const Ref<ITARQArray> large = newArray(listOf(3, 3));
    ASSERT_THAT(large->SetValues(listOf(1, 2, 3, 4, 5, 6, 7, 8, 9)), succeeds());
    const struct {
        ValueList dimensions;
        Variant value;
        const char* cells;
    } cases[] = {
        {listOf(2, 3), Variant("s"), "2x3: 's' 's' 's' 's' 's' 's'"},
        {listOf(2, 3), Variant(counted({{0, 6}})), "2x3: 1 2 3 4 5 6"},
        {listOf(2, 3), Variant(counted({{-4, 8}}, Kind::Long)), "2x3: 1 2 3 4 5 6"},
        {listOf(2, 2), Variant(counted({{1, 3}, {7, 3}})), "2x2: 1 2 4 5"},
        {listOf(3, 2), Variant(counted({{0, 3}, {0, 3}}, Kind::Text)), "3x2: '1' '2' '4' '5' '7' '8'"},
        {listOf(2), Variant(SafeArray::of(std::vector<float>{3.0F, 0.0F})), "2: 3 0"},
        {listOf(2, 2), valueOf(large), "2x2: 1 2 3 4"},  // the first cells, not the leading block
        {listOf(2), valueOf(newSet(listOf("a", 2.5, 9))), "2: 'a' 2.5r"},
        {listOf(2), valueOf(newSeries(4, 9)), "2: 4 5"},
        {listOf(3), grid(2, 2), "3: 1 2 3"},
        {listOf(2, 2), grid(3, 3), "2x2: 1 2 4 5"},
    };
    for (const auto& one : cases) {
        const Ref<ITARQArray> array = newArray(one.dimensions);
        ASSERT_THAT(putAt(array, one.value), succeeds()) << one.cells;
        EXPECT_EQ(cells(array), one.cells);
    }
}

TEST(ValueImport, WrongSourcesSayWhatIsWrongAndChangeNothing) {
    SafeArray referenced = counted({{0, 6}});
    const struct {
        ValueList dimensions;
        Variant value;
        const char* text;
    } cases[] = {
        {listOf(2, 3), Variant(counted({{0, 5}})), "Not enough elements in value array."},
        {listOf(2, 3), Variant(counted({{0, 2}, {0, 2}})), "Dimension 2 of array is too small."},
        {listOf(3, 2), Variant(counted({{0, 2}, {0, 3}})), "Dimension 1 of array is too small."},
        {listOf(2), Variant(counted({{0, 2}, {0, 3}})), "Dimension of array does not fit."},
        {listOf(2), Variant::byReference(referenced), "Array has wrong data type."},
        {listOf(2), Variant(SafeArray::of(std::vector<std::int64_t>{1, 2})), "Array has wrong data type."},
        {listOf(2), Variant(SafeArray()), "Not enough values passed."},
        {listOf(2), Variant(SafeArray::of(std::vector<Variant>(2))), "Value cannot be converted to string or numeric."},
        {listOf(2), Variant(true), "Parameter for value is of wrong type."},
        {listOf(2), Variant(), "Parameter for value is of wrong type."},
        {listOf(2), Variant::missing(), "Parameter for value is of wrong type."},
        {listOf(4), valueOf(newSet(listOf(1, 2, 3))), "Not enough values passed."},
        {listOf(4), valueOf(newArray(listOf(2, 2))), "Dimension of TARQArray does not fit."},
        {listOf(2, 3), valueOf(newArray(listOf(2, 2))), "Dimension 2 of TARQArray is too small."},
        {listOf(2), valueOf(newArray(listOf(2))), "Value cannot be converted to string or numeric."},
        {listOf(2), Variant(Ref<IUnknown>()), "Passed object is not allowed."},
        {listOf(5), grid(2, 2), "Not enough values in Excel Range."},
        {listOf(3, 2), grid(2, 2), "Not enough rows in Excel Range."},
        {listOf(2, 3), grid(2, 2), "Not enough columns in Excel Range."},
        {listOf(1, 1, 1), grid(2, 2), "Excel Ranges cannot be read into objects with more than 2 dimensions."},
        {listOf(1), rangeOf({{Variant(1)}}, 2), "No multiple areas allowed"},
        {listOf(2), rangeOf({{Variant(1), Variant()}}), "Value cannot be converted to string or numeric."},
    };
    for (const auto& one : cases) {
        const Ref<ITARQArray> array = newArray(one.dimensions);
        const std::string before = cells(array);
        EXPECT_THAT(putAt(array, one.value), raisesAs(classid::TARQArray, status::invalidArgument, one.text));
        EXPECT_EQ(cells(array), before) << one.text;
    }
}

TEST(ValueImport, AListIsTheValuesOfItsEntriesInOrder) {
    SafeArray numbers = counted({{1, 2}}, Kind::Long);
    const Ref<ITARQArray> array = newArray(listOf(2, 4));
    ASSERT_THAT(array->SetValues(ValueList(
                    {Variant(1), valueOf(newSet(listOf("a", 2.5))), Variant::byReference(numbers), grid(1, 2)})),
                succeeds());
    EXPECT_EQ(cells(array), "2x4: 1 'a' 2.5r 1 2 1 2 kind 0");
    SafeArray table = counted({{0, 1}, {0, 1}});
    SafeArray truths = SafeArray::of(std::vector<std::int64_t>{1});
    const struct {
        Variant entry;
        const char* text;
    } cases[] = {
        {Variant(numbers), "Unsupported argument type."},
        {Variant(), "Unsupported argument type."},
        {Variant::byReference(table), "Multidimensional arrays not allowed."},
        {Variant::byReference(truths), "Array contains elements of wrong type."},
        {Variant(Ref<IUnknown>()), "Passed object is not allowed."},
        {valueOf(newArray(listOf(9, 9))), "Value cannot be converted to string or numeric."},
    };
    for (const auto& one : cases) {
        EXPECT_THAT(array->SetValues(ValueList({Variant(7), one.entry})),
                    raisesAs(classid::TARQArray, status::invalidArgument, one.text));
    }
    EXPECT_THAT(array->SetValues(listOf(1, 2, 3, 4, 5, 6, 7, 8, 9)).failed(), true);
    EXPECT_EQ(cells(array), "2x4: 1 'a' 2.5r 1 2 1 2 kind 0");
}

TEST(ValueImport, TheKindThatIsWantedDecidesTheConversion) {
    const SafeArray mixed =
        SafeArray::of(std::vector<Variant>{Variant("1.5"), Variant(2), Variant::missing(), Variant(true)});
    const struct {
        Kind target;
        const char* values;
    } cases[] = {{Kind::Double, "1.5r 2r 0r -1r"}, {Kind::Long, "2 2 0 -1"}, {Kind::Text, "'1.5' '2' '' '-1'"}};
    for (const auto& one : cases) {
        std::vector<Variant> values;
        ASSERT_THAT(appendArrayValues(mixed, one.target, values), succeeds());
        EXPECT_EQ(shown(values), one.values);
        EXPECT_TRUE(expandValues(Variant::missing(), {}, 3, one.target, values).failed());
    }
}

TEST(ValueImport, ARangeThatFailsTellsItsOwnStatus) {
    const Ref<ITARQArray> array = newArray(listOf(1));
    const Variant range(
        StandInRange::create({.cells = {{Variant(1)}}, .beforeValue = [] { return Status(0x800A03EC); }}));
    EXPECT_EQ(putAt(array, range), Status(0x800A03EC));
}

TEST(ValueImport, AClientThatChangesTheArrayMeanwhileIsRefused) {
    const Ref<ITARQArray> array = newArray(listOf(2));
    for (const auto& change :
         std::vector<std::function<Status()>>{[&] { return array->Clear(); }, [&] { return array->Init(listOf(1)); },
                                              [&] { return array->put_IndexsetElement(1, 1, "n"); }}) {
        ASSERT_THAT(array->Init(listOf(2)), succeeds());
        const Variant range(StandInRange::create({.cells = {{Variant(1), Variant(2)}}, .beforeValue = change}));
        EXPECT_EQ(putAt(array, range), status::wrongState);
        ASSERT_THAT(array->Init(listOf(1, 2)), succeeds());
        EXPECT_EQ(array->AddMatrix(range), status::wrongState);
    }
}

TEST(ValueImport, ASeriesWithoutEndIsRefused) {
    const Ref<ITARQSeries> stuck = make<CTARQSeries, ITARQSeries>();
    ASSERT_THAT(stuck->Init(1e16, 1e16 + 2, Variant(0.5)), succeeds());
    std::vector<Variant> values;
    EXPECT_THAT(collectObjectValues(stuck.query<IUnknown>().get(), Kind::Empty, values),
                failsWith(status::invalidArgument, "Step of series is too small."));
    const Ref<ITARQArray> array = newArray(listOf(1));
    for (const double end : {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        const Ref<ITARQSeries> endless = newSeries(1, end);
        EXPECT_EQ(array->Init(listOf(endless)), status::outOfMemory);
        EXPECT_EQ(array->Init(listOf(enumeratorOf(endless))), status::outOfMemory);
        EXPECT_THROW((void)collectObjectValues(enumeratorOf(endless).get(), Kind::Double, values), std::bad_alloc);
        EXPECT_THAT(array->Init(listOf(newSeries(0.5, end))), raisesAs(classid::TARQArray, status::invalidArgument,
                                                                       "Only whole numbers allowed as index value."));
    }
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    // The sanitizers end the process where memory runs out.
    const Ref<ITARQSeries> huge = make<CTARQSeries, ITARQSeries>();
    ASSERT_THAT(huge->Init(0, 1e18, Variant(1.0)), succeeds());
    EXPECT_EQ(newArray(listOf(1))->SetValues(listOf(huge)), status::outOfMemory);
#endif
}

}  // namespace
}  // namespace tarq
