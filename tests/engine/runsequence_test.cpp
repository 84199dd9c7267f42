// What a run asks of the engine: which calls, in which order, with which arguments.
#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/engine/enginefixture.h"

namespace tarq {
namespace {

using RunSequence = EngineTest;

TEST_F(RunSequence, ContinuousModelEndsBehindTheLp) {
    use();
    EXPECT_EQ(run(), status::ok);
    EXPECT_EQ(
        calls(),
        "SetParameter xoutlv=1\n"
        "Initialize\n"
        "SetParameter x118\n"
        "SetCallback 1\n"
        "PutModel 0 1e+25 2 3 4 | 1 1 2 2 | 1 3 2 3 | 1 2 3 4 | 0 -1e+25 0 -1e+25 2 | 10 5 1 8 2 | 1 -2 0.5 | 0 0 0\n"
        "GetParameter x2\n"
        "OptimizeLP 0\n"
        "GetParameter x2\n"
        "GetLPSolution\n"
        "GetParameter x14\n"
        "FreeMemory\n"
        "finished\n");
}

TEST_F(RunSequence, IntegerModelGoesOnToBranchAndBound) {
    use();
    makeInteger();
    set("xfrite", 7);
    set("xfrnds", 9);
    EXPECT_EQ(run(), status::ok);
    const std::string text = calls();
    EXPECT_NE(text.find("SetCallback 0\n"), std::string::npos);
    EXPECT_NE(text.find("| 1 -2 0.5 | 0 1 0\n"), std::string::npos);
    EXPECT_EQ(text.substr(text.find("OptimizeLP")),
              "OptimizeLP 7\nGetParameter x2\nGetLPSolution\nGetParameter x14\n"
              "OptimizeIP 9\nGetParameter x2\nGetIPSolution\nGetParameter x14\nFreeMemory\nfinished\n");
}

TEST_F(RunSequence, EngineWithoutInitializeIsStartedTheOlderWay) {
    for (const auto& [xmreal, taken] : std::vector<std::pair<int, int>>{{0, 300}, {63, 300}, {64, 64}, {2000, 2000}}) {
        use("columns=1000 nonzeros=3", noInitialize);
        set("xmreal", xmreal);
        EXPECT_EQ(run(), status::ok);
        EXPECT_TRUE(calls().starts_with("SetParameter xoutlv=1\nAllocateMemory " + std::to_string(taken) +
                                        "\nGetMaxDim\nSetMaxLPDim 2 1000 4 0\nInitModel\nSetParameter x119\n"));
    }
}

TEST_F(RunSequence, EveryParameterIsPassedAsTextInTableOrder) {
    ASSERT_THAT(parameters.setString(parameterIndex("xobj"), "profit"), succeeds());
    ASSERT_THAT(parameters.setDouble(parameterIndex("xbckpa"), 0.1), succeeds());
    for (const bool older : {false, true}) {
        std::string expected = "SetParameter xoutlv=1\n";
        int row = 0;
        for (const ParameterRow& parameter : parameterRows()) {
            const std::string quote = parameter.type == ParameterType::String ? "'" : "";
            const std::string value = quote + parameters.valueText(row++) + quote;
            if (parameter.name == "xfrite" || parameter.name == "xfrnds") continue;
            if (parameter.name == "xmreal" && !older) continue;
            expected += "SetParameter " + std::string(parameter.name) + "=" + value + "\n";
        }
        use({}, older ? noInitialize : Names{});
        EXPECT_EQ(run(), status::ok);
        std::string passed;
        std::istringstream lines(script->log);
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("SetParameter")) passed += line + "\n";
        }
        EXPECT_EQ(passed, expected);
        for (const auto* text : {" xminmx='min'\n", " xobj='profit'\n", " xrhs=''\n", " xbckpa=0.1\n"}) {
            EXPECT_NE(passed.find(text), std::string::npos) << text;
        }
    }
}

TEST_F(RunSequence, EmptySidesOfAModelAreTransferred) {
    use();
    store.remove<RowRecord>(1, 2);
    EXPECT_EQ(run(), status::ok);
    EXPECT_NE(calls().find("PutModel 0 1e+25 0 3 0 | | | | 0 -1e+25 0 | 10 5 1 | 1 -2 0.5 | 0 0 0\n"),
              std::string::npos);
    script->log.clear();
    store.clear();
    EXPECT_EQ(run(), status::ok);
    EXPECT_NE(calls().find("PutModel 0 1e+25 0 0 0 | | | | | | |\n"), std::string::npos);
}

