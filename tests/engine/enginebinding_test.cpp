#include <dlfcn.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/engine/enginefixture.h"

namespace tarq {
namespace {

using Binding = EngineTest;

bool isLoaded(std::string_view name) {
    void* handle = dlopen(enginePath(name).c_str(), RTLD_NOW | RTLD_NOLOAD);
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
    for (const auto* location : {"/nowhere/engine.so", "no_such_engine.dll", "", ENGINE_FOLDER}) {
        ASSERT_THAT(binding.setLocation(location), succeeds());
        EXPECT_EQ(binding.versionText(), "unknown") << location;
        EXPECT_EQ(binding.bindEngine(), status::libraryNotFound) << location;
    }
}

TEST_F(Binding, VersionIsWhatTheEngineTells) {
    use("scripted_full").parameters["xversn"] = "7.25";
    EXPECT_EQ(binding.versionText(), "7.25");
    EXPECT_NE(binding.engine(), nullptr) << "the query binds";
    script->results["GetParameter"] = 1;
    EXPECT_EQ(binding.versionText(), "unknown");
    use("scripted_without_parameters");
    EXPECT_EQ(binding.versionText(), "unknown");
    EXPECT_NE(binding.engine(), nullptr);
}

TEST_F(Binding, ConventionalNameStandsForTheNativeLibrary) {
    use("scripted_full").parameters["xversn"] = "7.25";
    for (const std::string location : {ENGINE_FOLDER "/scripted_full.dll", "scripted_full.dll"}) {
        ASSERT_THAT(binding.setLocation(location), succeeds());
        EXPECT_EQ(binding.versionText(), "7.25") << location;
        EXPECT_EQ(binding.location(), location);
    }
}

TEST_F(Binding, ChangeOfLocationReleasesOneLoad) {
    use("scripted_without_ip");
    unload();
    EXPECT_EQ(binding.bindEngine(), status::ok);
    EXPECT_FALSE(binding.setLocation(std::string(256, 'a')).isOk());
    EXPECT_TRUE(isLoaded("scripted_without_ip")) << "a refused location releases nothing";
    EXPECT_THAT(binding.setLocation("elsewhere.dll"), succeeds());
    EXPECT_EQ(binding.engine(), nullptr);
    EXPECT_FALSE(isLoaded("scripted_without_ip"));

    ASSERT_THAT(binding.setLocation(enginePath("scripted_without_ip")), succeeds());
    EXPECT_EQ(binding.bindEngine(), status::ok);
    EXPECT_EQ(binding.bindEngine(), status::ok);
    EXPECT_THAT(binding.setLocation("elsewhere.dll"), succeeds());
    EXPECT_TRUE(isLoaded("scripted_without_ip")) << "bound twice, released once";
}

TEST_F(Binding, LibraryOutlivesTheRunAndTheModel) {
    {
        EngineBinding ofAModel;
        ASSERT_THAT(ofAModel.setLocation(enginePath("scripted_without_lp")), succeeds());
        EXPECT_EQ(run(ofAModel), status::crucialError);
        EXPECT_NE(ofAModel.engine(), nullptr);
    }
    EXPECT_TRUE(isLoaded("scripted_without_lp"));
}

TEST_F(Binding, RunKeepsItsEngineWhenTheLocationMoves) {
    EngineScript& engine = use("scripted_full");
    engine.during["OptimizeLP"] = [&] {
        EXPECT_THAT(binding.setLocation("elsewhere.dll"), succeeds());
        stopRequested = true;
        engine.callback();
    };
    EXPECT_EQ(run(), status::ok);
    EXPECT_NE(engine.log.find("XCBSTP=1"), std::string::npos);
    EXPECT_TRUE(engine.log.ends_with("FreeMemory\nfinished\n"));
    EXPECT_EQ(binding.engine(), nullptr);
}

TEST_F(Binding, EmptySlotsAnswerWithAFailure) {
    use("scripted_empty");
    ASSERT_EQ(binding.bindEngine(), status::ok) << "binding tests nothing";
    EngineInterface& engine = *binding.engine();
    EXPECT_FALSE(engine.hasInitialize() || engine.hasSetCallback() || engine.hasGetParameter());
    char buffer[256] = "";
    for (const std::int32_t result :
         {engine.FreeMemory(), engine.Initialize(), engine.AllocateMemory(1),
          engine.GetMaxDim(nullptr, nullptr, nullptr), engine.SetMaxLPDim(1, 1, 1), engine.InitModel(),
          engine.SetParameter("a=1"), engine.GetParameter("a", buffer), engine.SetCallback(nullptr, 0),
          engine.GetLPSolution(nullptr, nullptr, nullptr, nullptr, nullptr),
          engine.GetIPSolution(nullptr, nullptr, nullptr, nullptr, nullptr)}) {
        EXPECT_NE(result, 0);
    }
}

}  // namespace
}  // namespace tarq
