// What every engine has to show in a run, whatever works behind it: the scripted one and ours, each with both forms of
// the start.
#include <gtest/gtest.h>

#include <string>

#include "tests/engine/enginefixture.h"

namespace tarq {
namespace {

using enum TARQSolverStatusTyp;
using enum TARQSolutionStatusTyp;

struct EngineUnderTest {
    const char* name;
    bool computes;  ///< else it plays what is expected of it
    bool startsNewly;
};

void PrintTo(const EngineUnderTest& engine, std::ostream* out) { *out << engine.name; }

// The columns are best at their lower bounds 100 to 102, and the rows 103 and 104 there.
class EngineBehaviour : public EngineTest, public testing::WithParamInterface<EngineUnderTest> {
protected:
    EngineBehaviour() {
        store.clear();
        addColumn("x", 100, 1e25, 150);
        addColumn("y", 101, 1e25, 151);
        addColumn("z", 102, 1e25, 152);
        addRow("first", 0, 1e25);
        addRow("second", -1e25, 200);
        store.setNonzero(1, 1, 1.03);
        store.setNonzero(1, 2, 1.04);
    }

    /// Runs the model on the engine; one that doesn't compute plays its part by `scriptText`.
    Status runOn(const std::string& scriptText = {}) {
        const Names missing = GetParam().startsNewly ? Names{} : noInitialize;
        if (GetParam().computes) {
            EXPECT_THAT(binding.setLocation(missing.empty() ? HIGHS_ENGINE : engineWithout(missing, HIGHS_ENGINE)),
                        succeeds());
        } else {
            use("lpSolutionObjective=45755 ipValue=100 ipDual=150 ipSolutionObjective=45755 bestPossible=45755 " +
                    scriptText,
                missing);
        }
        return run();
    }
};

TEST_P(EngineBehaviour, OptimaAreDelivered) {
    for (const bool integer : {false, true}) {
        if (integer) makeInteger();
        EXPECT_EQ(runOn("xlpfun=45755 xversn=1"), status::ok);
        EXPECT_EQ(summary.solverStatus, integer ? IPFinished : LPFinished);
        EXPECT_EQ(summary.solutionStatus, integer ? IPOptimalSolution : LPOptimalSolution);
        EXPECT_NEAR(summary.lpObjectiveValue, 45755, 1e-6);
        EXPECT_NEAR(integer ? summary.ipObjectiveValue : 45755, 45755, 1e-6);
        EXPECT_NEAR(parameters.resultDouble(resultIndex("xlpfun")), 45755, 1e-6);
        EXPECT_EQ(summary.lastSolverMessage.get(), "");
        EXPECT_NE(binding.versionText(), "unknown");
        for (int position = 0; position < 3; ++position) {
            const ColumnRecord& column = store.column(position);
            EXPECT_NEAR(column.lpValue, 100 + position, 1e-9);
            EXPECT_NEAR(column.ipValue, integer ? 100 + position : 0, 1e-9);
            EXPECT_NEAR(column.reducedCost, 150 + position, 1e-9);
        }
        EXPECT_NEAR(store.row(0).lpValue, 103, 1e-9);
        EXPECT_NEAR(store.row(1).lpValue, 104, 1e-9);
    }
}

TEST_P(EngineBehaviour, EarlyEndsAreTold) {
    struct Case {
        const char* parameter;
        const char* script;
        Status status;
        TARQSolverStatusTyp solver;
    };
    makeInteger();
    for (const Case& ended : {
             Case{"xmxtlp", "OptimizeLP=1 xertyp=2", status::resourceLimit, LPxmxtlpReached},
             Case{"xmxmin", "OptimizeIP=1 stopReason=3", status::resourceLimit, IPxmxminReached},
             Case{"xmxint", "OptimizeIP=1 stopReason=10", status::resourceLimit, IPOtherResourceLimitReached},
         }) {
        SCOPED_TRACE(ended.parameter);
        const int row = parameterIndex(ended.parameter);
        ASSERT_TRUE(parameters.setDouble(row, 0.0).isOk() || parameters.setLong(row, 0).isOk());
        EXPECT_EQ(runOn(ended.script), ended.status);
        EXPECT_EQ(summary.solverStatus, ended.solver);
        parameters.reset();
        EXPECT_EQ(runOn(), status::ok) << "the next run starts anew";
    }
}

TEST_P(EngineBehaviour, StopAtABreakPointEndsTheStage) {
    breakPoint = [](EngineInterface& engine) { engine.requestStop(); };
    EXPECT_EQ(runOn("wait=listening OptimizeLP=999"), status::stoppedAtBreak);
    EXPECT_EQ(summary.solverStatus, LPxfriteReached);
    breakPoint = nullptr;
    EXPECT_EQ(runOn(), status::ok);
}

TEST_P(EngineBehaviour, ModelsWithoutAnAnswerAreTold) {
    store.row(1).upperBound = 50;
    EXPECT_EQ(runOn("lpStatus=1"), status::ok);
    EXPECT_EQ(summary.solutionStatus, LPInfeasible);
    store.row(1).upperBound = 200;
    store.column(2).cost = -1;
    EXPECT_EQ(runOn("lpStatus=2"), status::ok);
    EXPECT_EQ(summary.solutionStatus, LPUnbounded);
    EXPECT_EQ(store.column(2).lpValue, 0) << "nothing is copied";
    store.column(2).upperBound = 5;
    EXPECT_EQ(runOn("PutModel=2 xline1='Bounds.'"), status::engineSetup);
    EXPECT_NE(summary.lastSolverMessage.get(), "");
}

INSTANTIATE_TEST_SUITE_P(, EngineBehaviour,
                         testing::Values(EngineUnderTest{"Scripted", false, true},
                                         EngineUnderTest{"ScriptedOlder", false, false},
                                         EngineUnderTest{"Highs", true, true},
                                         EngineUnderTest{"HighsOlder", true, false}),
                         [](const auto& engine) { return std::string(engine.param.name); });

}  // namespace
}  // namespace tarq
