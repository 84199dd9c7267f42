// The enumerators of sets that clients steer by items and steps.
#include "indexed/sets/ctarqsetenum.h"

#include <limits>

#include "indexed/sets/positionwalk.h"
#include "tests/indexed/datafixture.h"

namespace tarq {
namespace {

const Variant none = Variant::missing();
constexpr std::int32_t yes = -1;
constexpr std::int32_t no = 0;

auto raisesInEnum(Status status, const char* description) {
    return raisesAs(classid::TARQSetEnum, status, description);
}

/// An enumerator with its two interfaces.
struct SetEnum {
    Ref<ITARQSetEnum> steered;
    Ref<IEnumVARIANT> walked;

    std::int32_t read(Status (ITARQSetEnum::*getter)(std::int32_t*)) const {
        std::int32_t value = 99;
        EXPECT_THAT((steered.get()->*getter)(&value), succeeds());
        return value;
    }
    std::int32_t index() const { return read(&ITARQSetEnum::get_CurrentIndex); }
    std::int32_t isLast() const { return read(&ITARQSetEnum::get_IsLast); }
    std::int32_t isBeyondLast() const { return read(&ITARQSetEnum::get_IsBeyondLast); }
};

SetEnum newEnum() {
    const Ref<ITARQSetEnum> steered = make<CTARQSetEnum, ITARQSetEnum>();
    return {steered, steered.query<IEnumVARIANT>()};
}

SetEnum enumOf(const Ref<ITARQSet>& set, const Variant& start = none, const Variant& end = none,
               const Variant& step = none) {
    Ref<IUnknown> made;
    EXPECT_THAT(set->get_Enum(start, end, step, &made), succeeds());
    return {made.query<ITARQSetEnum>(), made.query<IEnumVARIANT>()};
}

TEST(SetEnumTest, WalksFromItemToItemByStep) {
    struct Case {
        Variant start, end, step;
        const char* walk;
    };
    const Case cases[] = {
        {none, none, none, "'a' 'b' 'c' 'b' 'd'"},
        {Variant("b"), none, none, "'b' 'c' 'b' 'd'"},
        {none, Variant("b"), none, "'a' 'b'"},
        {Variant("c"), Variant("a"), Variant(-1), "'c' 'b' 'a'"},
        {Variant("d"), Variant("a"), Variant("-3"), "'d' 'b'"},
        {Variant("b"), Variant("c"), Variant(2), "'b'"},
        {none, none, Variant(2.4), "'a' 'c' 'd'"},
        {none, none, Variant(std::numeric_limits<std::int32_t>::max()), "'a'"},
        {Variant("b"), Variant("b"), Variant(std::numeric_limits<std::int32_t>::min()), "'b'"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(shown(enumOf(newSet(listOf("a", "b", "c", "b", "d")), c.start, c.end, c.step).walked), c.walk);
    }
}

TEST(SetEnumTest, RefusedInitLeavesTheWalkAsItWas) {
    const Variant truth(true);
    struct Case {
        Ref<IUnknown> set;
        Variant start, end, step;
        const char* description;
    };
    const Ref<IUnknown> empty = newSet().query<IUnknown>();
    const Ref<IUnknown> letters = newSet(listOf("a", "b", "c")).query<IUnknown>();
    const Case cases[] = {
        {nullptr, none, none, none, "First paramter is no TARQSet."},
        {newSeries(1, 2).query<IUnknown>(), none, none, none, "First paramter is no TARQSet."},
        {empty, Variant("a"), none, none, "Base TARQSet is empty."},
        {empty, none, truth, none, "Base TARQSet is empty."},
        {empty, none, none, Variant(1), "Base TARQSet is empty."},
        {letters, Variant("x"), Variant("y"), none, "Start item not found."},
        {letters, none, Variant("y"), truth, "End item not found."},
        {letters, none, none, Variant("x"), "Parameter 'Step' is no integer value."},
        {letters, none, none, Variant(1e10), "Parameter 'Step' is no integer value."},
        {letters, none, none, Variant(0.5), "Parameter 'Step' may not be 0."},
        {letters, Variant("c"), Variant("b"), none, "Start item situated after end item."},
        {letters, none, none, Variant(-1), "Start item situated before end item."},
    };
    const SetEnum walk = enumOf(newSet(listOf(1, 2)));
    Variant first;
    ASSERT_THAT(walk.walked->Next(1, &first, nullptr), succeeds());
    for (const Case& c : cases) {
        EXPECT_THAT(walk.steered->Init(c.set.get(), c.start, c.end, c.step),
                    raisesInEnum(status::invalidArgument, c.description));
    }
    EXPECT_THAT(walk.steered->Init(letters.get(), truth),
                raisesAs(classid::TARQSet, status::invalidArgument, "Only strigs or numeric values allowed as item."));
    EXPECT_EQ(shown(walk.walked), "2");
    ASSERT_THAT(walk.steered->Init(letters.get(), Variant("b")), succeeds());
    EXPECT_EQ(shown(walk.walked), "'b' 'c'");
}

TEST(SetEnumTest, NegativeStepOverOneElementIsNoContradiction) {
    EXPECT_EQ(shown(enumOf(newSet(listOf(7)), none, none, Variant(-1)).walked), "7");
}

TEST(SetEnumTest, ArgumentsByReferenceAreRead) {
    std::string start = "b";
    Variant missing = none;
    Variant step(1);
    EXPECT_EQ(shown(enumOf(newSet(listOf("a", "b", "c")), Variant::byReference(start), Variant::byReference(missing),
                           Variant::byReference(step))
                        .walked),
              "'b' 'c'");
}

TEST(SetEnumTest, NavigationTellsWhereItIs) {
    const SetEnum walk = enumOf(newSet(listOf("a", "b", "c")), Variant("b"));
    struct Place {
        std::int32_t index, isLast, isBeyondLast;
    };
    for (const Place& place : {Place{2, no, no}, Place{3, yes, no}, Place{4, no, yes}}) {
        EXPECT_EQ(walk.index(), place.index);
        EXPECT_EQ(walk.isLast(), place.isLast);
        EXPECT_EQ(walk.isBeyondLast(), place.isBeyondLast);
        EXPECT_EQ(walk.steered->MoveNext(), place.isBeyondLast == yes ? Status{1} : status::ok);
    }
    EXPECT_EQ(walk.index(), 4);
    Variant item;
    clearLastError();
    EXPECT_EQ(walk.steered->get_CurrentItem(&item), status::generalFailure);
    EXPECT_EQ(lastError(), nullptr);
    ASSERT_THAT(walk.steered->MoveFirst(), succeeds());
    ASSERT_THAT(walk.steered->get_CurrentItem(&item), succeeds());
    EXPECT_EQ(shown(item), "'b'");
    EXPECT_EQ(walk.steered->get_CurrentItem(nullptr), status::nullPointer);
}

TEST(SetEnumTest, DescendingWalkTellsWhereItIs) {
    const SetEnum walk = enumOf(newSet(listOf("a", "b", "c")), Variant("c"), Variant("b"), Variant(-1));
    EXPECT_EQ(walk.isLast(), no);
    ASSERT_THAT(walk.steered->MoveNext(), succeeds());
    EXPECT_EQ(walk.isLast(), yes);
    ASSERT_THAT(walk.steered->MoveNext(), succeeds());
    EXPECT_EQ(walk.isLast(), no);
    EXPECT_EQ(walk.isBeyondLast(), yes);
    EXPECT_EQ(walk.index(), 1);
}

TEST(SetEnumTest, StepBeyondTheEndMakesTheFirstItemTheLast) {
    const SetEnum walk = enumOf(newSet(listOf("a", "b", "c")), Variant("b"), Variant("c"), Variant(2));
    EXPECT_EQ(walk.isLast(), yes);
}

TEST(SetEnumTest, NextGivesUpToAsManyAsThereAre) {
    const SetEnum walk = enumOf(newSet(listOf(1, 2, 3)));
    std::vector<Variant> values(3);
    std::uint32_t fetched = 9;
    EXPECT_THAT(walk.walked->Next(2, values.data(), &fetched), succeeds());
    EXPECT_EQ(fetched, 2U);
    EXPECT_EQ(walk.walked->Next(2, &values[2], &fetched), Status{1});
    EXPECT_EQ(fetched, 1U);
    EXPECT_EQ(shown(values), "1 2 3");
    EXPECT_THAT(walk.walked->Next(0, values.data(), &fetched), succeeds());
    EXPECT_EQ(fetched, 0U);
    EXPECT_EQ(walk.walked->Next(1, nullptr, &fetched), status::nullPointer);
    EXPECT_EQ(walk.walked->Clone(nullptr), status::notImplemented);
}

TEST(SetEnumTest, NewEnumStartsTheSameObjectAnew) {
    const SetEnum walk = enumOf(newSet(listOf(1, 2)));
    ASSERT_THAT(walk.steered->MoveNext(), succeeds());
    EXPECT_EQ(enumeratorOf(walk.steered), walk.walked);
    EXPECT_EQ(walk.index(), 1);
    EXPECT_EQ(walk.steered->get__NewEnum(nullptr), status::nullPointer);
}

TEST(SetEnumTest, SetThatChangesIsSeenAndNeverRunsOver) {
    const Ref<ITARQSet> set = newSet(listOf(1, 2, 3));
    const SetEnum walk = enumOf(set);
    ASSERT_THAT(walk.steered->MoveNext(), succeeds());
    ASSERT_THAT(set->Del(listOf(1, 2)), succeeds());
    Variant item("untouched");
    std::uint32_t fetched = 9;
    EXPECT_EQ(walk.walked->Next(1, &item, &fetched), status::generalFailure);
    ASSERT_THAT(set->Clear(), succeeds());
    EXPECT_EQ(walk.walked->Next(1, &item, &fetched), Status{1});
    EXPECT_EQ(fetched, 9U);
    EXPECT_EQ(shown(item), "'untouched'");
    ASSERT_THAT(set->Add(listOf(4, 5, 6, 7)), succeeds());
    EXPECT_EQ(shown(walk.walked), "5 6");
}

TEST(SetEnumTest, EnumeratorOfAnEmptySetHasNoItemsAndKeepsItsPlace) {
    const SetEnum walk = enumOf(newSet(listOf(1, 2)));
    ASSERT_THAT(walk.steered->MoveNext(), succeeds());
    const Ref<ITARQSet> empty = newSet();
    ASSERT_THAT(walk.steered->Init(empty.get()), succeeds());
    EXPECT_EQ(walk.index(), 2);
    EXPECT_EQ(walk.steered->MoveNext(), Status{1});
    ASSERT_THAT(walk.walked->Reset(), succeeds());
    EXPECT_EQ(walk.index(), 0);
    EXPECT_EQ(shown(walk.walked), "");
    ASSERT_THAT(empty->Add(listOf("late")), succeeds());
    Variant item;
    EXPECT_EQ(walk.walked->Next(1, &item, nullptr), Status{0x80070057});
}

TEST(SetEnumTest, BeforeInitItIsRefusedByNameOrAnswersNo) {
    const SetEnum walk = newEnum();
    const auto refuses = [] { return raisesInEnum(status::notInitialized, "TARQSetEnum has not been initialized."); };
    Variant item;
    Ref<IUnknown> same;
    EXPECT_THAT(walk.walked->Next(1, &item, nullptr), refuses());
    EXPECT_THAT(walk.walked->Skip(1), refuses());
    EXPECT_THAT(walk.walked->Reset(), refuses());
    EXPECT_THAT(walk.steered->get__NewEnum(&same), refuses());
    EXPECT_THAT(walk.steered->MoveFirst(), refuses());
    EXPECT_THAT(walk.steered->MoveNext(), refuses());
    EXPECT_THAT(walk.steered->get_CurrentItem(&item), refuses());
    EXPECT_EQ(walk.index(), 0);
    EXPECT_EQ(walk.isLast(), no);
    EXPECT_EQ(walk.isBeyondLast(), no);
    EXPECT_EQ(walk.walked->Clone(nullptr), status::notImplemented);
}

TEST(PositionWalkTest, SkipComparesTheDistanceAndNotThePlaceWithTheEnd) {
    PositionWalk walk{.start = 3, .end = 4, .step = 2, .current = 3};
    EXPECT_FALSE(walk.skip(3));
    EXPECT_EQ(walk.current, 3);
    EXPECT_TRUE(walk.skip(2));
    EXPECT_EQ(walk.current, 7);
    EXPECT_FALSE(walk.inRange());

    PositionWalk down{.start = 4, .end = 1, .step = -1, .current = 4};
    EXPECT_FALSE(down.skip(0));
    EXPECT_FALSE(down.skip(1));
    EXPECT_EQ(down.current, 4);
}

TEST(PositionWalkTest, NoStepOverflows) {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    constexpr std::uint32_t mostSteps = std::numeric_limits<std::uint32_t>::max();
    PositionWalk up{.start = 1, .end = most, .step = most, .current = 1};
    EXPECT_FALSE(up.skip(mostSteps));
    for (int i = 0; i < 10; ++i) EXPECT_TRUE(up.skip(1));
    EXPECT_FALSE(up.inRange());
    EXPECT_EQ(up.position(), most);

    PositionWalk down{.start = 1, .end = 1, .step = std::numeric_limits<std::int32_t>::min(), .current = 1};
    EXPECT_FALSE(down.skip(mostSteps));
    down.advance();
    EXPECT_FALSE(down.inRange());
    EXPECT_EQ(down.position(), std::numeric_limits<std::int32_t>::min() + 1);
}

}  // namespace
}  // namespace tarq
