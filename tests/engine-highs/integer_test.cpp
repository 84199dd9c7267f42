// Integer models: optima, proofs that there is none, cut-off, and what is delivered for a solution.
#include <algorithm>
#include <cmath>

#include "loadedengine.h"

namespace tarq::test {

using testing::DoubleNear;
using testing::ElementsAre;

class IntegerTest : public EngineTest {};

// A knapsack: max 10x + 13y + 7z, 3x + 4y + 2z <= 6 and binary; the best is 20 with y and z.
TestModel knapsack(double sign = 1.0) {
    return TestModel{}
        .column(0, 1, 10 * sign, 2)
        .column(0, 1, 13 * sign, 2)
        .column(0, 1, 7 * sign, 2)
        .row(-infinite, {3, 4, 2}, 6);
}

TEST_F(IntegerTest, OptimumHasTheSignOfTheClientsObjective) {
    struct Case {
        const char* direction;
        double sign;
    };
    for (const Case& direction : {Case{"xminmx='max'", 1.0}, Case{"xminmx='min'", -1.0}}) {
        for (const char* presolve : {"xnopre=0", "xnopre=1"}) {
            const StageResult best = optimizeIp(knapsack(direction.sign), {direction.direction, presolve, "xheutp=0"});
            EXPECT_EQ(best.result, 0) << message();
            EXPECT_EQ(best.solutionStatus, 0);
            EXPECT_NEAR(best.objective, 20 * direction.sign, 1e-9);
            EXPECT_NEAR(best.solutionObjective, 20 * direction.sign, 1e-9);
            EXPECT_NEAR(best.bestPossible, 20 * direction.sign, 1e-9);
            EXPECT_THAT(best.values, ElementsAre(0, 1, 1, 6));
            EXPECT_NEAR(number("xipfun"), 20 * direction.sign, 1e-9);
            EXPECT_NEAR(number("xzbest"), -20, 1e-9);
            EXPECT_NEAR(number("xzlbnd"), -20, 1e-9);
            EXPECT_NEAR(number("xzubnd"), -20, 1e-9);
            EXPECT_NEAR(number("xcmgap"), 0, 1e-9);
            EXPECT_GE(number("xnints"), 1);
        }
    }
}

TEST_F(IntegerTest, NoIntegerPointIsToldWithoutASolution) {
    const TestModel model = TestModel{}.column(0, 10, 1, 1).column(0, 10, 1, 1).row(1, {2, 2}, 1);
    const StageResult none = optimizeIp(model);
    EXPECT_EQ(none.result, 0);
    EXPECT_EQ(none.solutionStatus, 4);
    EXPECT_EQ(number("xzbest"), 1e20);
}

TEST_F(IntegerTest, IntegerColumnsKeepTheirOwnBounds) {
    // A binary with bounds of its own, and fractional bounds.
    const TestModel model = TestModel{}.column(0, 3, -1, 2).column(0.5, 2.7, -1, 1).row(-infinite, {1, 1}, 10);
    EXPECT_THAT(optimizeIp(model).values, ElementsAre(3, 2, 5));
}

TEST_F(IntegerTest, OnlySolutionsBetterThanTheCutOffCount) {
    struct Case {
        const char* bound;
        int status;
    };
    for (const Case& bound : {Case{"xipbnd=20", 4}, Case{"xipbnd=25", 4}, Case{"xipbnd=19", 0}, Case{"xipbnd=-1e20", 0},
                              Case{"xipbnd=1e20", 0}}) {
        const StageResult best = optimizeIp(knapsack(), {"xminmx='max'", bound.bound});
        EXPECT_EQ(best.result, 0) << bound.bound;
        EXPECT_EQ(best.solutionStatus, bound.status) << bound.bound;
        EXPECT_EQ(best.integerSolutions > 0, bound.status == 0) << bound.bound;
    }
    EXPECT_EQ(optimizeIp(knapsack(-1), {"xipbnd=-20"}).solutionStatus, 4);
    EXPECT_EQ(optimizeIp(knapsack(-1), {"xipbnd=-19.5"}).solutionStatus, 0);
}

// With its integers held, a solution is that of an LP, whose duals are delivered.
TEST_F(IntegerTest, DualsAreThoseOfTheLpWithIntegersHeld) {
    TestModel model =
        TestModel{}.column(0, 5, -3, 1).column(0, infinite, -2).row(-infinite, {2, 1}, 7.5).row(-infinite, {-1, 1}, 1);
    const StageResult best = optimizeIp(model);
    ASSERT_EQ(best.solutionStatus, 0);
    EXPECT_THAT(best.values, ElementsAre(2, 3, 7, 1));
    EXPECT_THAT(best.reducedCosts, ElementsAre(-5, 0, 0, -2));
    EXPECT_THAT(best.states, ElementsAre(4, 1, 1, 3));
    model.rowUpper[1] += 0.1;
    EXPECT_NEAR(optimizeIp(model).objective, best.objective - 0.2, 1e-9);
}

TEST_F(IntegerTest, LimitsEndBranchAndBoundWithWhatItHas) {
    struct Case {
        std::vector<std::string> parameters;
        std::int32_t frequency;
        std::int32_t result;
        std::int32_t stopReason;
    };
    const std::vector<Case> cases{
        {{"xmxnod=20"}, -1, 1, 6},  {{"xmxmin=0.01"}, -1, 1, 3},  // 0.6 seconds
        {{"xmxint=1"}, -1, 1, 10},  {{"xmxint=0"}, -1, 1, 10},    {{}, 20, 999, 0},
        {{"xmxnod=20"}, 500, 1, 6}, {{"xmxnod=500"}, 20, 999, 0}, {{"xmxnod=0"}, -1, 1, 6},
    };
    for (const Case& limit : cases) {
        SCOPED_TRACE(testing::PrintToString(limit.parameters));
        ASSERT_EQ(optimizeLp(hardIp(), limit.parameters).result, 0);
        const StageResult best = solveIp(limit.frequency);
        EXPECT_EQ(best.result, limit.result) << message();
        EXPECT_EQ(best.stopReason, limit.stopReason);
        if (limit.stopReason != 3) {
            EXPECT_LE(best.iterations, 700);
        }
        if (best.solutionStatus == 4) {
            EXPECT_EQ(best.integerSolutions, 0);
            continue;
        }
        EXPECT_EQ(best.solutionStatus, 3);
        EXPECT_GE(best.integerSolutions, 1);
        EXPECT_LE(best.bestPossible, best.objective);
        for (std::size_t column = 0; column < 30; ++column) {
            EXPECT_EQ(best.values[column], std::round(best.values[column]));
        }
    }
}

// What HiGHS holds then is the point of the LP, here an integral one and here a fractional one.
TEST_F(IntegerTest, AStageThatEndsBeforeItsStartHasNoSolution) {
    const TestModel integral = TestModel{}.column(0, 3, -1, 1).row(-infinite, {1}, 5);
    for (const char* limit : {"xmxint=0", "xmxmin=0"}) {
        for (const TestModel& model : {integral, knapsack(-1)}) {
            EXPECT_EQ(optimizeIp(model, {limit}).solutionStatus, 4) << limit;
            EXPECT_EQ(message(), "") << limit;
        }
    }
}

// Without presolve: the interior point method at the root mustn't see the last rows.
TEST_F(IntegerTest, RowsWithoutBoundsChangeNothing) {
    TestModel model = hardIp();
    for (int row = 0; row < 40; ++row) model.row(-infinite, {1, 1}, infinite);
    optimizeLp(model, {"xnopre=0", "xmxnod=20"});
    const StageResult best = solveIp();
    EXPECT_EQ(best.stopReason, 6);
    EXPECT_EQ(best.values.back(), best.values[0] + best.values[1]);
}

TEST_F(IntegerTest, EachRunHasItsWholeTime) {
    ASSERT_EQ(optimizeLp(hardIp(), {"xmxmin=0.01", "xmxtlp=0.01"}).result, 0);
    for (int run = 0; run < 3; ++run) {
        const StageResult best = solveIp();
        EXPECT_EQ(best.stopReason, 3);
        EXPECT_GE(number("xiptim"), 0.55) << "run " << run;
    }
}

TEST_F(IntegerTest, GapsEndTheSearchEarly) {
    for (const char* gap : {"xglgap=1", "xabgap=1e6"}) {
        const StageResult best = optimizeIp(hardIp(), {gap, "xmxmin=1"});
        EXPECT_EQ(best.result, 0) << gap;
        EXPECT_EQ(best.solutionStatus, 0) << gap;
        EXPECT_GT(best.objective, best.bestPossible) << gap;
    }
}

}  // namespace tarq::test
