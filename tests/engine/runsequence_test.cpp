// What a run asks of the engine: which calls, in which order, with which arguments.
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/engine/enginefixture.h"

namespace tarq {
namespace {

using RunSequence = EngineTest;

TEST_F(RunSequence, ContinuousModelEndsBehindTheLp) {
    use("scripted_full");
    EXPECT_EQ(run(), status::ok);
    EXPECT_EQ(
        calls(),
        "SetParameter xoutlv=1\n"
        "Initialize\n"
        "SetParameter x118\n"
        "SetCallback 1\n"
        "PutModel 0 1e+25 2 3 4 | 1 1 2 2 | 1 3 2 3 | 1 2 3 4 | 0 -1e+25 0 -1e+25 2 | 10 5 1 8 2 | 1 -2 0.5 | 0 0 0\n"
        "GetParameter xline1 xline2\n"
        "OptimizeLP 0\n"
        "GetParameter xline1 xline2\n"
        "GetLPSolution\n"
        "GetParameter x14\n"
        "FreeMemory\n"
        "finished\n");
}

TEST_F(RunSequence, IntegerModelGoesOnToBranchAndBound) {
    use("scripted_full");
    makeInteger();
    ASSERT_THAT(parameters.setLong(parameterIndex("xfrite"), 7), succeeds());
    ASSERT_THAT(parameters.setLong(parameterIndex("xfrnds"), 9), succeeds());
    EXPECT_EQ(run(), status::ok);
    const std::string text = calls();
    EXPECT_NE(text.find("SetCallback 0\n"), std::string::npos);
    EXPECT_NE(text.find("| 1 -2 0.5 | 0 1 0\n"), std::string::npos);
    EXPECT_EQ(text.substr(text.find("OptimizeLP")),
              "OptimizeLP 7\n"
              "GetParameter xline1 xline2\n"
              "GetLPSolution\n"
              "GetParameter x14\n"
              "OptimizeIP 9\n"
              "GetParameter xline1 xline2\n"
              "GetIPSolution\n"
              "GetParameter x14\n"
              "FreeMemory\n"
              "finished\n");
}

TEST_F(RunSequence, EngineWithoutInitializeIsStartedTheOlderWay) {
    EngineScript& engine = use("scripted_older");
    engine.maximalColumns = 1000;
    engine.maximalNonzeros = 3;
    EXPECT_EQ(run(), status::ok);
    const std::string text = calls();
    EXPECT_EQ(text.substr(0, text.find("SetCallback")),
              "SetParameter xoutlv=1\n"
              "AllocateMemory 300\n"
              "GetMaxDim\n"
              "SetMaxLPDim 2 1000 4 0\n"
              "InitModel\n"
              "SetParameter x119\n");
}

TEST_F(RunSequence, OlderStartTakesXmrealOnlyWithinItsLimits) {
    EngineScript& engine = use("scripted_older");
    for (const auto& [xmreal, taken] : std::vector<std::pair<int, int>>{{0, 300}, {63, 300}, {64, 64}, {2000, 2000}}) {
        engine.log.clear();
        ASSERT_THAT(parameters.setLong(parameterIndex("xmreal"), xmreal), succeeds());
        EXPECT_EQ(run(), status::ok);
        EXPECT_NE(engine.log.find("AllocateMemory " + std::to_string(taken) + "\n"), std::string::npos) << xmreal;
    }
}

TEST_F(RunSequence, EveryParameterIsPassedAsTextInTableOrder) {
    ASSERT_THAT(parameters.setString(parameterIndex("xobj"), "profit"), succeeds());
    ASSERT_THAT(parameters.setDouble(parameterIndex("xbckpa"), 0.1), succeeds());
    for (const auto* name : {"scripted_full", "scripted_older"}) {
        const bool older = std::string_view(name) == "scripted_older";
        std::string expected = "SetParameter xoutlv=1\n";
        for (int row = 0; row < parameterCount; ++row) {
            const ParameterRow& parameter = parameterRows()[static_cast<std::size_t>(row)];
            if (parameter.name == "xfrite" || parameter.name == "xfrnds") continue;
            if (parameter.name == "xmreal" && !older) continue;
            const std::string quote = parameter.type == ParameterType::String ? "'" : "";
            expected +=
                "SetParameter " + std::string(parameter.name) + "=" + quote + parameters.valueText(row) + quote + "\n";
        }
        const EngineScript& engine = use(name);
        EXPECT_EQ(run(), status::ok);
        std::string passed;
        std::istringstream lines(engine.log);
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("SetParameter")) passed += line + "\n";
        }
        EXPECT_EQ(passed, expected);
        for (const auto* text :
             {" xminmx='min'\n", " xobj='profit'\n", " xrhs=''\n", " xbckpa=0.1\n", " xfrbas=-1\n"}) {
            EXPECT_NE(passed.find(text), std::string::npos) << text;
        }
        EXPECT_EQ(passed.find("xmreal=0\n") != std::string::npos, older);
    }
}

