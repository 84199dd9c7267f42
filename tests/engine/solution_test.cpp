#include "engine/solution.h"

#include <gtest/gtest.h>

#include "tests/engine/enginefixture.h"

namespace tarq {
namespace {

using SolutionAccess = EngineTest;
using enum TARQSolutionStatusTyp;

TEST_F(SolutionAccess, GuardsFollowTheStatusOfTheLatestRun) {
    struct Case {
        TARQSolutionStatusTyp solution;
        bool lp;
        bool ip;
    };
    const Case cases[] = {
        {UndefinedSolutionStatus, false, false},
        {LPOptimalSolution, true, false},
        {LPInfeasible, false, false},
        {LPUnbounded, false, false},
        {LPOnlyPrimalFeasible, true, false},
        {LPOnlyDualFeasible, true, false},
        {IPOptimalSolution, true, true},
        {IPSubOptimalSolution, true, true},
        {IPNoSolution, true, true},
    };
    const SolvedModel model{store, summary};
    for (const Case& guarded : cases) {
        SCOPED_TRACE(static_cast<int>(guarded.solution));
        summary.solutionStatus = guarded.solution;
        // An address that leads nowhere shows whether the guard came first.
        const Status lp = guarded.lp ? status::invalidArgument : status::noLpSolution;
        const Status ip = guarded.ip ? status::invalidArgument : status::noIpSolution;
        for (const auto get : {columnLpValue, columnReducedCost, rowLpValue, rowDual}) {
            EXPECT_EQ(get(model, Variant(99)).outcome().status(), lp);
        }
        for (const auto get : {columnIpValue, rowIpValue}) {
            EXPECT_EQ(get(model, Variant(99)).outcome().status(), ip);
        }
        for (const auto get : {columnStatus, rowStatus}) {
            EXPECT_EQ(get(model, Variant(99)).outcome().status(), lp);
        }
    }
}

TEST_F(SolutionAccess, SummaryAndValuesAreWhatTheEngineWrote) {
    use();
    makeInteger();
    ASSERT_EQ(run(), status::ok);
    EXPECT_EQ(summary.lpInfeasibilities, 12);
    EXPECT_EQ(summary.lpSumInfeasibilities, 14.5);
    EXPECT_EQ(summary.lpObjectiveValue, 15.5);
    EXPECT_EQ(summary.integerSolutions, 22);
    EXPECT_EQ(summary.ipBestPossible, 24.5);
    EXPECT_EQ(summary.ipObjectiveValue, 25.5);
    const SolvedModel model{store, summary};
    EXPECT_EQ(*columnLpValue(model, Variant(2)), 101.0);
    EXPECT_EQ(*columnIpValue(model, Variant("z")), 202.0);
    EXPECT_EQ(*columnReducedCost(model, Variant(2.6)), 252.0);
    EXPECT_EQ(*rowLpValue(model, Variant("second")), 104.0);
    EXPECT_EQ(*rowIpValue(model, Variant(1)), 203.0);
    EXPECT_EQ(*rowDual(model, Variant(1)), 253.0);
    EXPECT_EQ(*columnStatus(model, Variant(2)), TARQColRowStatusType::StatusLB);
    EXPECT_EQ(*rowStatus(model, Variant("first")), TARQColRowStatusType::StatusFixed);
}

}  // namespace
}  // namespace tarq
