// Sets: what gets in, where it stands, and what is found and removed.
#include <cmath>
#include <limits>
#include <random>

#include "indexed/sets/elementlookup.h"
#include "tarq/frame/module.h"
#include "tests/indexed/datafixture.h"

namespace tarq {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr const char* refusedElement = "Only strings or numeric values allowed in TARQSets.";

auto raisesInSet(Status status, const char* description) { return raisesAs(classid::TARQSet, status, description); }

std::int32_t indexOf(const Ref<ITARQSet>& set, const Variant& item) {
    std::int32_t index = -1;
    EXPECT_THAT(set->get_Index(item, &index), succeeds());
    return index;
}

using Answer = Status (ITARQSet::*)(const ValueList& list, std::int32_t* value);

std::int32_t answerOf(const Ref<ITARQSet>& set, Answer answer, const ValueList& list) {
    std::int32_t value = -1;
    EXPECT_THAT((set.get()->*answer)(list, &value), succeeds());
    return value;
}

TEST(SetAddTest, WholeNumbersBecomeIntegersAndTextsStayTexts) {
    const Ref<ITARQSet> set = newSet(listOf(1, 2.0, "2", 2.5, 1e10, -0.0, std::int16_t{7}, 3.0F, 0.0F));
    EXPECT_EQ(shown(set), "1 2 '2' 2.5r 10000000000r 0 7 3r 0");
    EXPECT_EQ(indexOf(set, Variant(2.0)), 2);
    EXPECT_EQ(indexOf(set, Variant("2")), 3);
}

TEST(SetAddTest, ArraysByReferenceAddTheirElementsByElementKind) {
    SafeArray bytes = SafeArray::of(std::vector<std::uint8_t>{0, 255}, 5);
    SafeArray shorts = SafeArray::of(std::vector<std::int16_t>{-1});
    SafeArray longs = SafeArray::of(std::vector<std::int32_t>{1 << 30});
    SafeArray singles = SafeArray::of(std::vector<float>{0, 3, 0.5});
    SafeArray doubles = SafeArray::of(std::vector<double>{3, 0.5}, -7);
    SafeArray texts = SafeArray::of(std::vector<std::string>{"", "3"});
    SafeArray variants = SafeArray::of(std::vector<Variant>{Variant("a"), Variant(4.0F), Variant(4.0)});
    SafeArray empty;
    SafeArray noDoubles = SafeArray::of(std::vector<double>{});
    const Ref<ITARQSet> set =
        newSet(listOf(Variant::byReference(bytes), Variant::byReference(shorts), Variant::byReference(longs),
                      Variant::byReference(empty), "|", Variant::byReference(singles), Variant::byReference(doubles),
                      Variant::byReference(noDoubles), Variant::byReference(texts), Variant::byReference(variants)));
    EXPECT_EQ(shown(set), "0 255 -1 1073741824 '|' 0 3r 0.5r 3 0.5r '' '3' 'a' 4r 4");
    EXPECT_EQ(variants.lockCount(), 0U);
}

TEST(SetAddTest, ReferencesAreFollowedOneLevel) {
    std::int32_t number = 4;
    std::string text = "t";
    SafeArray array = SafeArray::of(std::vector<double>{1, 2});
    Variant held("v");
    Variant heldArray = Variant::byReference(array);
    Variant heldReference = Variant::byReference(held);
    const Ref<ITARQSet> set = newSet(listOf(Variant::byReference(number), Variant::byReference(text),
                                            Variant::byReference(held), Variant::byReference(heldArray)));
    EXPECT_EQ(shown(set), "4 't' 'v' 1 2");
    EXPECT_THAT(set->Add(listOf(Variant::byReference(heldReference))),
                raisesInSet(status::invalidArgument, refusedElement));
}

TEST(SetAddTest, WhatIsNoTextOrNumberIsRefusedAndWhatStandsBeforeItStays) {
    SafeArray array = SafeArray::of(std::vector<std::int32_t>{1});
    SafeArray mixed = SafeArray::of(std::vector<Variant>{Variant("kept"), Variant(array), Variant("lost")});
    SafeArray objects = SafeArray::of(std::vector<Ref<IUnknown>>{nullptr});
    SafeArray wide = SafeArray::of(std::vector<std::int64_t>{1});
    SafeArray ints;
    SafeArray truths;
    SafeArray table;
    SafeArray tableOfObjects;
    const Dimension one{0, 1};
    ASSERT_THAT(SafeArray::create(Kind::Int, {{one}}, ints), succeeds());
    ASSERT_THAT(SafeArray::create(Kind::Bool, {{one}}, truths), succeeds());
    ASSERT_THAT(SafeArray::create(Kind::Double, {{one, one}}, table), succeeds());
    ASSERT_THAT(SafeArray::create(Kind::Object, {{one, one}}, tableOfObjects), succeeds());
    constexpr const char* badKind = "Passed array contains elements of an unsupported data type.";
    struct Case {
        Variant entry;
        const char* description;
        const char* left = "'a'";
    };
    const Case cases[] = {
        {Variant(), refusedElement},
        {Variant::null(), refusedElement},
        {Variant::missing(), refusedElement},
        {Variant(true), refusedElement},
        {Variant(Currency{10000}), refusedElement},
        {Variant::date(1), refusedElement},
        {Variant(std::int64_t{1}), refusedElement},
        {Variant::integerOf(Kind::UInt32, 1), refusedElement},
        {Variant(array), refusedElement},
        {Variant::byReference(mixed), refusedElement, "'a' 'kept'"},
        {Variant::byReference(objects), badKind},
        {Variant::byReference(wide), badKind},
        {Variant::byReference(ints), badKind},
        {Variant::byReference(truths), badKind},
        {Variant::byReference(tableOfObjects), badKind},
        {Variant::byReference(table), "Multidimensional arrays not allowed."},
        {Variant(Ref<IUnknown>()), "Passed object is not allowed."},
        {valueOf(newSet().query<IUnknown>()), "", "'a' 'b'"},
        {valueOf(make<CTARQSeries, ITARQSeries>()), "TARQSeries has not been initialized"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.entry.code());
        const Ref<ITARQSet> set = newSet();
        const Status status = set->Add(listOf("a", c.entry, "b"));
        EXPECT_EQ(shown(set), c.left);
        if (*c.description == '\0') {
            EXPECT_THAT(status, succeeds());
        } else {
            EXPECT_THAT(status, raisesInSet(status::invalidArgument, c.description));
        }
    }
}

TEST(SetAddTest, ObjectsAddTheirValues) {
    const Ref<ITARQSet> letters = newSet(listOf("a", "b", "c"));
    Ref<IUnknown> fromB;
    ASSERT_THAT(letters->get_Enum(Variant("b"), Variant::missing(), Variant::missing(), &fromB), succeeds());
    const Ref<ITARQSeries> series = newSeries(1, 2);
    const Ref<IEnumVARIANT> members = enumeratorOf(newSeries(8, 7));
    EXPECT_EQ(shown(newSet(listOf(letters, fromB, series, members))), "'a' 'b' 'c' 'b' 'c' 1 2 8 7");
}

TEST(SetAddTest, ObjectFindsTheSetAsTheEntriesBeforeItLeaveIt) {
    const Ref<ITARQSet> set = newSet(listOf("a"));
    ASSERT_THAT(set->Add(listOf(1, set)), succeeds());
    EXPECT_EQ(shown(set), "'a' 1 'a' 1");
    ASSERT_THAT(set->InsertBefore(1, listOf(2, set, 3)), succeeds());
    EXPECT_EQ(shown(set), "2 2 'a' 1 'a' 1 3 'a' 1 'a' 1");
}

TEST(SetAddTest, FailingObjectLeavesNoneOfItsOwnValues) {
    const Ref<ITARQSet> set = newSet();
    const Ref<ITARQSeriesEnum> values = ClientValues::create([n = 0](Variant& value) mutable {
        value = ++n < 3 ? Variant(n) : Variant(true);
        return true;
    });
    EXPECT_THAT(set->Add(listOf("a", values)),
                raisesInSet(status::invalidArgument, "Value cannot be converted to string or numeric."));
    EXPECT_EQ(shown(set), "'a'");
}

TEST(SetInsertTest, ValuesComeOutInTheOrderGivenAtTheirPosition) {
    struct Case {
        Status (ITARQSet::*insert)(std::int32_t, const ValueList&);
        std::int32_t index;
        const char* result;
    };
    const Case cases[] = {
        {&ITARQSet::InsertBefore, 1, "'x' 'y' 'z' 'a' 'b'"},
        {&ITARQSet::InsertBefore, 2, "'a' 'x' 'y' 'z' 'b'"},
        {&ITARQSet::InsertAfter, 1, "'a' 'x' 'y' 'z' 'b'"},
        {&ITARQSet::InsertAfter, 2, "'a' 'b' 'x' 'y' 'z'"},
        {&ITARQSet::InsertBefore, 0, ""},
        {&ITARQSet::InsertBefore, 3, ""},
        {&ITARQSet::InsertAfter, 0, ""},
        {&ITARQSet::InsertAfter, 3, ""},
        {&ITARQSet::InsertAfter, -1, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.index);
        const Ref<ITARQSet> set = newSet(listOf("a", "b"));
        const Status status = (set.get()->*c.insert)(c.index, listOf("x", newSet(listOf("y")), "z"));
        if (*c.result != '\0') {
            EXPECT_THAT(status, succeeds());
            EXPECT_EQ(shown(set), c.result);
        } else {
            EXPECT_THAT(status, raisesInSet(status::indexOutOfRange, "Index out of valid range."));
            EXPECT_EQ(shown(set), "'a' 'b'");
        }
    }
}

TEST(SetInsertTest, EmptySetHasNoPositionAndRangeIsCheckedBeforeTheList) {
    const Ref<ITARQSet> set = newSet();
    EXPECT_THAT(set->InsertAfter(0, listOf(true)), raisesInSet(status::indexOutOfRange, "Index out of valid range."));
    EXPECT_THAT(set->InsertBefore(1, listOf(1)), raisesInSet(status::indexOutOfRange, "Index out of valid range."));
}

TEST(SetInsertTest, ValuesBeforeARefusedOneStayInserted) {
    const Ref<ITARQSet> set = newSet(listOf("a", "b"));
    EXPECT_THAT(set->InsertBefore(2, listOf(1, 2, true, 3)), raisesInSet(status::invalidArgument, refusedElement));
    EXPECT_EQ(shown(set), "'a' 1 2 'b'");
}

TEST(SetInsertTest, ListThatEmptiesTheSetMeanwhileStillGetsItsPlace) {
    const Ref<ITARQSet> set = newSet(listOf("a", "b", "c"));
    const Ref<ITARQSeriesEnum> clearing = ClientValues::create([&, called = false](Variant& value) mutable {
        EXPECT_THAT(set->Clear(), succeeds());
        value = Variant("from client");
        return !std::exchange(called, true);
    });
    ASSERT_THAT(set->InsertBefore(3, listOf(1, clearing, 2)), succeeds());
    EXPECT_EQ(shown(set), "'from client' 2");
}

TEST(SetDelTest, EveryEqualElementGoes) {
    struct Case {
        ValueList deleted;
        const char* left;
    };
    const Ref<ITARQSet> same = newSet(listOf(1, "b"));
    const Case cases[] = {
        {listOf(2), "3 '2' 2.5r 'b'"},
        {listOf("2", "b"), "2 2 3 2.5r 2"},
        {listOf(7, "", 2.25), "2 2 3 '2' 2.5r 2 'b'"},
        {listOf(), "2 2 3 '2' 2.5r 2 'b'"},
        {listOf(newSeries(2, 3), same), "'2' 2.5r"},
        {listOf(2.0, 3.0, 2.5, 2, 3, "2", "b", "c"), ""},
    };
    for (const Case& c : cases) {
        const Ref<ITARQSet> set = newSet(listOf(2, 2, 3, "2", 2.5, 2, "b"));
        EXPECT_THAT(set->Del(c.deleted), succeeds());
        EXPECT_EQ(shown(set), c.left);
    }
}

TEST(SetDelTest, SetCanBeDeletedFromItself) {
    const Ref<ITARQSet> set = newSet(listOf(1, "b", 1));
    ASSERT_THAT(set->Del(listOf(set)), succeeds());
    EXPECT_EQ(shown(set), "");
}

TEST(SetDelTest, EnumeratorInTheListSeesWhatIsLeft) {
    const Ref<ITARQSet> set = newSet(listOf("a", "b", "c", "d"));
    Ref<IUnknown> secondToThird;
    ASSERT_THAT(set->get_Enum(Variant("b"), Variant("c"), Variant::missing(), &secondToThird), succeeds());
    ASSERT_THAT(set->Del(listOf("a", secondToThird)), succeeds());
    EXPECT_EQ(shown(set), "'b'");
}

TEST(SetDelTest, ValuesBeforeARefusedOneAreGone) {
    const Ref<ITARQSet> set = newSet(listOf(1, 2, 3));
    EXPECT_THAT(set->Del(listOf(1, 3, true, 2)), raisesInSet(status::invalidArgument, refusedElement));
    EXPECT_EQ(shown(set), "2");
}

TEST(SetItemTest, GetOutOfRangeIsUnwordedAndPutIsWorded) {
    const Ref<ITARQSet> set = newSet(listOf(1, "b"));
    Variant item("before");
    clearLastError();
    EXPECT_EQ(set->get_Item(0, nullptr), status::nullPointer);
    EXPECT_EQ(set->get_Item(0, &item), Status{0x80070057});
    EXPECT_EQ(set->get_Item(3, &item), Status{0x80004005});
    EXPECT_EQ(shown(item), "'before'");
    EXPECT_EQ(lastError(), nullptr);

    EXPECT_THAT(set->put_Item(0, Variant(true)),
                raisesInSet(status::invalidArgument, "Index may not be smaller than 1."));
    EXPECT_THAT(set->put_Item(3, Variant(true)),
                raisesInSet(status::invalidArgument, "Index bigger than size of TARQSet."));
    EXPECT_THAT(set->put_Item(2, Variant(true)),
                raisesInSet(status::invalidArgument, "TARQSets may contain only strings or numeric values."));
    Variant held(4.0);
    EXPECT_THAT(set->put_Item(1, Variant::byReference(held)), succeeds());
    EXPECT_EQ(shown(set), "4 'b'");
}

TEST(SetIndexTest, FirstEqualElementIsFound) {
    const Ref<ITARQSet> set = newSet(listOf("3", 3.5, 3, 3.5, "", notANumber));
    EXPECT_EQ(indexOf(set, Variant(3)), 3);
    EXPECT_EQ(indexOf(set, Variant(3.0)), 3);
    EXPECT_EQ(indexOf(set, Variant("3")), 1);
    EXPECT_EQ(indexOf(set, Variant(3.5F)), 2);
    EXPECT_EQ(indexOf(set, Variant("")), 5);
    EXPECT_EQ(indexOf(set, Variant(notANumber)), 0);
    EXPECT_EQ(indexOf(set, Variant("3.5")), 0);
    EXPECT_EQ(indexOf(newSet(), Variant(3)), 0);
    std::int32_t index = 7;
    EXPECT_THAT(set->get_Index(Variant(), &index),
                raisesInSet(status::invalidArgument, "Only strigs or numeric values allowed as item."));
    EXPECT_EQ(index, 7);
}

TEST(SetIndexTest, FindNextStartsAtAPositionOfTheSet) {
    const Ref<ITARQSet> set = newSet(listOf(1, 2, 1));
    const auto next = [&](std::int32_t start) {
        std::int32_t index = -1;
        EXPECT_THAT(set->get_FindNextIndex(Variant(1), start, &index), succeeds());
        return index;
    };
    EXPECT_EQ(next(1), 1);
    EXPECT_EQ(next(2), 3);
    EXPECT_EQ(next(3), 3);
    std::int32_t index = 0;
    EXPECT_THAT(set->get_FindNextIndex(Variant(2), 3, &index), succeeds());
    EXPECT_EQ(index, 0);
    for (const std::int32_t start : {0, 4, std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_THAT(set->get_FindNextIndex(Variant(1), start, &index),
                    raisesInSet(status::indexOutOfRange, "Index out of valid range."));
    }
    EXPECT_THAT(newSet()->get_FindNextIndex(Variant(1), 1, &index),
                raisesInSet(status::indexOutOfRange, "Index out of valid range."));
    EXPECT_THAT(set->get_FindNextIndex(Variant(true), 0, &index),
                raisesInSet(status::invalidArgument, "Only strigs or numeric values allowed as item."));
}

TEST(SetContainsTest, ContainsWantsAllValuesAndIsInAllElements) {
    struct Case {
        ValueList elements;
        ValueList values;
        std::int32_t contains;
        std::int32_t isIn;
    };
    const Case cases[] = {
        {listOf(1, 2, 2), listOf(), 1, 0},
        {listOf(), listOf(), 1, 1},
        {listOf(), listOf(1), 0, 1},
        {listOf(1, 2, 2), listOf(2, 1, 1), 1, 1},
        {listOf(1, 2, 3), listOf(1, 1, 3), 1, 0},
        {listOf(1), listOf(1, 2), 0, 1},
        {listOf("1"), listOf(1), 0, 0},
        {listOf(1, 2, 3, 4, 5, "6"), listOf(newSeries(1, 5), "6", "6"), 1, 1},
        {listOf(1, 2, 3, 4, 5), listOf(newSeries(1, 5), "5"), 0, 1},
        {listOf(1, 2, 3, 4, 5, 0.5), listOf(newSeries(1, 5)), 1, 0},
        {listOf(notANumber), listOf(notANumber), 0, 0},
        {listOf(notANumber, 1, 2, 3, 4), listOf(1, 2, 3, 4, 1, 2, notANumber), 0, 0},
    };
    for (const Case& c : cases) {
        const Ref<ITARQSet> set = newSet(c.elements);
        SCOPED_TRACE(shown(set));
        EXPECT_EQ(answerOf(set, &ITARQSet::get_Contains, c.values), c.contains);
        EXPECT_EQ(answerOf(set, &ITARQSet::get_IsIn, c.values), c.isIn);
    }
    std::int32_t answer = 5;
    for (const Answer member : {&ITARQSet::get_Contains, &ITARQSet::get_IsIn}) {
        const Ref<ITARQSet> set = newSet();
        EXPECT_THAT((set.get()->*member)(listOf(true), &answer),
                    raisesInSet(status::invalidArgument, "Unsupported argument type."));
        EXPECT_EQ(answer, 5);
    }
}

/// Values that are often equal, of all kinds.
std::vector<Variant> randomValues(std::mt19937& random, int most) {
    std::vector<Variant> values;
    const auto draw = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
    for (int count = draw(most); count > 0; --count) {
        const int number = draw(12);
        const Variant kinds[] = {Variant(number), Variant(number + 0.5), Variant(std::to_string(number))};
        values.push_back(kinds[draw(3)]);
    }
    return values;
}

TEST(SetContainsTest, LongAndShortListsAgreeWithComparingEachWithEach) {
    std::mt19937 random(20);  // NOLINT(bugprone-random-generator-seed): the same every time
    for (int round = 0; round < 300; ++round) {
        const std::vector<Variant> elements = randomValues(random, 40);
        const std::vector<Variant> values = randomValues(random, 60);
        const auto among = [](const std::vector<Variant>& list) {
            return [&list](const Variant& value) {
                return std::ranges::any_of(list, [&](const Variant& other) { return shown(other) == shown(value); });
            };
        };
        const Ref<ITARQSet> set = newSet(ValueList(elements));
        EXPECT_EQ(answerOf(set, &ITARQSet::get_Contains, ValueList(values)),
                  std::ranges::all_of(values, among(elements)));
        EXPECT_EQ(answerOf(set, &ITARQSet::get_IsIn, ValueList(values)), std::ranges::all_of(elements, among(values)));
        std::vector<Variant> left = elements;
        std::erase_if(left, among(values));
        ASSERT_THAT(set->Del(ValueList(values)), succeeds());
        EXPECT_EQ(shown(set), shown(left));
    }
}

TEST(ElementLookupTest, BothZerosAreOneElementAndNotANumberIsNone) {
    const ElementLookup zeros({Variant(1), Variant(0.0), Variant(-0.0), Variant(0), Variant::null(), Variant::null()});
    EXPECT_EQ(zeros.find(Variant(-0.0)), 1);
    EXPECT_EQ(zeros.find(Variant(0)), 3);
    EXPECT_EQ(zeros.find(Variant::null()), 4);
    EXPECT_EQ(zeros.distinctCount(), 4U);

    constexpr std::size_t many = 200000;
    const ElementLookup noNumbers(std::vector<Variant>(many, Variant(notANumber)));
    EXPECT_EQ(noNumbers.distinctCount(), many);
    EXPECT_FALSE(noNumbers.contains(Variant(notANumber)));
}

TEST(SetTest, SetReplacesTheElementsAndHandsBackItself) {
    const Ref<ITARQSet> set = newSet(listOf(1));
    Ref<IUnknown> same;
    ASSERT_THAT(set->get_Set(listOf("a", 2), &same), succeeds());
    EXPECT_EQ(same.query<ITARQSet>(), set);
    EXPECT_EQ(shown(set), "'a' 2");
    same = nullptr;
    EXPECT_THAT(set->get_Set(listOf("b", true, "c"), &same), raisesInSet(status::invalidArgument, refusedElement));
    EXPECT_EQ(same, nullptr);
    EXPECT_EQ(shown(set), "'b'");
}

TEST(SetTest, EveryGetterRefusesANullOutput) {
    const Ref<ITARQSet> set = newSet(listOf(1));
    EXPECT_EQ(set->get__NewEnum(nullptr), status::nullPointer);
    EXPECT_EQ(set->get_Set(listOf(2), nullptr), status::nullPointer);
    EXPECT_EQ(set->get_Count(nullptr), status::nullPointer);
    EXPECT_EQ(set->get_DotProduct(Variant(1), nullptr), status::nullPointer);
    EXPECT_EQ(set->get_Enum(Variant::missing(), Variant::missing(), Variant::missing(), nullptr), status::nullPointer);
    EXPECT_EQ(set->get_Index(Variant(1), nullptr), status::nullPointer);
    EXPECT_EQ(set->get_FindNextIndex(Variant(1), 1, nullptr), status::nullPointer);
    EXPECT_EQ(set->get_Contains(listOf(), nullptr), status::nullPointer);
    EXPECT_EQ(set->get_IsIn(listOf(), nullptr), status::nullPointer);
    EXPECT_EQ(shown(set), "1");
}

TEST(SetNewEnumTest, LoopSeesTheElementsAsTheyWereWhateverHappensToTheSet) {
    Ref<ITARQSet> set = newSet(listOf("a", "b", "c"));
    const Ref<IEnumVARIANT> loop = enumeratorOf(set);
    Variant first;
    ASSERT_THAT(loop->Next(1, &first, nullptr), succeeds());
    ASSERT_THAT(set->put_Item(2, Variant("changed")), succeeds());
    ASSERT_THAT(set->Del(listOf("c")), succeeds());
    ASSERT_THAT(set->Add(listOf("d")), succeeds());
    ASSERT_THAT(set->Addition(Variant(1)), testing::Ne(status::ok));
    EXPECT_EQ(shown(set), "'a' 'changed' 'd'");
    ASSERT_THAT(set->Clear(), succeeds());
    set = nullptr;
    EXPECT_EQ(shown(loop), "'b' 'c'");
    ASSERT_THAT(loop->Reset(), succeeds());
    EXPECT_EQ(shown(loop), "'a' 'b' 'c'");
}

TEST(SetNewEnumTest, NextSkipAndCloneCountWhatIsLeft) {
    const std::int64_t before = module::liveObjects();
    {
        const Ref<IEnumVARIANT> walk = enumeratorOf(newSet(listOf(1, 2, 3, 4, 5)));
        std::vector<Variant> values(4, Variant("untouched"));
        std::uint32_t fetched = 9;
        EXPECT_THAT(walk->Next(0, values.data(), &fetched), succeeds());
        EXPECT_EQ(fetched, 0U);
        EXPECT_THAT(walk->Skip(1), succeeds());
        EXPECT_THAT(walk->Next(2, values.data(), &fetched), succeeds());
        EXPECT_EQ(fetched, 2U);
        IEnumVARIANT* copy = nullptr;
        ASSERT_THAT(walk->Clone(&copy), succeeds());
        const Ref<IEnumVARIANT> clone = Ref<IEnumVARIANT>::adopt(copy);
        EXPECT_EQ(walk->Next(4, values.data(), &fetched), Status{1});
        EXPECT_EQ(fetched, 2U);
        EXPECT_EQ(shown(values), "4 5 'untouched' 'untouched'");
        EXPECT_EQ(walk->Skip(1), Status{1});
        EXPECT_EQ(shown(clone), "4 5");
        EXPECT_EQ(clone->Skip(std::numeric_limits<std::uint32_t>::max()), Status{1});
        EXPECT_EQ(walk->Next(1, nullptr, &fetched), status::nullPointer);
        EXPECT_EQ(walk->Clone(nullptr), status::nullPointer);
    }
    EXPECT_EQ(module::liveObjects(), before);
}

}  // namespace
}  // namespace tarq
