// LPs: optima in every algorithm variant, statuses, duals and states.
#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "loadedengine.h"

namespace tarq::test {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

using LinearTest = EngineTest;

auto basics(const StageResult& stage) { return std::ranges::count(stage.states, TarqBasic); }

TEST_F(LinearTest, EveryAlgorithmFindsTheOptimum) {
    const TestModel dense = denseLp(25);
    const double expected = optimizeLp(dense).objective;
    for (const Parameters& parameters : combinations({{"xlptyp=0", "xlptyp=2", "xlptyp=4"},
                                                      {"xipxov=0", "xipxov=1", "xipxov=2", "xipxov=3"},
                                                      {"xrduce=0", "xrduce=2", "xscale=0", "xdjscl=3", "xfrinv=20"}})) {
        SCOPED_TRACE(testing::PrintToString(parameters));
        const StageResult small = optimizeLp(smallLp(), parameters);
        EXPECT_EQ(small.solutionStatus, TarqLPSolutionOptimal) << message();
        EXPECT_THAT(small.values, Pointwise(DoubleNear(1e-6), {3, 1, 4, 6}));
        EXPECT_NEAR(small.solutionObjective, -5, 1e-6);
        const StageResult large = optimizeLp(dense, parameters);
        EXPECT_EQ(large.solutionStatus, TarqLPSolutionOptimal);
        EXPECT_NEAR(large.objective, expected, 1e-6 * std::abs(expected));
    }
}

TEST_F(LinearTest, InfeasibleAndUnboundedAreToldApart) {
    TestModel infeasible =
        TestModel{}.column(0, infinite, 1).column(0, infinite, 1).row(2, {1, 1}, 3).row(5, {1, 1}, 9);
    // Presolve alone sees only that the columns that lower the cost have no end.
    TestModel unbounded = TestModel{}.column(0, infinite, -1).column(0, infinite, 1).row(0, {1, -1}, infinite);
    // Without presolve the interior point method sees no row of this one, and comes to no end on that one.
    TestModel rowless = TestModel{}.column(0, infinite, -1).column(0, 5, 1).row(-infinite, {1, 1}, infinite);
    TestModel endlessly = TestModel{}
                              .column(-infinite, infinite, 1)
                              .column(-infinite, infinite, 0)
                              .column(0, infinite, 1)
                              .row(0, {0, -3, 3}, 0);
    TestModel neither = TestModel{}.column(0, infinite, -1).column(0, infinite, 0).row(1, {0, 1}, 2).row(3, {0, 1}, 4);
    for (const Parameters& parameters :
         combinations({{"xlptyp=0", "xlptyp=2", "xlptyp=4"}, {"xipxov=0", "xipxov=2"}, {"xrduce=0", "xrduce=2"}})) {
        SCOPED_TRACE(testing::PrintToString(parameters));
        const auto isTold = [&](const TestModel& model, std::int32_t status) {
            const StageResult told = optimizeLp(model, parameters);
            EXPECT_EQ(told.result, TarqSuccess);
            EXPECT_EQ(told.lpStatus, status);
            EXPECT_EQ(told.solutionStatus, status);
            EXPECT_LE(told.iterations, 1000);
        };
        for (const TestModel& model : {infeasible, neither}) isTold(model, TarqLPInfeasible);
        for (const TestModel& model : {unbounded, rowless, endlessly}) isTold(model, TarqLPUnbounded);
    }
    const TestModel relaxed = TestModel{}.column(0, infinite, -1, TarqIntegerColumn).row(0, {1}, infinite);
    EXPECT_EQ(optimizeLp(relaxed).lpStatus, TarqLPUnbounded);
}

TEST_F(LinearTest, DirectionDecidesTheSign) {
    const TestModel model = smallLp().negateCosts();
    for (const char* direction : {"xminmx='max'", "xminmx='MAX'"}) {
        const StageResult largest = optimizeLp(model, {direction});
        EXPECT_NEAR(largest.objective, 5, 1e-9);
        EXPECT_NEAR(largest.solutionObjective, 5, 1e-9);
        EXPECT_NEAR(number("xlpfun"), 5, 1e-9);
    }
    EXPECT_NEAR(optimizeLp(model, {"xminmx='min'"}).objective, 0, 1e-9);
}

// The derivative of the optimum by every finite bound, against what the engine delivers for it.
TEST_F(LinearTest, DualsAreDerivativesOfTheObjective) {
    const auto base = [] {
        return TestModel{}
            .column(0, 3, -1)
            .column(1, infinite, -2.5)
            .column(-infinite, 2, 4)
            .column(0.5, 0.5, 7)
            .row(-infinite, {1, 1, 0, 1}, 4)
            .row(-infinite, {1, 2, 3, 4}, infinite)
            .row(-infinite, {1, 3, -1, 0}, 6)
            .row(-1.5, {0, 1, 1, 0}, 8)
            .row(2, {1, 0, 0, 2}, 2);
    };
    for (const bool maximize : {false, true}) {
        // With a time limit presolve and the way back are steps of their own; without crossover there is no basis.
        for (Parameters parameters : {Parameters{"xlptyp=0"},
                                      {"xlptyp=2"},
                                      {"xlptyp=2", "xmxtlp=9"},
                                      {"xlptyp=4"},
                                      {"xlptyp=4", "xrduce=0"},
                                      {"xlptyp=4", "xipxov=0"},
                                      {"xlptyp=4", "xipxov=0", "xrduce=0"},
                                      {"xlptyp=4", "xipxov=0", "xmxtlp=9"}}) {
            SCOPED_TRACE(fmt::format("{} {}", testing::PrintToString(parameters), maximize));
            parameters.push_back(maximize ? "xminmx='max'" : "xminmx='min'");
            TestModel model = base();
            if (maximize) model.negateCosts();
            const StageResult optimum = optimizeLp(model, parameters);
            ASSERT_EQ(optimum.solutionStatus, TarqLPSolutionOptimal);
            int tight = 0;
            for (std::size_t position = 0; position < optimum.values.size(); ++position) {
                TestModel moved = model;
                const bool column = position < model.cost.size();
                const std::size_t own = column ? position : position - model.cost.size();
                constexpr double step = 1e-3;
                (column ? moved.columnLower : moved.rowLower)[own] += step;
                (column ? moved.columnUpper : moved.rowUpper)[own] += step;
                const double derivative = (optimizeLp(moved, parameters).objective - optimum.objective) / step;
                EXPECT_NEAR(optimum.reducedCosts[position], derivative, 1e-5) << "at " << position;
                if (std::abs(derivative) > 1e-5) ++tight;
            }
            EXPECT_GE(tight, 3);
        }
    }
}

// A model of which presolve takes only a part away, so that the way back has duals to work out.
TEST_F(LinearTest, ReducedCostsFollowFromTheDuals) {
    TestModel model = denseLp(8);
    model.columnUpper[0] = model.columnLower[0] = 1;
    std::swap(model.rowLower, model.rowUpper);
    for (double& lower : model.rowLower) lower = -infinite;
    model.column(0, infinite, 3).row(-infinite, {0, 1, 0, 0, 0, 0, 0, 0, 1}, 4);
    for (const Parameters& parameters :
         combinations({{"xlptyp=4"}, {"xminmx='max'"}, {"xipxov=0", "xipxov=2"}, {"xmxtlp=1e20", "xmxtlp=9"}})) {
        SCOPED_TRACE(testing::PrintToString(parameters));
        const StageResult optimum = optimizeLp(model, parameters);
        ASSERT_EQ(optimum.solutionStatus, TarqLPSolutionOptimal);
        std::vector<double> expected = model.cost;
        for (std::size_t nonzero = 0; nonzero < model.values.size(); ++nonzero) {
            const std::size_t row = model.cost.size() + static_cast<std::size_t>(model.rowIndices[nonzero] - 1);
            expected[static_cast<std::size_t>(model.columnIndices[nonzero] - 1)] -=
                model.values[nonzero] * optimum.reducedCosts[row];
        }
        EXPECT_GT(optimum.reducedCosts[model.cost.size() + 8], 1);  // the last row holds the last column
        EXPECT_THAT(std::vector(optimum.reducedCosts.begin(), optimum.reducedCosts.begin() + model.columns),
                    Pointwise(DoubleNear(1e-5), expected));
    }
}

TEST_F(LinearTest, StatesAreThePublishedOnes) {
    const TestModel model = TestModel{}
                                .column(0, 3, -1)                // at its upper bound
                                .column(0, 9, 0.5)               // at its lower bound
                                .column(2, 2, 1)                 // fixed
                                .column(-infinite, infinite, 0)  // free and of no use
                                .column(0, infinite, -2)         // basic
                                .row(-infinite, {0, 1, 1, 0, 1}, 8)
                                .row(-50, {1, 0, 0, 1, 0}, 50)
                                .row(3, {1, 0, 0, 1, 0}, 3);
    for (const char* presolve : {"xrduce=0", "xrduce=2"}) {
        const StageResult optimum = optimizeLp(model, {presolve});
        ASSERT_EQ(optimum.solutionStatus, TarqLPSolutionOptimal);
        EXPECT_THAT(optimum.states, ElementsAre(TarqAtUpperBound, TarqAtLowerBound, TarqFixed, testing::_, TarqBasic,
                                                TarqAtUpperBound, TarqBasic, testing::_));
        // A basis has as many basic members as there are rows.
        EXPECT_EQ(basics(optimum), 3);
    }
    // Without a basis a value between its bounds is superbasic.
    const StageResult interior = optimizeLp(denseLp(5), {"xlptyp=4", "xipxov=0", "xrduce=0"});
    EXPECT_EQ(basics(interior), 0);
    EXPECT_GT(std::ranges::count(interior.states, TarqSuperbasic), 0);
    const TestModel bounded = TestModel{}.column(0, 9, 0.5).column(0, 9, -1).row(-infinite, {1, 1}, 50);
    EXPECT_THAT(optimizeLp(bounded, {"xlptyp=4", "xipxov=0", "xrduce=0"}).states,
                ElementsAre(TarqAtLowerBound, TarqAtUpperBound, TarqSuperbasic));
    EXPECT_EQ(optimizeLp(TestModel{}.column(-infinite, infinite, 0)).states.at(0), TarqSuperbasic);
}

TEST_F(LinearTest, ModelsWithoutRowsOrColumnsAreSolved) {
    const StageResult noRows = optimizeLp(TestModel{}.column(-2, 5, 3));
    EXPECT_EQ(noRows.solutionStatus, TarqLPSolutionOptimal);
    EXPECT_THAT(noRows.values, ElementsAre(-2));
    EXPECT_EQ(optimizeLp(TestModel{}.column(-infinite, 5, 3)).lpStatus, TarqLPUnbounded);
    const StageResult noColumns = optimizeLp(TestModel{}.row(-1, {}, 1));
    EXPECT_EQ(noColumns.solutionStatus, TarqLPSolutionOptimal);
    EXPECT_THAT(noColumns.states, ElementsAre(TarqBasic));
    EXPECT_EQ(optimizeLp(TestModel{}.row(1, {}, 2)).lpStatus, TarqLPInfeasible);
    EXPECT_EQ(optimizeLp(TestModel{}).solutionStatus, TarqLPSolutionOptimal);
    EXPECT_EQ(optimizeLp(TestModel{}.column(0, 1, -1, TarqIntegerColumn)).solutionStatus, TarqLPSolutionOptimal);
    EXPECT_NEAR(solveIp().objective, -1, 1e-9);
}

TEST_F(LinearTest, ElementsBelowTheDropToleranceAreLeftOut) {
    const TestModel model = TestModel{}.column(0, infinite, -1).row(-infinite, {1e-6}, 1);
    EXPECT_NEAR(optimizeLp(model, {"xdropm=1e-7"}).objective, -1e6, 1e-3);
    EXPECT_EQ(optimizeLp(model, {"xdropm=1e-5"}).lpStatus, TarqLPUnbounded);
}

TEST_F(LinearTest, RunsRepeatWithOtherThreadsAndTheSameOutcome) {
    for (const char* threads : {"xnproc=1", "xnproc=2", "xnproc=1", "xnproc=2147483647"}) {
        EXPECT_NEAR(optimizeLp(smallLp(), {threads}).objective, -5, 1e-9) << message();
    }
    // One model, several stages: each starts from the beginning.
    EXPECT_NEAR(solveLp().objective, -5, 1e-9);
    // So do the options: after a stage without crossover one with it.
    EXPECT_EQ(basics(optimizeLp(denseLp(25), {"xlptyp=4", "xipxov=0"})), 0);
    ASSERT_EQ(set("xipxov=2"), TarqSuccess);
    EXPECT_EQ(basics(solveLp()), 25);
}

}  // namespace tarq::test