TEST_F(RunSequence, EmptySidesOfAModelAreTransferred) {
    use("scripted_full");
    store.remove<RowRecord>(1, 2);
    EXPECT_EQ(run(), status::ok);
    EXPECT_NE(calls().find("PutModel 0 1e+25 0 3 0 | | | | 0 -1e+25 0 | 10 5 1 | 1 -2 0.5 | 0 0 0\n"),
              std::string::npos);
    script->log.clear();
    store.clear();
    EXPECT_EQ(run(), status::ok);
    EXPECT_NE(calls().find("PutModel 0 1e+25 0 0 0 | | | | | | |\n"), std::string::npos);
}

TEST_F(RunSequence, EngineWithoutCallbackRunsAllTheSame) {
    use("scripted_without_callback");
    EXPECT_EQ(run(), status::ok);
    EXPECT_EQ(calls().find("SetCallback"), std::string::npos);
    EXPECT_EQ(summary.solverStatus, TARQSolverStatusTyp::LPFinished);
}

TEST_F(RunSequence, FailedStartReleasesTheEngineAndReports) {
    struct Case {
        const char* library;
        const char* operation;
        int result;
        Status status;
        const char* text;
    };
    const Case cases[] = {
        {"scripted_full", "Initialize", 1, status::engineMemory, "Error, cannot allocate requested memory"},
        {"scripted_older", "AllocateMemory", -1, status::engineMemory, "Error, cannot allocate requested memory"},
        {"scripted_older", "SetMaxLPDim", 4, status::engineSetup, "Error setting max LP dimensions."},
        {"scripted_older", "InitModel", 1, status::engineSetup, "Error initializing TARQ.DLL."},
        {"scripted_full", "PutModel", 1, status::engineMemory,
         "Not enough memory for model in TARQ.DLL increase XMREAL."},
        {"scripted_full", "PutModel", 2, status::engineSetup, "Input error while transfering model to TARQ.DLL."},
    };
    for (const Case& failing : cases) {
        SCOPED_TRACE(std::string(failing.operation) + " " + std::to_string(failing.result));
        EngineScript& engine = use(failing.library);
        engine.results[failing.operation] = failing.result;
        summary.solverStatus = TARQSolverStatusTyp::IPFinished;
        EXPECT_EQ(run(), failing.status);
        EXPECT_THAT(pendingError, failsWith(failing.status, failing.text));
        // The model is taken over last, so its messages stand between.
        const std::string messages =
            failing.operation == std::string_view("PutModel") ? "GetParameter xline1 xline2\n" : "";
        const std::string tail = messages + "FreeMemory\nfinished\n";
        EXPECT_TRUE(calls().ends_with(tail)) << calls();
        EXPECT_EQ(std::ranges::count(engine.log, '\n'),
                  std::ranges::count(engine.log.substr(0, engine.log.find("FreeMemory")), '\n') + 2);
        EXPECT_EQ(summary.solverStatus, TARQSolverStatusTyp::IPFinished) << "of the run before";
    }
}

TEST_F(RunSequence, ResultsThatNobodyLooksAtEndNothing) {
    EngineScript& engine = use("scripted_older");
    for (const auto* operation : {"SetParameter", "SetCallback", "FreeMemory", "GetMaxDim"})
        engine.results[operation] = 1;
    engine.results["PutModel"] = 3;
    EXPECT_EQ(run(), status::ok);
    EXPECT_EQ(summary.solutionStatus, TARQSolutionStatusTyp::LPOptimalSolution);
}

