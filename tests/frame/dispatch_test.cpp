// Late-bound calls: names, numbers, arguments and failures.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "tests/frame/panel.h"
#include "tests/support/outcomematchers.h"

namespace tarq {
namespace {

using testing::ElementsAre;

class DispatchTest : public testing::Test {
protected:
    DispatchTest() : panel(new Panel), dispatch(static_cast<IPanel*>(panel)) {}

    std::int32_t idOf(std::string_view name) {
        std::int32_t id = 0;
        EXPECT_THAT(dispatch->GetIDsOfNames({&name, 1}, &id), succeeds()) << name;
        return id;
    }
    Status call(std::string_view name, std::uint16_t kinds, std::vector<Variant> values,
                std::vector<std::int32_t> names = {}) {
        argument = 99;
        result = Variant();
        return dispatch->Invoke(idOf(name), kinds, {values, names}, &result, &argument);
    }

    Panel* panel;
    Ref<IDispatch> dispatch;
    Variant result;
    std::uint32_t argument = 99;
};

TEST_F(DispatchTest, NumbersCountPropertiesOnceAndKeepTheirOwn) {
    EXPECT_EQ(idOf("ITEM"), 0);
    EXPECT_EQ(idOf("shade"), 1);
    EXPECT_EQ(idOf("Join"), 2);
    EXPECT_EQ(idOf("Keep"), -4);
    EXPECT_EQ(idOf("KEPT"), 4);
}

TEST_F(DispatchTest, NamesOfParametersAreNumberedFromZero) {
    std::array<std::int32_t, 4> ids{};
    const std::array<std::string_view, 4> names{"split", "ONES", "fours", "number"};
    EXPECT_EQ(dispatch->GetIDsOfNames(names, ids.data()), status::unknownName);
    EXPECT_THAT(ids, ElementsAre(idOf("Split"), 2, -1, 0));
    const std::array<std::string_view, 2> unknown{"Spl\xC3\xAFt", "number"};
    EXPECT_EQ(dispatch->GetIDsOfNames(unknown, ids.data()), status::unknownName);
    EXPECT_EQ(ids[0], -1);
}

TEST_F(DispatchTest, ArgumentsLeftOutAreMissing) {
    struct Case {
        std::vector<Variant> values;
        std::vector<std::int32_t> names;
        std::string expected;
    };
    const Case cases[] = {
        {{}, {}, "missing,missing"},
        {{Variant("a")}, {}, "a,missing"},
        {{Variant("a"), Variant(2)}, {}, "a,2"},
        {{Variant::missing(), Variant(2)}, {}, "missing,2"},
        {{Variant(2)}, {1}, "missing,2"},
        {{Variant("a"), Variant(2)}, {1}, "a,2"},
        {{Variant(2), Variant("a")}, {1, 0}, "a,2"},
    };
    for (const Case& each : cases) {
        ASSERT_THAT(call("Item", invoke::get, each.values, each.names), succeeds()) << each.expected;
        EXPECT_EQ(result.text(), each.expected);
    }
}

TEST_F(DispatchTest, PutTakesItsNewValueLast) {
    ASSERT_THAT(call("Item", invoke::put, {Variant("a"), Variant("2.0")}), succeeds());
    EXPECT_EQ(panel->item, "a,missing=2");
    ASSERT_THAT(call("Item", invoke::put, {Variant("a"), Variant("b"), Variant(true)}, {1}), succeeds());
    EXPECT_EQ(panel->item, "a,b=-1");
    ASSERT_THAT(call("Shade", invoke::put, {Variant(7.0)}), succeeds());
    ASSERT_THAT(call("Shade", invoke::method | invoke::get, {}), succeeds());
    EXPECT_EQ(result.integer(), 7);
}

TEST_F(DispatchTest, VariadicListTakesTheRest) {
    ASSERT_THAT(call("Join", invoke::method, {Variant("-")}), succeeds());
    EXPECT_EQ(result.text(), "");
    std::int32_t three = 3;
    ASSERT_THAT(
        call("Join", invoke::method, {Variant(0), Variant("a"), Variant::missing(), Variant::byReference(three)}),
        succeeds());
    EXPECT_EQ(result.text(), "a0missing030");
}

TEST_F(DispatchTest, OutputsComeBackThroughReferences) {
    std::int32_t tens = 0;
    Variant ones;
    ASSERT_THAT(call("Split", invoke::method, {Variant(42), Variant::byReference(tens), Variant::byReference(ones)}),
                succeeds());
    EXPECT_EQ(tens, 4);
    EXPECT_EQ(ones.integer(), 2);

    ASSERT_THAT(call("Split", invoke::method, {Variant(50), Variant::byReference(tens), Variant::byReference(ones)}),
                succeeds());
    EXPECT_EQ(ones.integer(), 2) << "what the member doesn't write stays";

    panel->splitEnds = IEnumVARIANT::fewerLeft;
    EXPECT_EQ(call("Split", invoke::method, {Variant(63), Variant::byReference(tens), Variant::byReference(ones)}),
              IEnumVARIANT::fewerLeft);
    EXPECT_EQ(tens, 6) << "the end of a walk tells how far it came";
    EXPECT_EQ(ones.integer(), 3);
    for (const Status other : {status::noLpSolution, status::wrongState}) {
        panel->splitEnds = other;
        EXPECT_EQ(call("Split", invoke::method, {Variant(42), Variant::byReference(tens), Variant::byReference(ones)}),
                  other);
        EXPECT_EQ(tens, 6) << "nothing is handed back";
    }

    std::string wrong = "here";
    EXPECT_EQ(call("Split", invoke::method, {Variant(42), Variant::byReference(tens), Variant::byReference(wrong)}),
              status::argumentType);
    EXPECT_EQ(argument, 2U);
    EXPECT_EQ(wrong, "here");
}

TEST_F(DispatchTest, ObjectsAndOptionalPointersPass) {
    ASSERT_THAT(call("Keep", invoke::method, {Variant(Ref<IUnknown>(dispatch.get()))}), succeeds());
    ASSERT_THAT(call("Kept", invoke::get, {}), succeeds());
    EXPECT_EQ(result.object(), dispatch.get());
    panel->kept = nullptr;
    EXPECT_EQ(call("Keep", invoke::method, {Variant("no object")}), status::argumentType);
    ASSERT_THAT(call("Measure", invoke::method, {}), succeeds());
    EXPECT_EQ(result.text(), "unknown");
    ASSERT_THAT(call("Measure", invoke::method, {Variant("2.5")}), succeeds());
    EXPECT_EQ(result.real(), 2.5);
}

TEST_F(DispatchTest, WrongCallsFailBeforeTheMember) {
    struct Case {
        const char* name;
        std::uint16_t kinds;
        std::vector<Variant> values;
        std::vector<std::int32_t> names;
        Status expected;
        std::uint32_t argument;
    };
    constexpr std::uint32_t none = 99;
    const Variant one(1);
    const Variant text("twelve");
    const Case cases[] = {
        {"Join", invoke::get, {one}, {}, status::unknownMember, none},
        {"Kept", invoke::put, {one}, {}, status::unknownMember, none},
        {"Join", invoke::method, {}, {}, status::argumentCount, none},
        {"Shade", invoke::put, {}, {}, status::argumentCount, none},
        {"Split", invoke::method, {one, one}, {1}, status::argumentCount, none},
        {"Item", invoke::get, {one}, {0, 1}, status::argumentCount, none},
        {"Item", invoke::get, {one, one}, {0}, status::unknownParameterName, 1},
        {"Item", invoke::get, {one}, {2}, status::unknownParameterName, 0},
        {"Item", invoke::get, {one}, {-1}, status::unknownParameterName, 0},
        {"Join", invoke::method, {one, one}, {1}, status::unknownParameterName, 1},
        {"Split", invoke::method, {one, text, text}, {2, 1}, status::ok, none},
        {"Split", invoke::method, {text, one, one}, {}, status::argumentType, 0},
        {"Split", invoke::method, {one, one, text}, {2, 1, 0}, status::argumentType, 2},
        {"Split", invoke::method, {Variant::missing(), one, one}, {}, status::argumentType, 0},
        {"Split", invoke::method, {Variant(1e10), one, one}, {}, status::argumentType, 0},
        {"Item", invoke::put, {one, text}, {}, status::argumentType, 1},
        {"Measure", invoke::method, {text}, {}, status::argumentType, 0},
    };
    for (const Case& each : cases) {
        (void)raise(panelClass, "older", status::generalFailure);
        const std::string label = std::string(each.name) + " with " + std::to_string(each.values.size());
        EXPECT_EQ(call(each.name, each.kinds, each.values, each.names), each.expected) << label;
        EXPECT_EQ(argument, each.argument) << label;
        EXPECT_EQ(lastError(), nullptr) << label;
    }
    EXPECT_EQ(dispatch->Invoke(77, invoke::method, {}, nullptr, nullptr), status::unknownMember);
    EXPECT_EQ(dispatch->Invoke(-7, invoke::method, {}, nullptr, nullptr), status::unknownMember);
}

TEST_F(DispatchTest, MembersOwnStatusComesBackAndLeavesTheResult) {
    ASSERT_EQ(call("Fail", invoke::method, {Variant(static_cast<std::int32_t>(0x80041031))}), status::invalidArgument);
    ASSERT_NE(lastError(), nullptr);
    EXPECT_EQ(lastError()->description, "It failed.");
    EXPECT_EQ(argument, 99U);
    result = Variant("before");
    std::vector<Variant> values{Variant(0x42003)};
    EXPECT_EQ(dispatch->Invoke(idOf("Fail"), invoke::method, {values, {}}, &result, nullptr), status::noLpSolution);
    EXPECT_EQ(result.text(), "before");
    EXPECT_EQ(call("Exhaust", invoke::method, {}), status::outOfMemory);
}

}  // namespace
}  // namespace tarq
