// Term lists: which elements are read as coefficients and which as columns.
#include "indexed/values/termlist.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "tarq/frame/safearray.h"
#include "tests/indexed/standinrange.h"
#include "tests/support/outcomematchers.h"
#include "tests/support/valuewalks.h"

namespace tarq {
namespace {

using testing::ElementsAreArray;

template <class Element>
Variant arrayOf(std::vector<Element> elements, std::int32_t lowerBound = 0) {
    return Variant(SafeArray::of(std::move(elements), lowerBound));
}

Variant namesOf(std::vector<std::string> names) { return arrayOf(std::move(names)); }

Variant squareArray() {
    const std::array dimensions{Dimension{0, 2}, Dimension{0, 2}};
    SafeArray array;
    EXPECT_THAT(SafeArray::create(Kind::Double, dimensions, array), succeeds());
    return Variant(std::move(array));
}

TEST(ParseCoeffsAndCols, CoefficientsAndColumnsComeInTurn) {
    SafeArray referencedNumbers = SafeArray::of(std::vector<double>{3, 4}, 5);
    SafeArray referencedNames = SafeArray::of(std::vector<std::string>{"x", "y"}, -1);
    Variant referencedArray = namesOf({"x", "y"});
    Variant referencedName("x");
    double referencedNumber = 6;
    Ref<IUnknown> referencedObject(objectOf<SeriesWalk>(WalkedValues{{Variant("x"), Variant("y")}}).object());

    struct Case {
        const char* name;
        std::vector<Variant> list;
        std::vector<CoefficientGroup> coefficients;
        std::vector<ColumnGroup> columns;
    };
    const Case cases[] = {
        {"nothing", {}, {}, {}},
        {"a name alone", {Variant("x")}, {{1}}, {{"x"}}},
        {"a number alone is a name", {Variant(2.0)}, {{1}}, {{"2"}}},
        {"an array of numbers alone are names", {arrayOf<double>({1, 2.5})}, {{1}}, {{"1", "2.5"}}},
        {"each name has its own coefficient",
         {Variant(2), Variant("x"), Variant("y"), Variant("z")},
         {{2}, {1}, {1}},
         {{"x"}, {"y"}, {"z"}}},
        {"a text that reads as a number", {Variant("12"), Variant("13")}, {{12}}, {{"13"}}},
        {"a number behind a coefficient is a name", {Variant(2), Variant(3), Variant(4)}, {{2}, {4}}, {{"3"}}},
        {"a coefficient at the end", {Variant("x"), Variant(3)}, {{1}, {3}}, {{"x"}}},
        {"one coefficient for an array", {Variant(2), namesOf({"x", "y"})}, {{2}}, {{"x", "y"}}},
        {"two arrays", {arrayOf<double>({3, 4}), namesOf({"x", "y"})}, {{3, 4}}, {{"x", "y"}}},
        {"two arrays of another length", {arrayOf<double>({3}), namesOf({"x", "y"})}, {{3}}, {{"x", "y"}}},
        {"an array of names first", {namesOf({"x", "1"}), Variant("y")}, {{1}, {1}}, {{"x", "1"}, {"y"}}},
        {"an array of numbers in texts", {namesOf({"2", "1"}), Variant("y")}, {{2, 1}}, {{"y"}}},
        {"arrays without elements", {arrayOf<double>({}), namesOf({})}, {{}}, {{}}},
        {"missing and empty elements of arrays",
         {arrayOf<Variant>({Variant::missing(), Variant()}), arrayOf<Variant>({Variant::missing(), Variant()})},
         {{0, 0}},
         {{"", ""}}},
        {"truth values and nothing are numbers",
         {Variant(true), Variant("x"), Variant(), Variant("y")},
         {{-1}, {0}},
         {{"x"}, {"y"}}},
        {"arrays by reference",
         {Variant::byReference(referencedNumbers), Variant::byReference(referencedNames)},
         {{3, 4}},
         {{"x", "y"}}},
        {"an array behind a reference", {Variant::byReference(referencedArray)}, {{1}}, {{"x", "y"}}},
        {"scalars by reference",
         {Variant::byReference(referencedNumber), Variant::byReference(referencedName)},
         {{6}},
         {{"x"}}},
        {"an object by reference", {Variant(2), Variant::byReference(referencedObject)}, {{2}}, {{"x", "y"}}},
        {"an object of numbers, and one of names",
         {objectOf<SeriesWalk>(WalkedValues{{Variant(3), Variant(4.5)}}),
          objectOf<ArrayWalk>(WalkedValues{{Variant("x"), Variant(2)}})},
         {{3, 4.5}},
         {{"x", "2"}}},
        {"an object of numbers and names is read anew",
         {objectOf<WalkedSeries>(WalkedValues{{Variant(3), Variant("x")}}), Variant("y")},
         {{1}, {1}},
         {{"3", "x"}, {"y"}}},
        {"an object alone has names", {objectOf<SeriesWalk>(WalkedValues{{Variant(1.0)}})}, {{1}}, {{"1"}}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        TermList terms;
        ASSERT_THAT(parseCoeffsAndCols(ValueList(each.list, 7), terms), succeeds());
        EXPECT_THAT(terms.coefficients, ElementsAreArray(each.coefficients));
        EXPECT_THAT(terms.columns, ElementsAreArray(each.columns));
    }
}

TEST(ParseCoeffsAndCols, WhatIsNoColumnEndsTheListAndLeavesTheTerms) {
    const char* const noIndexSet = "Passed object cannot be used as an index set.";
    const char* const noName = "Value cannot be used as a column name.";
    struct Case {
        const char* name;
        std::vector<Variant> list;
        const char* message;
    };
    const Case cases[] = {
        {"missing", {Variant::missing()}, noName},
        {"missing behind a coefficient", {Variant(2), Variant::missing()}, noName},
        {"null, which is no coefficient either", {Variant("x"), Variant::null(), Variant("y")}, noName},
        {"a strange object", {objectOf<Stranger>()}, noIndexSet},
        {"a strange object in a longer list", {Variant("x"), objectOf<Stranger>()}, noIndexSet},
        {"no object", {Variant(2), Variant(Ref<IUnknown>())}, noIndexSet},
        {"two dimensions", {squareArray(), Variant("x")}, "Multidimensional arrays not allowed."},
        {"objects in an array",
         {Variant(2), arrayOf<Ref<IUnknown>>({nullptr})},
         "Array contains elements of wrong type."},
        {"an element without text",
         {arrayOf<Variant>({Variant("x"), Variant::null()})},
         "Value cound not be converted to string."},
        {"a value without text",
         {objectOf<SeriesWalk>(WalkedValues{{Variant("x"), Variant::null()}})},
         "Value cound not be converted to string."},
        {"a walk that fails",
         {objectOf<SeriesWalk>(WalkedValues{{Variant("x")}, "The series has gone."})},
         "The series has gone."},
        {"a series without a walk", {objectOf<WalkedSeries>(WalkedValues{{}, "No series yet."})}, "No series yet."},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        TermList terms{{{9}}, {{"before"}}};
        EXPECT_THAT(parseCoeffsAndCols(ValueList(each.list), terms), failsWith(status::invalidArgument, each.message));
        EXPECT_EQ(terms.columns, std::vector<ColumnGroup>{{"before"}});
    }
}

TEST(ParseCoeffsAndCols, ARangeThatFailsAsACoefficientTellsItsOwnFailure) {
    const auto close = [] { return raise(Guid(), "The sheet is closed.", Status(0x800A03EC)); };
    const Variant range(StandInRange::create({.cells = {{Variant(1)}}, .beforeValue = close}));
    TermList terms;
    EXPECT_THAT(parseCoeffsAndCols(ValueList({range, Variant("x")}), terms),
                failsWith(Status(0x800A03EC), "The sheet is closed."));
}

}  // namespace
}  // namespace tarq