class EngineWithRefusedLicence : public EngineLibrary {
    using EngineLibrary::EngineLibrary;
    bool licenceAccepted() override { return false; }
};

TEST_F(RunSequence, RefusedLicenceEndsLikeAFailedStart) {
    EngineScript& engine = use("scripted_full");
    BindingTo<EngineWithRefusedLicence> refusing("scripted_full");
    for (const int memoryResult : {0, 1}) {
        engine.log.clear();
        engine.results["Initialize"] = memoryResult;
        EXPECT_EQ(run(refusing), status::engineSetup);
        EXPECT_THAT(pendingError, failsWith(status::engineSetup, "Error initializing TARQ.DLL."));
        EXPECT_EQ(calls(), "SetParameter xoutlv=1\nInitialize\nFreeMemory\nfinished\n");
    }
}

class EngineThatRunsOut : public EngineLibrary {
    using EngineLibrary::EngineLibrary;
    std::int32_t PutModel(std::int32_t, double, std::int32_t, std::int32_t, std::int32_t, const std::int32_t*,
                          const std::int32_t*, const double*, const double*, const double*, const double*,
                          const std::int32_t*) override {
        throw std::bad_alloc();
    }
};

TEST_F(RunSequence, MemoryEndingInTheTransferReleasesTheEngine) {
    use("scripted_full");
    BindingTo<EngineThatRunsOut> binder("scripted_full");
    EXPECT_EQ(run(binder), status::outOfMemory);
    EXPECT_THAT(pendingError, succeeds());
    EXPECT_FALSE(busy);
    EXPECT_TRUE(calls().ends_with("SetCallback 1\nFreeMemory\nfinished\n")) << calls();
}

TEST_F(RunSequence, OperationThatThrowsFailsAndTheEngineIsReleased) {
    struct Case {
        const char* operation;
        Status status;
    };
    makeInteger();
    for (const Case& throwing : {Case{"Initialize", status::engineMemory}, Case{"SetParameter", status::ok},
                                 Case{"PutModel", status::engineSetup}, Case{"OptimizeLP", status::crucialError},
                                 Case{"OptimizeIP", status::crucialError}, Case{"FreeMemory", status::ok}}) {
        SCOPED_TRACE(throwing.operation);
        const std::initializer_list<std::function<void()>> exceptions{
            [] { throw std::runtime_error("out of the engine"); }, [] { throw 7; }};
        for (const auto& exception : exceptions) {
            use("scripted_full").during[throwing.operation] = exception;
            EXPECT_EQ(run(), throwing.status);
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

TEST_F(RunSequence, MissingOperationsEndTheRunWithoutACrash) {
    struct Case {
        const char* library;
        Status status;
        TARQSolverStatusTyp solver;
        TARQSolutionStatusTyp solution;
    };
    using enum TARQSolverStatusTyp;
    using enum TARQSolutionStatusTyp;
    const Case cases[] = {
        {"scripted_empty", status::engineMemory, UndefinedSolverStatus, UndefinedSolutionStatus},
        {"scripted_without_transfer", status::engineSetup, UndefinedSolverStatus, UndefinedSolutionStatus},
        {"scripted_without_lp", status::crucialError, LPGeneralError, UndefinedSolutionStatus},
        {"scripted_without_ip", status::crucialError, IPGeneralError, UndefinedSolutionStatus},
        {"scripted_without_solutions", status::ok, IPFinished, UndefinedSolutionStatus},
        {"scripted_without_parameters", status::ok, IPFinished, IPOptimalSolution},
    };
    makeInteger();
    for (const Case& missing : cases) {
        SCOPED_TRACE(missing.library);
        use(missing.library);
        summary.reset();
        EXPECT_EQ(run(), missing.status);
        EXPECT_EQ(summary.solverStatus, missing.solver);
        EXPECT_EQ(summary.solutionStatus, missing.solution);
        EXPECT_EQ(summary.lastSolverMessage.get(), "");
        EXPECT_TRUE(calls().ends_with("finished\n"));
    }
}

TEST_F(RunSequence, SinkMayStartTheNextRun) {
    use("scripted_full");
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
