// Arrays: dimensions, selections, cells.
#include "tests/indexed/arrayfixture.h"

namespace tarq {
namespace {

class ArrayTest : public testing::Test {
protected:
    ArrayTest() {
        std::vector<Variant> list{Variant::byReference(rows_), Variant::byReference(columns_)};
        EXPECT_THAT(array->Init(ValueList(list)), succeeds());
        EXPECT_THAT(array->SetValues(listOf(1, 2, 3, 4, 5, 6)), succeeds());
    }

    SafeArray rows_ = namesOf({"b", "a"});
    SafeArray columns_ = namesOf({"x", "y", "3"});
    Ref<ITARQArray> array = make<CTARQArray, ITARQArray>();
};

TEST_F(ArrayTest, SelectionsKeepTheOrderOfTheirArguments) {
    const SafeArray backwards = namesOf({"y", "x"});
    EXPECT_EQ(cells(array), "2x3: 1 2 3 4 5 6");
    EXPECT_EQ(cells(array, "a"), "1x3: 4 5 6");
    EXPECT_EQ(cells(array, "b", "y"), "2");
    EXPECT_EQ(cells(array, "b", 3), "3");
    EXPECT_EQ(cells(array, "b", 3.0), "3");
    EXPECT_EQ(cells(array, Variant::missing(), Variant(backwards)), "2x2: 2 1 5 4");
    EXPECT_EQ(cells(array, Variant(namesOf({"a"})), Variant(backwards)), "1x2: 5 4");
    EXPECT_EQ(cells(array, newSet(listOf("a", "b")), "x"), "2x1: 4 1");
    EXPECT_EQ(cells(array, "a", newSeries(3, 3)), "6");
    EXPECT_EQ(cells(array, Variant(SafeArray::of(std::vector<std::string>{}))), "0x3:");
}

TEST_F(ArrayTest, WrongIndicesSayWhatIsWrong) {
    SafeArray names = namesOf({"a"});
    const struct {
        std::array<Variant, 5> index;
        const char* text;
    } cases[] = {
        {indices("c"), "Index element 'c' is no index element of the base object."},
        {indices("a", 1), "Index element '1' is no index element of the base object."},
        {indices("A"), "Index element 'A' is no index element of the base object."},
        {indices("a", 1.5), "Only whole numbers allowed as index value."},
        {indices("a", 3e9), "Only whole numbers allowed as index value."},
        {indices("a", "x", 1), "Too many indexsets used as parameter."},
        {indices(Variant::null()), "Value cannot be converted to valid index value."},
        {indices(Variant::byReference(names)), "Array contains elements of wrong type."},
        {indices(Variant(SafeArray::of(std::vector<std::int64_t>{1}))), "Array contains elements of wrong type."},
        {indices(Variant(counted({{0, 1}, {0, 1}}))), "Multidimensional SafeArrays may not be used as indexset."},
        {indices(Variant(SafeArray())), "SafeArray is empty or NULL pointer has been passed."},
        {indices(Variant(namesOf({"a", "a"}))), "Duplicate element 'a' in index."},
        {indices(newSet(listOf("a", 1.5))), "Only whole numbers allowed as index value."},
        {indices(Variant(Ref<IUnknown>())), "Passed object cannot be used as an index set."},
    };
    for (const auto& one : cases) {
        const auto& i = one.index;
        Variant value(7);
        EXPECT_THAT(array->get_Value(i[0], i[1], i[2], i[3], i[4], &value),
                    raisesAs(classid::TARQArray, status::invalidArgument, one.text));
        EXPECT_THAT(array->put_Value(i[0], i[1], i[2], i[3], i[4], Variant(0)),
                    raisesAs(classid::TARQArray, status::invalidArgument, one.text));
    }
    EXPECT_EQ(cells(array), "2x3: 1 2 3 4 5 6");
}

TEST_F(ArrayTest, PositionsReachWhatNumbersAsNamesCanNot) {
    const auto at = [&](const std::array<Variant, 5>& i, Variant& value) {
        return array->get_ValueByNumIndex(i[0], i[1], i[2], i[3], i[4], &value);
    };
    Variant value;
    ASSERT_THAT(at(indices(2), value), succeeds());
    EXPECT_EQ(shownCells(value), "1x3: 4 5 6");
    Variant missing = Variant::missing();
    ASSERT_THAT(at(indices(Variant::byReference(missing), 1, Variant::byReference(missing)), value), succeeds());
    EXPECT_EQ(shownCells(value), "2x1: 1 4");
    ASSERT_THAT(at(indices(1.6, "3"), value), succeeds());
    EXPECT_EQ(shownCells(value), "6");
    const std::array<Variant, 5> last = indices(2, 3);
    ASSERT_THAT(array->put_ValueByNumIndex(last[0], last[1], last[2], last[3], last[4], Variant("z")), succeeds());
    EXPECT_EQ(cells(array, "a", 3), "'z'");
    const struct {
        std::array<Variant, 5> index;
        const char* text;
    } cases[] = {
        {indices(0), "Index 1 is less than 1."},
        {indices(1, 4), "Index 2 is too high."},
        {indices("x"), "Index 1 could not be converted to integer value."},
        {indices(Variant(namesOf({"a"}))), "Index 1 could not be converted to integer value."},
        {indices(1, 1, 1), "More indexparameters passed, than TARQArray has dimensions."},
    };
    for (const auto& one : cases) {
        EXPECT_THAT(at(one.index, value), raisesAs(classid::TARQArray, status::invalidArgument, one.text));
    }
}

TEST_F(ArrayTest, FullNamesReachOneCell) {
    Variant value;
    ASSERT_THAT(array->get_ValueByFullIndexName(".a.3", &value), succeeds());
    EXPECT_EQ(shown(value), "6");
    for (const char* name : {"a.3", ".a.3.", ".a", ".", "", ".A.3", ".a.3.x", "..a.3"}) {
        EXPECT_THAT(array->get_ValueByFullIndexName(name, &value),
                    raisesAs(classid::TARQArray, status::invalidArgument, "Index name not found."));
    }
}

TEST_F(ArrayTest, ShapeIsToldByNumbersFromOne) {
    std::int32_t number = 0;
    std::string name;
    EXPECT_THAT(array->get_NumberOfIndexsets(&number), succeeds());
    EXPECT_EQ(number, 2);
    EXPECT_THAT(array->get_SizeOfIndexset(2, &number), succeeds());
    EXPECT_EQ(number, 3);
    EXPECT_THAT(array->get_IndexsetElement(1, 2, &name), succeeds());
    EXPECT_EQ(name, "a");
    for (const std::int32_t dimension : {0, 3, -1}) {
        EXPECT_THAT(array->get_SizeOfIndexset(dimension, &number),
                    raisesAs(classid::TARQArray, status::invalidArgument, "Illegal indexset specified."));
        EXPECT_THAT(array->get_IndexsetElement(dimension, 1, &name),
                    raisesAs(classid::TARQArray, status::invalidArgument, "Illegal indexset specified."));
        EXPECT_THAT(array->put_IndexsetElement(dimension, 1, "n"),
                    raisesAs(classid::TARQArray, status::invalidArgument, "Bad indexset specified."));
    }
    for (const std::int32_t element : {0, 4}) {
        EXPECT_THAT(
            array->put_IndexsetElement(2, element, "n"),
            raisesAs(classid::TARQArray, status::elementOutOfRange, "Indexset element number is out of valid range."));
    }
}

TEST(Array, DimensionsComeFromNumbersArraysAndObjects) {
    SafeArray longs = counted({{5, 3}}, Kind::Long);
    SafeArray variants = SafeArray::of(std::vector<Variant>{Variant("a"), Variant(2), Variant(true)});
    const struct {
        Variant entry;
        const char* elements;
    } cases[] = {
        {Variant(3), "1 2 3"},
        {Variant(2.6), "1 2 3"},
        {Variant("2"), "1 2"},
        {Variant::byReference(longs), "1 2 3"},
        {valueOf(newSeries(0, 4)), "0 1 2 3 4"},
        {valueOf(newSet(listOf("x", 3.0, "3.0"))), "x 3 3.0"},
        {valueOf(newArray(listOf(2))), nullptr},
    };
    for (const auto& one : cases) {
        const Ref<ITARQArray> array = make<CTARQArray, ITARQArray>();
        if (one.elements == nullptr) {
            // Two unset cells, which have one name.
            EXPECT_THAT(array->Init(ValueList({one.entry})),
                        raisesAs(classid::TARQArray, status::invalidArgument, "Duplicate element '' in index."));
            continue;
        }
        ASSERT_THAT(array->Init(ValueList({one.entry})), succeeds());
        std::int32_t size = 0;
        ASSERT_THAT(array->get_SizeOfIndexset(1, &size), succeeds());
        std::string elements;
        for (std::int32_t i = 1; i <= size; ++i) {
            std::string name;
            ASSERT_THAT(array->get_IndexsetElement(1, i, &name), succeeds());
            elements.append(i == 1 ? "" : " ").append(name);
        }
        EXPECT_EQ(elements, one.elements);
    }
}

TEST(Array, WrongDimensionsLeaveWhatStandsBeforeThem) {
    SafeArray none = SafeArray::of(std::vector<std::string>{});
    SafeArray wide = SafeArray::of(std::vector<std::int64_t>{1});
    SafeArray names = namesOf({"a"});
    const struct {
        Variant entry;
        const char* text;
    } cases[] = {
        {Variant("abc"), "Unsupported argument type."},
        {Variant(names), "Unsupported argument type."},
        {Variant::missing(), "Unsupported argument type."},
        {Variant(3e9), "Unsupported argument type."},
        {Variant(0), "Single value as upper limit of index series may not be smaller than 1."},
        {Variant::byReference(none), "Empty index set."},
        {Variant::byReference(wide), "Array contains elements of wrong type."},
        {valueOf(newSet(listOf(1, 1))), "Duplicate element '1' in index."},
        {valueOf(newSet(listOf(1.5))), "Only whole numbers allowed as index value."},
        {valueOf(newSet()), "Empty index set."},
    };
    for (const auto& one : cases) {
        const Ref<ITARQArray> array = make<CTARQArray, ITARQArray>();
        EXPECT_THAT(array->Init(ValueList({Variant(3), one.entry})),
                    raisesAs(classid::TARQArray, status::invalidArgument, one.text));
        Variant value;
        std::int32_t count = -1;
        EXPECT_THAT(array->get_NumberOfIndexsets(&count), succeeds());
        EXPECT_EQ(count, 1);
        EXPECT_THAT(array->get_Count(&count), succeeds());
        EXPECT_EQ(count, 0);
        EXPECT_THAT(readInto(value, array),
                    raisesAs(classid::TARQArray, status::invalidArgument, "Index '.1' does not exist."));
        EXPECT_THAT(putAt(array, 1, 2),
                    raisesAs(classid::TARQArray, status::invalidArgument, "Index '.2' does not exist."));
        ASSERT_THAT(array->Init(listOf(1)), succeeds());
        EXPECT_THAT(putAt(array, 1, 1), succeeds());
    }
    const Ref<ITARQArray> array = make<CTARQArray, ITARQArray>();
    EXPECT_THAT(array->Init({}), raisesAs(classid::TARQArray, status::invalidArgument, "Empty index set."));
    EXPECT_EQ(array->Init(listOf(100'000, 100'000)), status::outOfMemory);
    std::int32_t count = -1;
    EXPECT_THAT(array->get_NumberOfIndexsets(&count), succeeds());
    EXPECT_EQ(count, 0);
}

TEST(Array, BeforeInitOnlyHarmlessMembersWork) {
    const Ref<ITARQArray> array = make<CTARQArray, ITARQArray>();
    Variant value;
    std::string name;
    std::int32_t count = -1;
    EXPECT_THAT(array->get_Count(&count), succeeds());
    EXPECT_EQ(count, 0);
    EXPECT_THAT(array->Clear(), succeeds());
    const auto refused = raisesAs(classid::TARQArray, status::notInitialized, "TARQArray has not been initialized.");
    EXPECT_THAT(readInto(value, array), refused);
    EXPECT_THAT(putAt(array, 1), refused);
    EXPECT_THAT(array->SetValues(listOf(1)), refused);
    EXPECT_THAT(array->get_ValueByFullIndexName("", &value), refused);
    EXPECT_THAT(array->get_IndexsetElement(1, 1, &name), refused);
    EXPECT_THAT(array->TransposeMatrix(), refused);
    EXPECT_EQ(shown(enumeratorOf(array)), "");
}

TEST_F(ArrayTest, AnArrayIsNotStoredInItself) {
    EXPECT_THAT(putAt(array, array, "a"),
                raisesAs(classid::TARQArray, status::wrongState, "Cyclic reference to TARQArray."));
    EXPECT_EQ(array->get_Value(Variant::missing(), Variant::missing(), Variant::missing(), Variant::missing(),
                               Variant::missing(), nullptr),
              status::nullPointer);
}

TEST(Array, AClientThatChangesTheArrayWhileItNamesElementsIsRefused) {
    const Ref<ITARQArray> array = make<CTARQArray, ITARQArray>();
    for (const auto& change : std::vector<std::function<Status()>>{
             [&] { return array->Clear(); }, [&] { return array->Init(listOf(1)); },
             [&] { return array->Init(listOf(9, 9, 9)); }, [&] { return array->put_IndexsetElement(1, 3, "n"); }}) {
        for (const bool isPut : {false, true}) {
            ASSERT_THAT(array->Init(listOf(3)), succeeds());
            const Ref<ITARQSeriesEnum> elements = ClientValues::create([&, next = 2](Variant& value) mutable {
                if (next == 2) {
                    EXPECT_THAT(change(), succeeds());
                }
                value = Variant(next++);
                return next < 5;
            });
            Variant value;
            EXPECT_THAT(isPut ? putAt(array, 5, elements) : readInto(value, array, elements),
                        raisesAs(classid::TARQArray, status::wrongState,
                                 "TARQArray has been changed while values were read for it."));
        }
    }
}

}  // namespace
}  // namespace tarq
