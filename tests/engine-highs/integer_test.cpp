// Integer models: optima, proofs that there is none, cut-off, and what is delivered for a solution.
#include <algorithm>
#include <cmath>

#include "loadedengine.h"

namespace tarq::test {

using testing::ElementsAre;

using IntegerTest = EngineTest;

// A knapsack: max 10x + 13y + 7z, 3x + 4y + 2z <= 6 and binary; the best is 20 with y and z.
TestModel knapsack(double sign = 1.0) {
    return TestModel{}
        .column(0, 1, 10 * sign, TarqBinaryColumn)
        .column(0, 1, 13 * sign, TarqBinaryColumn)
        .column(0, 1, 7 * sign, TarqBinaryColumn)
        .row(-infinite, {3, 4, 2}, 6);
}

TEST_F(IntegerTest, OptimumHasTheSignOfTheClientsObjective) {
    for (const double sign : {1.0, -1.0}) {
        const std::string direction = sign > 0 ? "xminmx='max'" : "xminmx='min'";
        for (const char* presolve : {"xnopre=0", "xnopre=1"}) {
            const StageResult best = optimizeIp(knapsack(sign), {direction, presolve, "xheutp=0"});
            EXPECT_EQ(best.result, TarqSuccess) << message();
            EXPECT_EQ(best.solutionStatus, TarqIPSolutionOptimal);
            EXPECT_THAT(best.values, ElementsAre(0, 1, 1, 6));
            for (const double told : {best.objective, best.solutionObjective, best.bestPossible, number("xipfun")}) {
                EXPECT_NEAR(told, 20 * sign, 1e-9);
            }
            for (const char* name : {"xzbest", "xzlbnd", "xzubnd"}) EXPECT_NEAR(number(name), -20, 1e-9);
            EXPECT_NEAR(number("xcmgap"), 0, 1e-9);
            EXPECT_GE(number("xnints"), 1);
        }
    }
}

TEST_F(IntegerTest, NoIntegerPointIsToldAndBoundsHold) {
    const TestModel model =
        TestModel{}.column(0, 10, 1, TarqIntegerColumn).column(0, 10, 1, TarqIntegerColumn).row(1, {2, 2}, 1);
    const StageResult none = optimizeIp(model);
    EXPECT_EQ(none.result, TarqSuccess);
    EXPECT_EQ(none.solutionStatus, TarqIPSolutionNone);
    EXPECT_EQ(number("xzbest"), 1e20);
    // Columns keep bounds of their own, a binary one too, and fractional ones.
    const TestModel bounded = TestModel{}
                                  .column(0, 3, -1, TarqBinaryColumn)
                                  .column(0.5, 2.7, -1, TarqIntegerColumn)
                                  .row(-infinite, {1, 1}, 10);
    EXPECT_THAT(optimizeIp(bounded).values, ElementsAre(3, 2, 5));
}

TEST_F(IntegerTest, OnlySolutionsBetterThanTheCutOffCount) {
    for (const char* tooGood : {"xipbnd=20", "xipbnd=25"}) {
        const StageResult none = optimizeIp(knapsack(), {"xminmx='max'", tooGood});
        EXPECT_EQ(none.result, TarqSuccess);
        EXPECT_EQ(none.solutionStatus, TarqIPSolutionNone);
        EXPECT_EQ(none.integerSolutions, 0);
    }
    for (const char* bound : {"xipbnd=19", "xipbnd=-1e20", "xipbnd=1e20"}) {
        const StageResult best = optimizeIp(knapsack(), {"xminmx='max'", bound});
        EXPECT_EQ(best.solutionStatus, TarqIPSolutionOptimal) << bound;
        EXPECT_GT(best.integerSolutions, 0);
    }
    EXPECT_EQ(optimizeIp(knapsack(-1), {"xipbnd=-20"}).solutionStatus, TarqIPSolutionNone);
    EXPECT_EQ(optimizeIp(knapsack(-1), {"xipbnd=-19.5"}).solutionStatus, TarqIPSolutionOptimal);
}

// With its integers held, a solution is that of an LP, whose duals are delivered.
TEST_F(IntegerTest, DualsAreThoseOfTheLpWithIntegersHeld) {
    TestModel model = TestModel{}
                          .column(0, 5, -3, TarqIntegerColumn)
                          .column(0, infinite, -2)
                          .row(-infinite, {2, 1}, 7.5)
                          .row(-infinite, {-1, 1}, 1);
    const StageResult best = optimizeIp(model);
    ASSERT_EQ(best.solutionStatus, TarqIPSolutionOptimal);
    EXPECT_THAT(best.values, ElementsAre(2, 3, 7, 1));
    EXPECT_THAT(best.reducedCosts, ElementsAre(-5, 0, 0, -2));
    EXPECT_THAT(best.states, ElementsAre(TarqFixed, TarqBasic, TarqBasic, TarqAtUpperBound));
    model.rowUpper[1] += 0.1;
    EXPECT_NEAR(optimizeIp(model).objective, best.objective - 0.2, 1e-9);
}

TEST_F(IntegerTest, LimitsEndBranchAndBoundWithWhatItHas) {
    struct Case {
        Parameters parameters;
        std::int32_t frequency;
        std::int32_t result;
        std::int32_t stopReason;
    };
    constexpr auto none = TarqNoNodeBreak;
    const Case cases[] = {
        {{"xmxnod=20"}, none, TarqLimitReached, TarqIPNodeLimit},
        {{"xmxnod=0"}, none, TarqLimitReached, TarqIPNodeLimit},
        {{"xmxnod=20"}, 500, TarqLimitReached, TarqIPNodeLimit},
        {{"xmxmin=0.01"}, none, TarqLimitReached, TarqIPTimeLimit},  // 0.6 seconds
        {{"xmxint=1"}, none, TarqLimitReached, TarqIPSolutionLimit},
        {{"xmxint=0"}, none, TarqLimitReached, TarqIPSolutionLimit},
        {{}, 20, TarqStoppedAtBreak, TarqIPOtherLimit},
        {{"xmxnod=500"}, 20, TarqStoppedAtBreak, TarqIPOtherLimit},
    };
    for (const Case& limit : cases) {
        SCOPED_TRACE(testing::PrintToString(limit.parameters));
        ASSERT_EQ(optimizeLp(hardIp(), limit.parameters).result, TarqSuccess);
        const StageResult best = solveIp(limit.frequency);
        EXPECT_EQ(best.result, limit.result) << message();
        EXPECT_EQ(best.stopReason, limit.stopReason);
        EXPECT_LE(best.iterations, limit.stopReason == TarqIPTimeLimit ? 1e9 : 700);
        if (best.solutionStatus == TarqIPSolutionNone) {
            EXPECT_EQ(best.integerSolutions, 0);
            continue;
        }
        EXPECT_EQ(best.solutionStatus, TarqIPSolutionSuboptimal);
        EXPECT_GE(best.integerSolutions, 1);
        EXPECT_LE(best.bestPossible, best.objective);
        for (std::size_t column = 0; column < 30; ++column) {
            EXPECT_EQ(best.values[column], std::round(best.values[column]));
        }
    }
}

// What HiGHS holds then is the point of the LP, here an integral one and here a fractional one.
TEST_F(IntegerTest, AStageThatEndsBeforeItsStartHasNoSolution) {
    const TestModel integral = TestModel{}.column(0, 3, -1, TarqIntegerColumn).row(-infinite, {1}, 5);
    for (const char* limit : {"xmxint=0", "xmxmin=0"}) {
        for (const TestModel& model : {integral, knapsack(-1)}) {
            EXPECT_EQ(optimizeIp(model, {limit}).solutionStatus, TarqIPSolutionNone) << limit;
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
    EXPECT_EQ(best.stopReason, TarqIPNodeLimit);
    EXPECT_EQ(best.values.back(), best.values[0] + best.values[1]);
}

TEST_F(IntegerTest, EachRunHasItsWholeTime) {
    ASSERT_EQ(optimizeLp(hardIp(), {"xmxmin=0.01", "xmxtlp=0.01"}).result, TarqSuccess);
    for (int run = 0; run < 3; ++run) {
        const StageResult best = solveIp();
        EXPECT_EQ(best.stopReason, TarqIPTimeLimit);
        EXPECT_GE(number("xiptim"), 0.55) << "run " << run;
    }
}

TEST_F(IntegerTest, GapsEndTheSearchEarly) {
    for (const char* gap : {"xglgap=1", "xabgap=1e6"}) {
        const StageResult best = optimizeIp(hardIp(), {gap, "xmxmin=1"});
        EXPECT_EQ(best.result, TarqSuccess) << gap;
        EXPECT_EQ(best.solutionStatus, TarqIPSolutionOptimal) << gap;
        EXPECT_GT(best.objective, best.bestPossible) << gap;
    }
}

}  // namespace tarq::test
