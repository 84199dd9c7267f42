#include <dlfcn.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/engine/enginefixture.h"

namespace tarq {
namespace {

using Binding = EngineTest;

bool isLoaded(const std::string& path) {
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (handle != nullptr) dlclose(handle);
    return handle != nullptr;
}

TEST_F(Binding, LocationStartsAtTheOrdinaryNameAndIsLimitedTo255) {
    EXPECT_EQ(binding.location(), "tarq.dll");
    EXPECT_THAT(binding.setLocation(std::string(255, 'a')), succeeds());
    EXPECT_THAT(binding.setLocation(std::string(256, 'b')),
                failsWith(status::textTooLong, "Passed string is to long."));
    EXPECT_EQ(binding.location(), std::string(255, 'a'));
}

TEST_F(Binding, MissingLibraryIsSilentForTheVersionAndAFailureForTheRun) {
    const std::string folder = std::filesystem::path(SCRIPTED_ENGINE).parent_path();
    for (const std::string& location : {std::string("/nowhere/engine.so"), std::string(), folder}) {
        ASSERT_THAT(binding.setLocation(location), succeeds());
        EXPECT_EQ(binding.versionText(), "unknown") << location;
        EXPECT_EQ(binding.bindEngine(), status::libraryNotFound) << location;
    }
}

TEST_F(Binding, VersionIsWhatTheEngineTells) {
    use("xversn=7.25");
    // The conventional name stands for the native library.
    const std::string conventional = std::filesystem::path(SCRIPTED_ENGINE).parent_path() / "scripted_engine.dll";
    for (const std::string& location : {std::string(SCRIPTED_ENGINE), conventional}) {
        ASSERT_THAT(binding.setLocation(location), succeeds());
        EXPECT_EQ(binding.versionText(), "7.25");
        EXPECT_EQ(binding.location(), location);
        EXPECT_NE(binding.engine(), nullptr) << "the query binds";
    }
    script->play("GetParameter=1");
    EXPECT_EQ(binding.versionText(), "unknown");
    use("xversn=7.25", {"GetParameter"});
    EXPECT_EQ(binding.versionText(), "unknown");
    EXPECT_NE(binding.engine(), nullptr);
}

TEST_F(Binding, ChangeOfLocationReleasesOneLoad) {
    const std::string engine = scripted({"GetDim"});
    ASSERT_THAT(binding.setLocation(engine), succeeds());
    EXPECT_EQ(binding.bindEngine(), status::ok);
    EXPECT_FALSE(binding.setLocation(std::string(256, 'a')).isOk());
    EXPECT_TRUE(isLoaded(engine)) << "a refused location releases nothing";
    EXPECT_THAT(binding.setLocation("elsewhere.dll"), succeeds());
    EXPECT_EQ(binding.engine(), nullptr);
    EXPECT_FALSE(isLoaded(engine));

    ASSERT_THAT(binding.setLocation(engine), succeeds());
    EXPECT_EQ(binding.bindEngine(), status::ok);
    EXPECT_EQ(binding.bindEngine(), status::ok);
    EXPECT_THAT(binding.setLocation("elsewhere.dll"), succeeds());
    EXPECT_TRUE(isLoaded(engine)) << "bound twice, released once";
}

TEST_F(Binding, LibraryOutlivesTheRunAndTheModel) {
    const std::string engine = scripted({"OptimizeLP"});
    {
        EngineBinding ofAModel;
        ASSERT_THAT(ofAModel.setLocation(engine), succeeds());
        EXPECT_EQ(run(ofAModel), status::crucialError);
        EXPECT_NE(ofAModel.engine(), nullptr);
    }
    EXPECT_TRUE(isLoaded(engine));
}

TEST_F(Binding, RunKeepsItsEngineWhenTheLocationMoves) {
    EngineScript& engine = use();
    engine.during["OptimizeLP"] = [&] {
        EXPECT_THAT(binding.setLocation("elsewhere.dll"), succeeds());
        stopRequested = true;
        engine.callback();
    };
    EXPECT_EQ(run(), status::ok);
    EXPECT_TRUE(engine.stopped);
    EXPECT_TRUE(engine.log.ends_with("FreeMemory\nfinished\n"));
    EXPECT_EQ(binding.engine(), nullptr);
}

#define TARQ_NAME(operation) #operation,
TEST_F(Binding, EmptySlotsAnswerWithAFailure) {
    ASSERT_THAT(binding.setLocation(scripted({TARQ_ENGINE_OPERATIONS(TARQ_NAME)})), succeeds());
    ASSERT_EQ(binding.bindEngine(), status::ok) << "binding tests nothing";
    EngineInterface& engine = *binding.engine();
    EXPECT_FALSE(engine.hasInitialize() || engine.hasSetCallback() || engine.hasGetParameter());
    EXPECT_NE(engine.Initialize(), TarqSuccess);
    EXPECT_NE(engine.SetMaxLPDim(1, 1, 1), TarqSuccess);
    EXPECT_NE(engine.GetLPSolution(nullptr, nullptr, nullptr, nullptr, nullptr), TarqSuccess);
    makeInteger();
    struct Case {
        Names missing;
        Status status;
        TARQSolverStatusTyp solver;
        TARQSolutionStatusTyp solution;
    };
    using enum TARQSolverStatusTyp;
    using enum TARQSolutionStatusTyp;
    for (const Case& without : {
             Case{{TARQ_ENGINE_OPERATIONS(TARQ_NAME)},
                  status::engineMemory,
                  UndefinedSolverStatus,
                  UndefinedSolutionStatus},
             Case{{"PutModel"}, status::engineSetup, UndefinedSolverStatus, UndefinedSolutionStatus},
             Case{{"OptimizeLP"}, status::crucialError, LPGeneralError, UndefinedSolutionStatus},
             Case{{"OptimizeIP"}, status::crucialError, IPGeneralError, UndefinedSolutionStatus},
             Case{{"GetLPSolution", "GetIPSolution"}, status::ok, IPFinished, UndefinedSolutionStatus},
             Case{{"GetParameter", "SetParameter"}, status::ok, IPFinished, IPOptimalSolution},
             Case{{"SetCallback"}, status::ok, IPFinished, IPOptimalSolution},
         }) {
        SCOPED_TRACE(testing::PrintToString(without.missing));
        use({}, without.missing);
        summary.reset();
        EXPECT_EQ(run(), without.status);
        EXPECT_EQ(summary.solverStatus, without.solver);
        EXPECT_EQ(summary.solutionStatus, without.solution);
        EXPECT_EQ(summary.lastSolverMessage.get(), "");
        EXPECT_TRUE(script->log.ends_with("finished\n"));
    }
}
#undef TARQ_NAME

}  // namespace
}  // namespace tarq