TEST_F(RunSequence, FailedStartReleasesTheEngineAndReports) {
    struct Case {
        const char* script;
        bool older;
        Status status;
        const char* text;
    };
    const Case cases[] = {
        {"Initialize=1", false, status::engineMemory, "Error, cannot allocate requested memory"},
        {"AllocateMemory=-1", true, status::engineMemory, "Error, cannot allocate requested memory"},
        {"SetMaxLPDim=4", true, status::engineSetup, "Error setting max LP dimensions."},
        {"InitModel=1", true, status::engineSetup, "Error initializing TARQ.DLL."},
        {"PutModel=1", false, status::engineMemory, "Not enough memory for model in TARQ.DLL increase XMREAL."},
        {"PutModel=2", false, status::engineSetup, "Input error while transfering model to TARQ.DLL."},
    };
    for (const Case& failing : cases) {
        SCOPED_TRACE(failing.script);
        use(failing.script, failing.older ? noInitialize : Names{});
        summary.solverStatus = TARQSolverStatusTyp::IPFinished;
        EXPECT_EQ(run(), failing.status);
        EXPECT_THAT(pendingError, failsWith(failing.status, failing.text));
        // The model is taken over last, so its messages stand between.
        const bool transfer = std::string_view(failing.script).starts_with("PutModel");
        const std::string failedOperation(failing.script, std::strcspn(failing.script, "="));
        const std::string tail = script->log.substr(script->log.find("\n" + failedOperation) + 1);
        EXPECT_EQ(
            tail.substr(tail.find('\n') + 1),
            transfer ? "GetParameter xline1\nGetParameter xline2\nFreeMemory\nfinished\n" : "FreeMemory\nfinished\n");
        EXPECT_EQ(summary.solverStatus, TARQSolverStatusTyp::IPFinished) << "of the run before";
    }
}

TEST_F(RunSequence, ResultsThatNobodyLooksAtEndNothing) {
    use("SetParameter=1 SetCallback=1 FreeMemory=1 GetMaxDim=1 PutModel=3", noInitialize);
    EXPECT_EQ(run(), status::ok);
    EXPECT_EQ(summary.solutionStatus, TARQSolutionStatusTyp::LPOptimalSolution);
}

class EngineWithRefusedLicence : public EngineLibrary {
    using EngineLibrary::EngineLibrary;
    bool licenceAccepted() override { return false; }
};

class EngineThatRunsOut : public EngineLibrary {
    using EngineLibrary::EngineLibrary;
    std::int32_t InitModel() override { throw std::bad_alloc(); }
    bool hasInitialize() const override { return false; }
};

TEST_F(RunSequence, RefusedLicenceAndLackOfMemoryReleaseTheEngine) {
    BindingTo<EngineWithRefusedLicence> refusing;
    for (const auto* memoryResult : {"Initialize=0", "Initialize=1"}) {
        use(memoryResult);
        EXPECT_EQ(run(refusing), status::engineSetup);
        EXPECT_THAT(pendingError, failsWith(status::engineSetup, "Error initializing TARQ.DLL."));
        EXPECT_EQ(calls(), "SetParameter xoutlv=1\nInitialize\nFreeMemory\nfinished\n");
    }
    use();
    BindingTo<EngineThatRunsOut> binder;
    EXPECT_EQ(run(binder), status::outOfMemory);
    EXPECT_THAT(pendingError, succeeds());
    EXPECT_FALSE(busy);
    EXPECT_TRUE(calls().ends_with("SetMaxLPDim 2 3 4 0\nFreeMemory\nfinished\n")) << calls();
}

TEST_F(RunSequence, OperationThatThrowsFailsAndTheEngineIsReleased) {
    makeInteger();
    const std::pair<const char*, Status> cases[] = {
        {"Initialize", status::engineMemory}, {"SetParameter", status::ok},         {"PutModel", status::engineSetup},
        {"OptimizeLP", status::crucialError}, {"OptimizeIP", status::crucialError}, {"FreeMemory", status::ok}};
    for (const auto& [operation, ending] : cases) {
        SCOPED_TRACE(operation);
        const std::initializer_list<std::function<void()>> exceptions{
            [] { throw std::runtime_error("out of the engine"); }, [] { throw 7; }};
        for (const auto& exception : exceptions) {
            use().during[operation] = exception;
            EXPECT_EQ(run(), ending);
            EXPECT_FALSE(busy);
            EXPECT_TRUE(calls().ends_with("FreeMemory\nfinished\n")) << calls();
        }
    }
}

class BinderOfNothing : public EngineBinding {
    Status bindEngine() override { return status::entryPointsMissing; }
};

TEST_F(RunSequence, RunWithoutAnEngineKeepsTheStatusesAndFires) {
    BinderOfNothing incomplete;
    EngineBinding lost;
    ASSERT_THAT(lost.setLocation("/nowhere/tarq.dll"), succeeds());
    struct Case {
        EngineBinding& binder;
        Status status;
        const char* text;
    };
    for (const Case& failing :
         {Case{lost, status::libraryNotFound, "Could not find TARQ.DLL."},
          Case{incomplete, status::entryPointsMissing, "Could not get TARQ.DLL function handles."}}) {
        int fired = 0;
        whenFinished = [&] { fired += busy ? 100 : 1; };
        summary.solverStatus = TARQSolverStatusTyp::IPFinished;
        stopRequested = true;
        EXPECT_EQ(run(failing.binder), failing.status);
        EXPECT_THAT(pendingError, failsWith(failing.status, failing.text));
        EXPECT_EQ(fired, 1);
        EXPECT_FALSE(stopRequested);
        EXPECT_EQ(summary.solverStatus, TARQSolverStatusTyp::IPFinished);
    }
}

TEST_F(RunSequence, SinkMayStartTheNextRun) {
    use();
    int runs = 0;
    whenFinished = [&] {
        if (++runs > 1) return;
        EXPECT_EQ(run(), status::ok);
    };
    EXPECT_EQ(run(), status::ok);
    EXPECT_EQ(runs, 2);
    EXPECT_FALSE(busy);
}

}  // namespace
}  // namespace tarq
