#include "engine/solution.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/engine/enginefixture.h"

namespace tarq {
namespace {

using SolutionAccess = EngineTest;
using enum TARQSolutionStatusTyp;

// Calls all getters of one stage on an address; true when each gave the answer expected.
using RealGetter = Outcome (*)(const SolvedModel&, const Variant&, double&);
constexpr RealGetter lpGetters[] = {columnLpValue, columnReducedCost, rowLpValue, rowDual};
constexpr RealGetter ipGetters[] = {columnIpValue, rowIpValue};

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
        double value = 4.5;
        // An address that leads nowhere shows whether the guard came first.
        for (const RealGetter get : lpGetters) {
            EXPECT_EQ(get(model, Variant(99), value).status(),
                      guarded.lp ? status::invalidArgument : status::noLpSolution);
        }
        for (const RealGetter get : ipGetters) {
            EXPECT_EQ(get(model, Variant(99), value).status(),
                      guarded.ip ? status::invalidArgument : status::noIpSolution);
        }
        TARQColRowStatusType basis = TARQColRowStatusType::StatusFixed;
        EXPECT_EQ(columnStatus(model, Variant(1), basis).status(), guarded.lp ? status::ok : status::noLpSolution);
        EXPECT_EQ(basis, guarded.lp ? TARQColRowStatusType::UndefinedVarStatus : TARQColRowStatusType::StatusFixed);
        EXPECT_EQ(value, 4.5);
    }
}

TEST_F(SolutionAccess, ValuesAreReadByNumberAndByName) {
    use("scripted_full");
    makeInteger();
    ASSERT_EQ(run(), status::ok);
    const SolvedModel model{store, summary};
    const auto read = [&](RealGetter get, const Variant& address) {
        double value = 0.0;
        EXPECT_THAT(get(model, address, value), succeeds());
        return value;
    };
    EXPECT_EQ(read(columnLpValue, Variant(2)), 101.0);
    EXPECT_EQ(read(columnIpValue, Variant("z")), 202.0);
    EXPECT_EQ(read(columnReducedCost, Variant(2.6)), 252.0);
    EXPECT_EQ(read(rowLpValue, Variant("second")), 104.0);
    EXPECT_EQ(read(rowIpValue, Variant(1)), 203.0);
    EXPECT_EQ(read(rowDual, Variant(1)), 253.0);
    TARQColRowStatusType basis{};
    EXPECT_THAT(rowStatus(model, Variant("first"), basis), succeeds());
    EXPECT_EQ(basis, TARQColRowStatusType::StatusFixed);
}

TEST_F(SolutionAccess, FailedAddressIsWordedByTheResolver) {
    summary.solutionStatus = LPOptimalSolution;
    double value = 4.5;
    const SolvedModel model{store, summary};
    EXPECT_THAT(columnLpValue(model, Variant("q"), value),
                failsWith(status::invalidArgument, "Column name 'q' could not be found."));
    EXPECT_THAT(rowDual(model, Variant(3), value),
                failsWith(status::invalidArgument, "Row index is greater than number of rows."));
    EXPECT_EQ(value, 4.5);
}

}  // namespace
}  // namespace tarq
