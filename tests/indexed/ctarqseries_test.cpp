// Series and their enumerators.
#include "indexed/sets/ctarqseries.h"

#include <cmath>
#include <limits>

#include "indexed/sets/ctarqseriesenum.h"
#include "tests/indexed/datafixture.h"

namespace tarq {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr std::int32_t mostMembers = std::numeric_limits<std::int32_t>::max();
const Variant none = Variant::missing();

auto raisesInSeries(Status status, const char* description) {
    return raisesAs(classid::TARQSeries, status, description);
}

std::int32_t countOf(const Ref<ITARQSeries>& series) {
    std::int32_t count = -1;
    EXPECT_THAT(series->get_Count(&count), succeeds());
    return count;
}

TEST(SeriesTest, InitTakesTheStepOrTheDirection) {
    struct Case {
        double start, end;
        Variant step;
        std::int32_t count;
        const char* members;
    };
    const Case cases[] = {
        {1, 5, none, 5, "1r 2r 3r 4r 5r"},
        {5, 1, none, 5, "5r 4r 3r 2r 1r"},
        {3, 3, none, 1, "3r"},
        {1, 2, Variant(0.25), 5, "1r 1.25r 1.5r 1.75r 2r"},
        {1, 2, Variant(0.3), 4, "1r 1.3r 1.6r 1.9r"},
        {1, 5, Variant("2"), 3, "1r 3r 5r"},
        {0.5, 2, none, 2, "0.5r 1.5r"},
        {3, 3, Variant(2), 1, "3r"},
        {3, 3, Variant(-2), 1, "3r"},
    };
    for (const Case& c : cases) {
        const Ref<ITARQSeries> series = make<CTARQSeries, ITARQSeries>();
        ASSERT_THAT(series->Init(c.start, c.end, c.step), succeeds());
        EXPECT_EQ(countOf(series), c.count);
        EXPECT_EQ(shown(enumeratorOf(series)), c.members);
    }
}

TEST(SeriesTest, RefusedInitLeavesTheSeriesAsItWas) {
    struct Case {
        double start, end;
        Variant step;
        const char* description;
    };
    constexpr const char* noNumber = "Parameter 'Step' could not be converted to numeric value.";
    const Case cases[] = {
        {1, 5, Variant("x"), noNumber},
        {1, 5, Variant::null(), noNumber},
        {1, 5, Variant(Ref<IUnknown>()), noNumber},
        {1, 5, Variant(0.0), "Step may not be zero."},
        {1, 5, Variant(-0.0), "Step may not be zero."},
        {1, 5, Variant("0"), "Step may not be zero."},
        {5, 1, Variant(1), "Start is greater than End."},
        {1, 5, Variant(-1), "Start is less than End."},
    };
    const Ref<ITARQSeries> series = newSeries(1, 2);
    const Ref<ITARQSeries> fresh = make<CTARQSeries, ITARQSeries>();
    for (const Case& c : cases) {
        EXPECT_THAT(series->Init(c.start, c.end, c.step), raisesInSeries(status::invalidArgument, c.description));
        EXPECT_THAT(fresh->Init(c.start, c.end, c.step), raisesInSeries(status::invalidArgument, c.description));
    }
    EXPECT_EQ(shown(enumeratorOf(series)), "1r 2r");
    Ref<IUnknown> made;
    EXPECT_THAT(fresh->get__NewEnum(&made), raisesInSeries(status::wrongState, "TARQSeries has not been initialized"));
}

TEST(SeriesTest, NewSeriesCountsOneAndHasNoEnumerator) {
    const Ref<ITARQSeries> series = make<CTARQSeries, ITARQSeries>();
    EXPECT_EQ(countOf(series), 1);
    Ref<IUnknown> made;
    EXPECT_THAT(series->get__NewEnum(&made), raisesInSeries(status::wrongState, "TARQSeries has not been initialized"));
    EXPECT_EQ(series->get__NewEnum(nullptr), status::nullPointer);
    EXPECT_EQ(series->get_Count(nullptr), status::nullPointer);
}

TEST(SeriesTest, CountFits32BitsWhateverTheNumbers) {
    struct Case {
        double start, end;
        Variant step;
        std::int32_t count;
    };
    const Case cases[] = {
        {0, std::nextafter(1.0, 0.0), none, 1},   {0, 2147483645, none, 2147483646},
        {0, 2147483646, none, mostMembers},       {0, 2147483647, none, mostMembers},
        {-1e308, 1e308, none, mostMembers},       {0, 1, Variant(1e-300), mostMembers},
        {0, infinity, none, mostMembers},         {0, 1, Variant(infinity), 1},
        {infinity, infinity, none, mostMembers},  {0, notANumber, none, mostMembers},
        {0, 1, Variant(notANumber), mostMembers},
    };
    for (const Case& c : cases) {
        const Ref<ITARQSeries> series = make<CTARQSeries, ITARQSeries>();
        ASSERT_THAT(series->Init(c.start, c.end, c.step), succeeds());
        EXPECT_EQ(countOf(series), c.count) << c.start << " to " << c.end;
    }
}

TEST(SeriesTest, SeriesHandsBackItself) {
    const Ref<ITARQSeries> series = make<CTARQSeries, ITARQSeries>();
    Ref<IUnknown> same;
    ASSERT_THAT(series->get_Series(1, 3, none, &same), succeeds());
    EXPECT_EQ(same.query<ITARQSeries>(), series);
    EXPECT_EQ(countOf(series), 3);
    same = nullptr;
    EXPECT_THAT(series->get_Series(1, 3, Variant(-1), &same),
                raisesInSeries(status::invalidArgument, "Start is less than End."));
    EXPECT_EQ(same, nullptr);
    EXPECT_EQ(series->get_Series(1, 9, none, nullptr), status::nullPointer);
    EXPECT_EQ(countOf(series), 3);
}

TEST(SeriesEnumTest, CountOfNextIsOneTooMany) {
    const Ref<IEnumVARIANT> members = enumeratorOf(newSeries(1, 3));
    std::vector<Variant> values(4, Variant("untouched"));
    std::uint32_t fetched = 0;
    EXPECT_THAT(members->Next(0, values.data(), &fetched), succeeds());
    EXPECT_EQ(fetched, 1U);
    EXPECT_THAT(members->Next(2, values.data(), &fetched), succeeds());
    EXPECT_EQ(fetched, 3U);
    EXPECT_EQ(members->Next(2, &values[2], &fetched), Status{1});
    EXPECT_EQ(fetched, 2U);
    EXPECT_EQ(shown(values), "1r 2r 3r 'untouched'");
    EXPECT_EQ(members->Next(1, nullptr, nullptr), status::nullPointer);
    ASSERT_THAT(members->Reset(), succeeds());
    EXPECT_EQ(shown(members), "1r 2r 3r");
    EXPECT_EQ(members->Clone(nullptr), status::notImplemented);
}

TEST(SeriesEnumTest, SkipSucceedsOnlyStrictlyBeforeTheEnd) {
    struct Case {
        double start, end;
        std::uint32_t count;
        Status status;
        const char* left;
    };
    const Case cases[] = {
        {1, 3, 0, status::ok, "1r 2r 3r"}, {1, 3, 1, status::ok, "2r 3r"}, {1, 3, 2, Status{1}, "3r"},
        {1, 3, 3, Status{1}, ""},          {3, 1, 1, status::ok, "2r 1r"}, {3, 1, 2, Status{1}, "1r"},
        {1, 3, 0xFFFFFFFF, Status{1}, ""},
    };
    for (const Case& c : cases) {
        const Ref<IEnumVARIANT> members = enumeratorOf(newSeries(c.start, c.end));
        EXPECT_EQ(members->Skip(c.count), c.status);
        EXPECT_EQ(shown(members), c.left);
    }
}

TEST(SeriesEnumTest, InitTakesWhatItGetsAndAStepOfZeroCountsAsDescending) {
    const Ref<ITARQSeriesEnum> members = make<CTARQSeriesEnum, ITARQSeriesEnum>();
    const Ref<IEnumVARIANT> walk = members.query<IEnumVARIANT>();
    ASSERT_THAT(members->Init(5, 1, 1), succeeds());
    EXPECT_EQ(shown(walk), "");
    ASSERT_THAT(members->Init(1, 5, 0), succeeds());
    EXPECT_EQ(shown(walk), "");
    ASSERT_THAT(members->Init(1, 1, 0), succeeds());
    std::vector<Variant> values(3);
    EXPECT_THAT(walk->Next(3, values.data(), nullptr), succeeds());
    EXPECT_EQ(shown(values), "1r 1r 1r");
    EXPECT_EQ(walk->Skip(1), Status{1});
}

TEST(SeriesEnumTest, BeforeInitItIsRefused) {
    const Ref<ITARQSeriesEnum> members = make<CTARQSeriesEnum, ITARQSeriesEnum>();
    const Ref<IEnumVARIANT> walk = members.query<IEnumVARIANT>();
    const auto refuses = [] {
        return raisesAs(classid::TARQSeriesEnum, status::notInitialized, "TARQSeriesEnum has not been initialized.");
    };
    Variant value;
    EXPECT_THAT(walk->Next(1, &value, nullptr), refuses());
    EXPECT_THAT(walk->Skip(1), refuses());
    EXPECT_THAT(walk->Reset(), refuses());
}

}  // namespace
}  // namespace tarq
