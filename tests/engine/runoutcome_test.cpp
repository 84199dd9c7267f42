// What a run leaves behind: statuses, summary, solution values, result values and messages.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "engine/solution.h"
#include "tests/engine/enginefixture.h"

namespace tarq {
namespace {

using RunOutcome = EngineTest;
using enum TARQSolverStatusTyp;
using enum TARQSolutionStatusTyp;

TEST_F(RunOutcome, StagesEndTheRunByTheirResults) {
    struct Case {
        std::string script;
        Status status;
        TARQSolverStatusTyp solver;
        TARQSolutionStatusTyp solution;
    };
    const auto limit = status::resourceLimit;
    std::vector<Case> cases{{"OptimizeLP=0", status::ok, LPFinished, LPOnlyDualFeasible},
                            {"OptimizeLP=0 lpStatus=1", status::ok, LPFinished, LPInfeasible},
                            {"OptimizeLP=0 lpStatus=2", status::ok, LPFinished, LPUnbounded},
                            {"OptimizeLP=0 lpStatus=3", status::ok, LPFinished, LPOnlyDualFeasible},
                            {"OptimizeLP=1 lpStatus=1 xertyp=1", limit, LPxmiterReached, LPOnlyDualFeasible},
                            {"OptimizeLP=1 xertyp=' 2'", limit, LPxmxtlpReached, LPOnlyDualFeasible},
                            {"OptimizeLP=1 xertyp=4", limit, LPxmitipReached, LPOnlyDualFeasible},
                            {"OptimizeLP=1 xertyp=3", limit, LPOtherResourceLimitReached, LPOnlyDualFeasible},
                            {"OptimizeLP=1 xertyp=?", limit, LPOtherResourceLimitReached, LPOnlyDualFeasible},
                            {"OptimizeLP=999 lpStatus=2", status::stoppedAtBreak, LPxfriteReached, LPOnlyDualFeasible},
                            {"OptimizeIP=0 stopReason=6", status::ok, IPFinished, IPSubOptimalSolution},
                            {"OptimizeIP=1 stopReason=3", limit, IPxmxminReached, IPSubOptimalSolution},
                            {"OptimizeIP=1 stopReason=6", limit, IPxmxnodReached, IPSubOptimalSolution},
                            {"OptimizeIP=1 stopReason=7", limit, IPNodesBufferTooSmall, IPSubOptimalSolution},
                            {"OptimizeIP=1 stopReason=9", limit, IPxmxdskExceeded, IPSubOptimalSolution},
                            {"OptimizeIP=1", limit, IPOtherResourceLimitReached, IPSubOptimalSolution},
                            {"OptimizeIP=999", status::stoppedAtBreak, IPxfrndsReached, IPSubOptimalSolution}};
    const std::tuple<int, TARQSolverStatusTyp, TARQSolverStatusTyp> failures[] = {
        {2, LPInputError, IPInputError},      {3, LPOutputError, IPOutputError},
        {4, LPNumericError, IPNumericError},  {5, LPGeneralError, IPGeneralError},
        {7, LPGeneralError, IPGeneralError},  {6, LPInternalSystemError, IPInternalSystemError},
        {-1, LPGeneralError, IPGeneralError}, {998, LPGeneralError, IPGeneralError}};
    for (const auto& [result, lp, ip] : failures) {
        cases.push_back({"OptimizeLP=" + std::to_string(result), status::crucialError, lp, UndefinedSolutionStatus});
        cases.push_back({"OptimizeIP=" + std::to_string(result), status::crucialError, ip, UndefinedSolutionStatus});
    }
    for (const Case& ending : cases) {
        SCOPED_TRACE(ending.script);
        const bool integer = ending.script.starts_with("OptimizeIP");
        store.column(1).type = integer ? TARQColType::Integer : TARQColType::Continuous;
        use("lpSolution=4 ipSolution=3 " + ending.script);
        EXPECT_EQ(run(), ending.status);
        EXPECT_EQ(summary.solverStatus, ending.solver);
        EXPECT_EQ(summary.solutionStatus, ending.solution);
        const auto* const text = "Crucial error. Check SolverStatus() and LastSolverMessage() for details.";
        EXPECT_EQ(pendingError.description(), ending.status.failed() ? text : "");
        EXPECT_EQ(wasCalled(integer ? "GetIPSolution" : "GetLPSolution"),
                  ending.solution == (integer ? IPSubOptimalSolution : LPOnlyDualFeasible));
        EXPECT_TRUE(script->log.ends_with("FreeMemory\nfinished\n"));
        EXPECT_EQ(summary.lpIterations, 11);
    }
}

// What is told of a solution follows the status of the latest run, also where values of an earlier one stay.
TEST_F(RunOutcome, SolutionIsCopiedOnlyWhenTheStatusDeliversOne) {
    struct Case {
        std::string script;
        TARQSolutionStatusTyp solution;
        bool lpCopied, ipCopied, lpTold, ipTold;
    };
    const Case cases[] = {{"lpSolution=0", LPOptimalSolution, true, false, true, false},
                          {"lpSolution=1", LPInfeasible, false, false, false, false},
                          {"lpSolution=2", LPUnbounded, false, false, false, false},
                          {"lpSolution=3", LPOnlyPrimalFeasible, false, false, true, false},
                          {"lpSolution=4", LPOnlyDualFeasible, false, false, true, false},
                          {"lpSolution=5", LPInfeasible, false, false, false, false},
                          {"lpSolution=6", UndefinedSolutionStatus, false, false, false, false},
                          {"lpSolution=0 ipSolution=0", IPOptimalSolution, true, true, true, true},
                          {"lpSolution=0 ipSolution=3", IPSubOptimalSolution, true, true, true, true},
                          {"lpSolution=0 ipSolution=4", IPNoSolution, true, false, true, true},
                          {"lpSolution=3 ipSolution=0", IPOptimalSolution, false, true, true, true},
                          {"lpSolution=0 ipSolution=7", UndefinedSolutionStatus, true, false, false, false}};
    const SolvedModel model{store, summary};
    for (const Case& delivery : cases) {
        SCOPED_TRACE(delivery.script);
        const bool integer = delivery.script.find("ip") != std::string::npos;
        store.column(1).type = integer ? TARQColType::Binary : TARQColType::Continuous;
        constexpr double stale = -1.0;
        use(delivery.script);
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
        EXPECT_EQ(static_cast<int>(column.status), anyCopied ? TarqAtUpperBound : TarqBasisUndefined);
        EXPECT_EQ(static_cast<int>(row.status), anyCopied ? TarqSuperbasic : TarqBasisUndefined);

        // An address that leads nowhere shows whether the guard came first.
        for (const auto get : {columnLpValue, columnReducedCost, columnIpValue, rowLpValue, rowDual, rowIpValue}) {
            const bool ip = get == columnIpValue || get == rowIpValue;
            const bool told = ip ? delivery.ipTold : delivery.lpTold;
            const Status untold = ip ? status::noIpSolution : status::noLpSolution;
            EXPECT_EQ(get(model, Variant(99)).outcome().status(), told ? status::invalidArgument : untold);
        }
        for (const auto get : {columnStatus, rowStatus}) {
            EXPECT_EQ(get(model, Variant(99)).outcome().status(),
                      delivery.lpTold ? status::invalidArgument : status::noLpSolution);
        }
    }
}

TEST_F(RunOutcome, SummaryAndValuesAreWhatTheEngineWrote) {
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

TEST_F(RunOutcome, IpStageIsLeftOutWhenItIsNotWanted) {
    makeInteger();
    set("xlpmip", 0);
    use();
    EXPECT_EQ(run(), status::ok);
    EXPECT_EQ(summary.solverStatus, LPFinished);
    EXPECT_FALSE(wasCalled("OptimizeIP"));
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
        use("xline1=read").during[stop.duringOperation] = [this] { stopRequested = true; };
        EXPECT_EQ(run(), status::ok);
        EXPECT_EQ(summary.solverStatus, stop.solver);
        EXPECT_FALSE(wasCalled(stop.neverReached));
        EXPECT_TRUE(script->log.ends_with("FreeMemory\nfinished\n"));
        EXPECT_EQ(summary.lastSolverMessage.get(), stop.solver == LPFinished ? "read" : "")
            << "the message of the transfer survives only its failure";
    }
}

TEST_F(RunOutcome, CallbackPassesTheStopOnAndRefreshesTheResults) {
    EngineScript& engine = use("OptimizeIP=999");
    makeInteger();
    std::string lpCallback;
    std::string ipCallback;
    const auto callBack = [&](std::string& recorded) {
        const std::size_t before = engine.log.size();
        engine.play("xnodes=37");
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
    EXPECT_EQ(run(), status::stoppedAtBreak);
    EXPECT_TRUE(lpCallback.starts_with("GetParameter xnodes\nGetParameter xipfun\n")) << lpCallback;
    EXPECT_TRUE(ipCallback.starts_with("SetParameter XCBSTP=1\nGetParameter xnodes\n")) << ipCallback;
    const std::string log = engine.log;
    engine.callback();
    EXPECT_EQ(engine.log, log) << "a callback behind the run finds no run";
}

TEST_F(RunOutcome, BoundsAndBestChangeSignWhenMaximizing) {
    for (const std::string direction : {"max", "min", "maxi"}) {
        SCOPED_TRACE(direction);
        use("xzlbnd=-2.5e2 xipfun=+7.25 xzubnd=0").parameters.erase("xctime");
        ASSERT_THAT(parameters.setString(parameterIndex("xminmx"), direction), succeeds());
        parameters.setResult(resultIndex("xctime"), 5.0);
        EXPECT_EQ(run(), status::ok);
        const double sign = direction == "max" ? -1.0 : 1.0;
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

TEST_F(RunOutcome, MessageJoinsBothLinesHoweverLong) {
    const std::string tooLong(600, 'a');  // more than an engine is promised room for
    const std::pair<std::string, std::string> cases[] = {{"xline1=one xline2=two", "one two"},
                                                         {"xline1=one xline2=''", "one"},
                                                         {"xline1='' xline2=two", " two"},
                                                         {"xline1='' xline2=''", ""},
                                                         {"xline1=" + tooLong, tooLong}};
    for (const auto& [lines, message] : cases) {
        use(lines + " xiter=1e99 xnints=nonsense");
        EXPECT_EQ(run(), status::ok);
        EXPECT_EQ(summary.lastSolverMessage.get(), message);
        EXPECT_EQ(resultOf("xiter"), 2147483647);
        EXPECT_EQ(resultOf("xnints"), 0);
    }
}

}  // namespace
}  // namespace tarq
