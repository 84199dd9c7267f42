// Ways to end early: breaks, limits and stops, and the callback through which stops come.
#include <chrono>
#include <thread>

#include "loadedengine.h"

namespace tarq::test {

using StopTest = EngineTest;

TEST_F(StopTest, IterationsEndTheLpWithWhatItHas) {
    struct Case {
        Parameters parameters;
        std::int32_t frequency;
        std::int32_t result;
        const char* limit;
    };
    const Case cases[] = {{{"xlptyp=2", "xrduce=0"}, 5, TarqStoppedAtBreak, "0"},
                          {{"xlptyp=2", "xrduce=2"}, 5, TarqStoppedAtBreak, "0"},
                          {{"xlptyp=0", "xrduce=2"}, 5, TarqStoppedAtBreak, "0"},
                          {{"xmiter=5", "xrduce=2"}, 0, TarqLimitReached, "1"},
                          {{"xmiter=5", "xrduce=0"}, 9, TarqLimitReached, "1"},
                          {{"xmiter=9"}, 5, TarqStoppedAtBreak, "0"},
                          {{"xmiter=3", "xlptyp=4"}, 0, TarqLimitReached, "1"},
                          {{"xmiter=3", "xlptyp=4"}, 2, TarqLimitReached, "1"},
                          {{"xmiter=0"}, 0, TarqLimitReached, "1"},
                          {{"xmxtlp=0"}, 0, TarqLimitReached, "2"}};
    // Presolve takes the first column away, so that there is a way back.
    TestModel model = denseLp(40);
    model.columnUpper[0] = model.columnLower[0] = 1;
    for (const Case& limit : cases) {
        SCOPED_TRACE(testing::PrintToString(limit.parameters));
        prepare(model, limit.parameters);
        const StageResult stopped = solveLp(limit.frequency);
        EXPECT_EQ(stopped.result, limit.result) << message();
        EXPECT_EQ(get("xertyp"), limit.limit);
        const double most = get("xmxtlp") == "0" ? 0 : number("xmiter");
        EXPECT_EQ(stopped.iterations, limit.result == TarqStoppedAtBreak ? limit.frequency : most);
        EXPECT_NE(stopped.solutionStatus, TarqLPSolutionOptimal);
    }
}

// The dual simplex method is dual feasible on its way, the primal one from its second phase on primal feasible.
TEST_F(StopTest, WhatIsFeasibleAtABreakIsTold) {
    TestModel model = denseLp(40);
    for (const char* presolve : {"xrduce=0", "xrduce=2"}) {
        prepare(model, {"xlptyp=2", presolve});
        const StageResult dual = solveLp(5);
        EXPECT_EQ(dual.solutionStatus, TarqLPSolutionDualFeasible) << presolve;
        EXPECT_GT(dual.infeasibilities, 0) << presolve;
    }
    // Turned round, the origin is feasible.
    model.rowUpper = model.rowLower;
    model.rowLower.assign(model.rowLower.size(), -infinite);
    for (const char* presolve : {"xrduce=0", "xrduce=2"}) {
        prepare(model, {"xlptyp=0", "xminmx='max'", presolve});
        const StageResult primal = solveLp(2);
        EXPECT_EQ(primal.result, TarqStoppedAtBreak);
        EXPECT_EQ(primal.solutionStatus, TarqLPSolutionPrimalFeasible) << presolve;
        EXPECT_GT(primal.solutionObjective, 0) << presolve;
    }
}

TEST_F(StopTest, CallbackComesByTheClockOnTheCallersThread) {
    ASSERT_EQ(optimizeLp(hardIp(), {"xmxmin=2"}).result, TarqSuccess);
    int calls = 0;
    bool foreign = false;
    const auto caller = std::this_thread::get_id();
    onCallback([&] {
        ++calls;
        foreign = foreign || std::this_thread::get_id() != caller;
        EXPECT_GE(number("xzbest"), number("xzlbnd"));
        if (number("xnodes") > 0 && calls >= 4) set("XCBSTP=1");
    });
    const auto start = std::chrono::steady_clock::now();
    const StageResult stopped = solveIp();
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_EQ(stopped.result, TarqStoppedAtBreak);
    EXPECT_GT(stopped.iterations, 0);
    EXPECT_FALSE(foreign);
    EXPECT_GE(calls, 4);
    EXPECT_LE(calls, 2 + seconds * 6);
}

TEST_F(StopTest, CallbackComesEachSoManyNodes) {
    ASSERT_EQ(optimizeLp(hardIp(), {"xmxnod=400", "xcbnnd=100"}).result, TarqSuccess);
    std::vector<double> nodes;
    onCallback([&] {
        const double now = number("xnodes");
        if (now > 0 && (nodes.empty() || now != nodes.back())) nodes.push_back(now);
    });
    EXPECT_EQ(solveIp().result, TarqLimitReached);
    ASSERT_GE(nodes.size(), 2u);
    EXPECT_LE(nodes.size(), 5u);
    for (std::size_t call = 1; call < nodes.size(); ++call) EXPECT_GE(nodes[call] - nodes[call - 1], 100);
}

TEST_F(StopTest, StopInTheCallbackEndsTheStageAsABreak) {
    for (const char* request : {"XCBSTP=1", "xcbstp = 1"}) {
        ASSERT_EQ(optimizeLp(hardIp(), {"xcbnnd=20"}).result, TarqSuccess);
        onCallback([&] {
            if (number("xnodes") >= 60) set(request);
        });
        const StageResult stopped = solveIp();
        EXPECT_EQ(stopped.result, TarqStoppedAtBreak);
        EXPECT_EQ(stopped.solutionStatus, TarqIPSolutionSuboptimal);
        EXPECT_GE(stopped.integerSolutions, 1);
        EXPECT_LE(stopped.iterations, 600);
        onCallback([] {});
        EXPECT_EQ(solveIp(10).result, TarqStoppedAtBreak);
    }
}

// So many nonzeros that HiGHS works on a thread of its own.
TEST_F(StopTest, LargeLpsAreStoppedByTheClock) {
    prepare(denseLp(900), {"xlptyp=0"});
    int calls = 0;
    onCallback([&] {
        if (++calls == 2) set("XCBSTP=1");
    });
    EXPECT_EQ(solveLp().result, TarqStoppedAtBreak);
    EXPECT_GE(calls, 2);
    onCallback([] {});
    EXPECT_NEAR(optimizeLp(smallLp()).objective, -5, 1e-9);
}

TEST_F(StopTest, AStopAtOnceLeavesTheModelUsable) {
    prepare(denseLp(40));
    onCallback([] { set("XCBSTP=1"); });
    EXPECT_EQ(solveLp().solutionStatus, TarqLPSolutionUndefined);
    onCallback([] {});
    EXPECT_EQ(solveLp().solutionStatus, TarqLPSolutionOptimal);
}

TEST_F(StopTest, TheEngineRefusesOtherWorkDuringAStage) {
    ASSERT_EQ(optimizeLp(smallLp()).result, TarqSuccess);
    onCallback([&] {
        EXPECT_NE(put(smallLp()), TarqSuccess);
        for (const auto operation : {::FreeMemory, ::Initialize, ::InitModel}) {
            EXPECT_NE(operation(), TarqSuccess);
        }
        std::int32_t whole = 0;
        double real = 0.0;
        EXPECT_NE(::OptimizeLP(0, &whole, &whole, &whole, &real, &real), TarqSuccess);
    });
    EXPECT_EQ(solveLp().solutionStatus, TarqLPSolutionOptimal);
}

}  // namespace tarq::test
