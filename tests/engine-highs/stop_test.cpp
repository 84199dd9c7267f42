// Ways to end early: breaks, limits and stops, and the callback through which stops come.
#include <chrono>
#include <thread>

#include "loadedengine.h"

namespace tarq::test {

class StopTest : public EngineTest {};

TEST_F(StopTest, IterationsEndTheLpWithWhatItHas) {
    struct Case {
        std::vector<std::string> parameters;
        std::int32_t frequency;
        std::int32_t result;
        const char* limit;
    };
    const std::vector<Case> cases{
        {{"xlptyp=2", "xrduce=0"}, 5, 999, "0"},
        {{"xlptyp=2", "xrduce=2"}, 5, 999, "0"},
        {{"xlptyp=0", "xrduce=2"}, 5, 999, "0"},
        {{"xmiter=5", "xrduce=2"}, 0, 1, "1"},
        {{"xmiter=5", "xrduce=0"}, 9, 1, "1"},
        {{"xmiter=9"}, 5, 999, "0"},
        {{"xmiter=3", "xlptyp=4"}, 0, 1, "1"},
        {{"xmiter=3", "xlptyp=4"}, 2, 1, "1"},
        {{"xmiter=0"}, 0, 1, "1"},
        {{"xmxtlp=0"}, 0, 1, "2"},
    };
    // Presolve takes the first column away, so that there is a way back.
    TestModel model = denseLp(40);
    model.columnUpper[0] = model.columnLower[0] = 1;
    for (const Case& limit : cases) {
        SCOPED_TRACE(testing::PrintToString(limit.parameters));
        optimizeLp(smallLp(), limit.parameters);
        ASSERT_EQ(put(model), 0);
        const StageResult stopped = solveLp(limit.frequency);
        EXPECT_EQ(stopped.result, limit.result) << message();
        EXPECT_EQ(get("xertyp"), limit.limit);
        const double most = get("xmxtlp") == "0" ? 0 : number("xmiter");
        EXPECT_EQ(stopped.iterations, limit.result == 999 ? limit.frequency : most);
        EXPECT_NE(stopped.solutionStatus, 0);
    }
}

// The dual simplex method is dual feasible on its way, the primal one from its second phase on primal feasible.
TEST_F(StopTest, WhatIsFeasibleAtABreakIsTold) {
    TestModel model = denseLp(40);
    for (const char* presolve : {"xrduce=0", "xrduce=2"}) {
        optimizeLp(smallLp(), {"xlptyp=2", presolve});
        ASSERT_EQ(put(model), 0);
        const StageResult dual = solveLp(5);
        EXPECT_EQ(dual.solutionStatus, 4) << presolve;
        EXPECT_GT(dual.infeasibilities, 0) << presolve;
    }
    // Turned round, the origin is feasible.
    for (std::size_t row = 0; row < model.rowLower.size(); ++row) {
        model.rowUpper[row] = model.rowLower[row];
        model.rowLower[row] = -infinite;
    }
    for (const char* presolve : {"xrduce=0", "xrduce=2"}) {
        optimizeLp(smallLp(), {"xlptyp=0", "xminmx='max'", presolve});
        ASSERT_EQ(put(model), 0);
        const StageResult primal = solveLp(2);
        EXPECT_EQ(primal.result, 999);
        EXPECT_EQ(primal.solutionStatus, 3) << presolve;
        EXPECT_GT(primal.solutionObjective, 0) << presolve;
    }
}

TEST_F(StopTest, CallbackComesByTheClockOnTheCallersThread) {
    ASSERT_EQ(optimizeLp(hardIp(), {"xmxmin=2"}).result, 0);
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
    EXPECT_EQ(stopped.result, 999);
    EXPECT_GT(stopped.iterations, 0);
    EXPECT_FALSE(foreign);
    EXPECT_GE(calls, 4);
    EXPECT_LE(calls, 2 + seconds * 6);
}

TEST_F(StopTest, CallbackComesEachSoManyNodes) {
    ASSERT_EQ(optimizeLp(hardIp(), {"xmxnod=400", "xcbnnd=100"}).result, 0);
    std::vector<double> nodes;
    onCallback([&] {
        const double now = number("xnodes");
        if (now > 0 && (nodes.empty() || now != nodes.back())) nodes.push_back(now);
    });
    EXPECT_EQ(solveIp().result, 1);
    ASSERT_GE(nodes.size(), 2u);
    EXPECT_LE(nodes.size(), 5u);
    for (std::size_t call = 1; call < nodes.size(); ++call) EXPECT_GE(nodes[call] - nodes[call - 1], 100);
}

TEST_F(StopTest, StopInTheCallbackEndsTheStageAsABreak) {
    for (const char* request : {"XCBSTP=1", "xcbstp = 1"}) {
        ASSERT_EQ(optimizeLp(hardIp(), {"xcbnnd=20"}).result, 0);
        onCallback([&] {
            if (number("xnodes") >= 60) set(request);
        });
        const StageResult stopped = solveIp();
        EXPECT_EQ(stopped.result, 999);
        EXPECT_EQ(stopped.solutionStatus, 3);
        EXPECT_GE(stopped.integerSolutions, 1);
        EXPECT_LE(stopped.iterations, 600);
        onCallback([] {});
        EXPECT_EQ(solveIp(10).result, 999);
    }
}

// So many nonzeros that HiGHS works on a thread of its own.
TEST_F(StopTest, LargeLpsAreStoppedByTheClock) {
    optimizeLp(smallLp(), {"xlptyp=0"});
    ASSERT_EQ(put(denseLp(900)), 0);
    int calls = 0;
    onCallback([&] {
        if (++calls == 2) set("XCBSTP=1");
    });
    EXPECT_EQ(solveLp().result, 999);
    EXPECT_GE(calls, 2);
    onCallback([] {});
    EXPECT_NEAR(optimizeLp(smallLp()).objective, -5, 1e-9);
}

TEST_F(StopTest, AStopAtOnceLeavesTheModelUsable) {
    optimizeLp(smallLp());
    ASSERT_EQ(put(denseLp(40)), 0);
    onCallback([&] { set("XCBSTP=1"); });
    const StageResult stopped = solveLp();
    EXPECT_EQ(stopped.result, 999);
    EXPECT_EQ(stopped.solutionStatus, 6);
    onCallback([] {});
    EXPECT_EQ(solveLp().solutionStatus, 0);
}

TEST_F(StopTest, TheEngineRefusesOtherWorkDuringAStage) {
    ASSERT_EQ(optimizeLp(smallLp()).result, 0);
    onCallback([&] {
        EXPECT_NE(put(smallLp()), 0);
        EXPECT_NE(operation<decltype(FreeMemory)>("FreeMemory")(), 0);
        EXPECT_NE(operation<decltype(Initialize)>("Initialize")(), 0);
        EXPECT_NE(operation<decltype(InitModel)>("InitModel")(), 0);
        std::int32_t whole = 0;
        double real = 0.0;
        EXPECT_NE(operation<decltype(OptimizeLP)>("OptimizeLP")(0, &whole, &whole, &whole, &real, &real), 0);
    });
    EXPECT_EQ(solveLp().solutionStatus, 0);
}

}  // namespace tarq::test
