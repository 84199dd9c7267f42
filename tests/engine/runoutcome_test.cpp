// What a run leaves behind: statuses, summary, solution values, result values and messages.
#include <gtest/gtest.h>

#include <string>

#include "tests/engine/enginefixture.h"

namespace tarq {
namespace {

using RunOutcome = EngineTest;
using enum TARQSolverStatusTyp;
using enum TARQSolutionStatusTyp;

constexpr const char* crucialText = "Crucial error. Check SolverStatus() and LastSolverMessage() for details.";

TEST_F(RunOutcome, LpStageEndsByItsResult) {
    struct Case {
        int result;
        int lpStatus;
        const char* xertyp;
        Status status;
        TARQSolverStatusTyp solver;
        TARQSolutionStatusTyp solution;
        bool fetched;
    };
    const Case cases[] = {
        {0, 0, "", status::ok, LPFinished, LPOnlyDualFeasible, true},
        {0, 1, "", status::ok, LPFinished, LPInfeasible, false},
        {0, 2, "", status::ok, LPFinished, LPUnbounded, false},
        {0, 3, "", status::ok, LPFinished, LPOnlyDualFeasible, true},
        {1, 1, "1", status::resourceLimit, LPxmiterReached, LPOnlyDualFeasible, true},
        {1, 0, " 2", status::resourceLimit, LPxmxtlpReached, LPOnlyDualFeasible, true},
        {1, 0, "4", status::resourceLimit, LPxmitipReached, LPOnlyDualFeasible, true},
        {1, 0, "3", status::resourceLimit, LPOtherResourceLimitReached, LPOnlyDualFeasible, true},
        {1, 0, "?", status::resourceLimit, LPOtherResourceLimitReached, LPOnlyDualFeasible, true},
        {999, 2, "1", status::stoppedAtBreak, LPxfriteReached, LPOnlyDualFeasible, true},
        {2, 0, "", status::crucialError, LPInputError, UndefinedSolutionStatus, false},
        {3, 1, "", status::crucialError, LPOutputError, UndefinedSolutionStatus, false},
        {4, 0, "", status::crucialError, LPNumericError, UndefinedSolutionStatus, false},
        {5, 0, "", status::crucialError, LPGeneralError, UndefinedSolutionStatus, false},
        {6, 0, "", status::crucialError, LPInternalSystemError, UndefinedSolutionStatus, false},
        {7, 0, "", status::crucialError, LPGeneralError, UndefinedSolutionStatus, false},
        {-1, 0, "", status::crucialError, LPGeneralError, UndefinedSolutionStatus, false},
        {1000, 0, "", status::crucialError, LPGeneralError, UndefinedSolutionStatus, false},
    };
    for (const Case& ending : cases) {
        SCOPED_TRACE(std::to_string(ending.result) + " " + std::to_string(ending.lpStatus) + " " + ending.xertyp);
        EngineScript& engine = use("scripted_full");
        engine.results["OptimizeLP"] = ending.result;
        engine.lpStatus = ending.lpStatus;
        engine.lpSolutionStatus = 4;
        engine.parameters["xertyp"] = ending.xertyp;
        EXPECT_EQ(run(), ending.status);
        EXPECT_EQ(summary.solverStatus, ending.solver);
        EXPECT_EQ(summary.solutionStatus, ending.solution);
        EXPECT_EQ(pendingError.description(), ending.status.failed() ? crucialText : "");
        EXPECT_EQ(engine.log.find("GetLPSolution") != std::string::npos, ending.fetched);
        EXPECT_TRUE(engine.log.ends_with("FreeMemory\nfinished\n"));
        EXPECT_EQ(summary.lpIterations, 11);
    }
}

TEST_F(RunOutcome, IpStageEndsByItsResult) {
    struct Case {
        int result;
        int stopReason;
        Status status;
        TARQSolverStatusTyp solver;
    };
    const Case cases[] = {
        {0, 6, status::ok, IPFinished},
        {1, 3, status::resourceLimit, IPxmxminReached},
        {1, 6, status::resourceLimit, IPxmxnodReached},
        {1, 7, status::resourceLimit, IPNodesBufferTooSmall},
        {1, 9, status::resourceLimit, IPxmxdskExceeded},
        {1, 0, status::resourceLimit, IPOtherResourceLimitReached},
        {999, 3, status::stoppedAtBreak, IPxfrndsReached},
        {2, 0, status::crucialError, IPInputError},
        {3, 0, status::crucialError, IPOutputError},
        {4, 0, status::crucialError, IPNumericError},
        {5, 0, status::crucialError, IPGeneralError},
        {6, 0, status::crucialError, IPInternalSystemError},
        {998, 0, status::crucialError, IPGeneralError},
    };
    makeInteger();
    for (const Case& ending : cases) {
        SCOPED_TRACE(std::to_string(ending.result) + " " + std::to_string(ending.stopReason));
        EngineScript& engine = use("scripted_full");
        engine.results["OptimizeIP"] = ending.result;
        engine.stopReason = ending.stopReason;
        engine.ipSolutionStatus = 3;
        EXPECT_EQ(run(), ending.status);
        EXPECT_EQ(summary.solverStatus, ending.solver);
        EXPECT_EQ(summary.solutionStatus, ending.status.failed() ? UndefinedSolutionStatus : IPSubOptimalSolution);
        EXPECT_EQ(pendingError.description(), ending.status.failed() ? crucialText : "");
        EXPECT_EQ(engine.log.find("GetIPSolution") == std::string::npos, ending.status.failed());
        EXPECT_TRUE(engine.log.ends_with("FreeMemory\nfinished\n"));
    }
}

TEST_F(RunOutcome, SummaryHoldsWhatTheEngineWrote) {
    use("scripted_full");
    makeInteger();
    EXPECT_EQ(run(), status::ok);
    EXPECT_EQ(summary.lpIterations, 11);
    EXPECT_EQ(summary.lpInfeasibilities, 12);
    EXPECT_EQ(summary.lpSumInfeasibilities, 14.5);
    EXPECT_EQ(summary.lpObjectiveValue, 15.5);
    EXPECT_EQ(summary.nodesProcessed, 21);
    EXPECT_EQ(summary.integerSolutions, 22);
    EXPECT_EQ(summary.ipBestPossible, 24.5);
    EXPECT_EQ(summary.ipObjectiveValue, 25.5);
}

TEST_F(RunOutcome, SolutionIsCopiedOnlyWhenTheStatusDeliversOne) {
    struct Case {
        int lpSolutionStatus;
        int ipSolutionStatus;
        TARQSolutionStatusTyp solution;
        bool lpCopied;
        bool ipCopied;
    };
    constexpr int none = -1;
    const Case cases[] = {
        {0, none, LPOptimalSolution, true, false},
        {1, none, LPInfeasible, false, false},
        {2, none, LPUnbounded, false, false},
        {3, none, LPOnlyPrimalFeasible, false, false},
        {4, none, LPOnlyDualFeasible, false, false},
        {5, none, LPInfeasible, false, false},
        {6, none, UndefinedSolutionStatus, false, false},
        {0, 0, IPOptimalSolution, true, true},
        {0, 3, IPSubOptimalSolution, true, true},
        {0, 4, IPNoSolution, true, false},
        {3, 0, IPOptimalSolution, false, true},
        {0, 7, UndefinedSolutionStatus, true, false},
    };
    for (const Case& delivery : cases) {
        SCOPED_TRACE(std::to_string(delivery.lpSolutionStatus) + " " + std::to_string(delivery.ipSolutionStatus));
        store.column(1).type = delivery.ipSolutionStatus == none ? TARQColType::Continuous : TARQColType::Binary;
        for (const double stale : {-1.0, -2.0}) {
            EngineScript& engine = use("scripted_full");
            engine.lpSolutionStatus = delivery.lpSolutionStatus;
            engine.ipSolutionStatus = delivery.ipSolutionStatus;
            ColumnRecord& column = store.column(2);
            RowRecord& row = store.row(1);
            column.lpValue = column.ipValue = column.reducedCost = row.lpValue = row.ipValue = row.dual = stale;
            column.status = row.status = TARQColRowStatusType::UndefinedVarStatus;
            EXPECT_EQ(run(), status::ok);
            EXPECT_EQ(summary.solutionStatus, delivery.solution);
            const bool anyCopied = delivery.lpCopied || delivery.ipCopied;
            const double duals = delivery.ipCopied ? 250.0 : 150.0;
            EXPECT_EQ(column.lpValue, delivery.lpCopied ? 102.0 : stale);
            EXPECT_EQ(row.lpValue, delivery.lpCopied ? 104.0 : stale);
            EXPECT_EQ(column.ipValue, delivery.ipCopied ? 202.0 : stale);
            EXPECT_EQ(row.ipValue, delivery.ipCopied ? 204.0 : stale);
            EXPECT_EQ(column.reducedCost, anyCopied ? duals + 2 : stale);
            EXPECT_EQ(row.dual, anyCopied ? duals + 4 : stale);
            EXPECT_EQ(static_cast<int>(column.status), anyCopied ? 3 : 0);
            EXPECT_EQ(static_cast<int>(row.status), anyCopied ? 5 : 0);
        }
    }
}

TEST_F(RunOutcome, IpStageIsLeftOutWhenItIsNotWanted) {
    use("scripted_full");
    makeInteger();
    ASSERT_THAT(parameters.setLong(parameterIndex("xlpmip"), 0), succeeds());
    EXPECT_EQ(run(), status::ok);
    EXPECT_EQ(summary.solverStatus, LPFinished);
    EXPECT_EQ(script->log.find("OptimizeIP"), std::string::npos);
}

TEST_F(RunOutcome, StopBetweenTheStagesEndsNormally) {
    struct Case {
        const char* duringOperation;
        TARQSolverStatusTyp solver;
        const char* neverReached;
    };
    makeInteger();
    for (const Case& stop :
         {Case{"PutModel", UndefinedSolverStatus, "OptimizeLP"}, Case{"GetLPSolution", LPFinished, "OptimizeIP"}}) {
        EngineScript& engine = use("scripted_full");
        engine.during[stop.duringOperation] = [this] { stopRequested = true; };
        EXPECT_EQ(run(), status::ok);
        EXPECT_EQ(summary.solverStatus, stop.solver);
        EXPECT_EQ(engine.log.find(stop.neverReached), std::string::npos);
        EXPECT_TRUE(engine.log.ends_with("FreeMemory\nfinished\n"));
    }
}

TEST_F(RunOutcome, CallbackPassesTheStopOnAndRefreshesTheResults) {
    EngineScript& engine = use("scripted_full");
    makeInteger();
    std::string lpCallback;
    std::string ipCallback;
    const auto callBack = [&](std::string& recorded) {
        const std::size_t before = engine.log.size();
        engine.parameters["xnodes"] = "37";
        engine.callback();
        EXPECT_EQ(resultOf("xnodes"), 37);
        recorded = engine.log.substr(before);
    };
    engine.during["OptimizeLP"] = [&] { callBack(lpCallback); };
    engine.during["OptimizeIP"] = [&] {
        stopRequested = true;
        callBack(ipCallback);
        EXPECT_EQ(readShared(summary.nodesProcessed), 21) << "progress shows during the stage";
    };
    engine.results["OptimizeIP"] = 999;
    EXPECT_EQ(run(), status::stoppedAtBreak);
    EXPECT_TRUE(lpCallback.starts_with("GetParameter xnodes\nGetParameter xipfun\n")) << lpCallback;
    EXPECT_TRUE(ipCallback.starts_with("SetParameter XCBSTP=1\nGetParameter xnodes\n")) << ipCallback;
    const std::string log = engine.log;
    engine.callback();
    EXPECT_EQ(engine.log, log) << "a callback behind the run finds no run";
}

TEST_F(RunOutcome, BoundsAndBestChangeSignWhenMaximizing) {
    for (const auto* direction : {"max", "min", "maxi"}) {
        SCOPED_TRACE(direction);
        EngineScript& engine = use("scripted_full");
        engine.parameters["xzlbnd"] = "-2.5e2";
        engine.parameters["xipfun"] = "+7.25";
        engine.parameters["xzubnd"] = "0";
        engine.parameters.erase("xctime");
        ASSERT_THAT(parameters.setString(parameterIndex("xminmx"), direction), succeeds());
        parameters.setResult(resultIndex("xctime"), 5.0);
        EXPECT_EQ(run(), status::ok);
        const double sign = std::string_view(direction) == "max" ? -1.0 : 1.0;
        const auto result = [&](const char* name) { return parameters.resultDouble(resultIndex(name)); };
        EXPECT_EQ(result("xzlbnd"), sign * -250.0);
        EXPECT_EQ(result("xzbest"), sign * 9.0);
        EXPECT_FALSE(std::signbit(result("xzubnd")));
        EXPECT_EQ(result("xipfun"), 7.25);
        EXPECT_EQ(result("xlpfun"), 7.0);
        EXPECT_EQ(result("xctime"), 0.0) << "cleared at the start, and the engine refuses to tell";
        EXPECT_EQ(resultOf("xiter"), 6);
    }
}

TEST_F(RunOutcome, MessageJoinsBothLines) {
    struct Case {
        const char* first;
        const char* second;
        const char* message;
    };
    const Case cases[] = {{"one", "two", "one two"}, {"one", "", "one"}, {"", "two", " two"}, {"", "", ""}};
    for (const Case& lines : cases) {
        EngineScript& engine = use("scripted_full");
        engine.parameters["xline1"] = lines.first;
        engine.parameters["xline2"] = lines.second;
        EXPECT_EQ(run(), status::ok);
        EXPECT_EQ(summary.lastSolverMessage.get(), lines.message);
    }
}

TEST_F(RunOutcome, MessageOfTheTransferSurvivesOnlyItsFailure) {
    EngineScript& engine = use("scripted_full");
    engine.parameters["xline1"] = "read";
    engine.during["PutModel"] = [this] { stopRequested = true; };
    EXPECT_EQ(run(), status::ok);
    EXPECT_EQ(summary.lastSolverMessage.get(), "");
    engine.results["PutModel"] = 2;
    EXPECT_EQ(run(), status::engineSetup);
    EXPECT_EQ(summary.lastSolverMessage.get(), "read");
}

TEST_F(RunOutcome, TextsLongerThanPromisedDoNoHarm) {
    EngineScript& engine = use("scripted_full");
    engine.parameters["xline1"] = std::string(600, 'a');
    engine.parameters["xiter"] = "1e99";
    engine.parameters["xnints"] = "nonsense";
    EXPECT_EQ(run(), status::ok);
    EXPECT_EQ(summary.lastSolverMessage.get(), std::string(600, 'a'));
    EXPECT_EQ(resultOf("xiter"), 2147483647);
    EXPECT_EQ(resultOf("xnints"), 0);
}

}  // namespace
}  // namespace tarq
