// Runs in the background: their event, their end and how they are stopped.
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <functional>
#include <future>
#include <mutex>
#include <thread>

#include "modelfixture.h"

namespace tarq {
namespace {

using namespace std::chrono_literals;
using testing::DoubleNear;

constexpr auto longest = 60s;

class BackgroundRunTest : public ModelTest {
protected:
    BackgroundRunTest() {
        EXPECT_THAT(adviseFinished(
                        *model.get(), [this] { atEvent(); }, &cookie),
                    succeeds());
    }
    // A run that is still under way would call a test that is gone.
    ~BackgroundRunTest() override { (void)unadviseFinished(*model.get(), cookie); }

    /// Uses an engine that plays `run` (see scriptedengine.h) instead of solving.
    void play(const char* run) {
        ASSERT_EQ(setenv("PLAYED_RUN", run, 1), 0);
        ASSERT_THAT(model->put_LocationOfTARQDLL(PLAYED_ENGINE), succeeds());
    }

    void buildHardKnapsacks() {
        constexpr int columns = 60;
        unsigned seed = 7;
        for (int row = 0; row < 6; ++row) ASSERT_THAT(model->AddRow(0, 0), succeeds());
        std::vector<double> sums(6);
        for (int column = 0; column < columns; ++column) {
            ASSERT_THAT(model->AddCol(0, 1, TARQColType::Binary), succeeds());
            for (int row = 0; row < 6; ++row) {
                seed = seed * 1103515245U + 12345U;
                const double weight = (seed >> 16U) % 100U;
                sums[static_cast<std::size_t>(row)] += weight;
                ASSERT_THAT(model->AddNZ(Variant(row + 1), Variant(column + 1), weight), succeeds());
            }
        }
        for (int row = 0; row < 6; ++row) {
            const double half = static_cast<int>(sums[static_cast<std::size_t>(row)] / 2);
            ASSERT_THAT(model->put_RowRHS(Variant(row + 1), half), succeeds());
            ASSERT_THAT(model->put_RowLHS(Variant(row + 1), half), succeeds());
            // What is missing or too much costs.
            for (const double sign : {-1.0, 1.0}) {
                ASSERT_THAT(model->AddCol(0, 1e6, TARQColType::Continuous, Variant(1.0)), succeeds());
                ASSERT_THAT(
                    model->AddNZ(Variant(row + 1), Variant(valueOf<std::int32_t>(&ITARQModel::get_NumberOfCols)), sign),
                    succeeds());
            }
        }
    }

    bool eventCame(int count = 1) {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, longest, [&] { return events >= count; });
    }
    bool isBusy() {
        std::int32_t busy = 0;
        EXPECT_THAT(watched->get_IsBusy(&busy), succeeds());
        return busy == 1;
    }
    /// Waits for progress that another thread makes.
    static bool comes(const std::function<bool()>& condition) {
        const auto end = std::chrono::steady_clock::now() + longest;
        while (!condition()) {
            if (std::chrono::steady_clock::now() > end) return false;
            std::this_thread::sleep_for(1ms);
        }
        return true;
    }
    bool runIsUnderWay() {
        return comes([&] { return valueOf<std::int32_t>(&ITARQModel::get_NumberOfLPIterations) > 10; });
    }

    ITARQModel* const watched = model.get();
    std::function<void()> inEvent;
    std::atomic<bool> busyInEvent{true};
    std::thread::id eventThread;
    int events = 0;
    std::mutex mutex;
    std::condition_variable changed;
    std::uint32_t cookie = 0;

private:
    void atEvent() {
        busyInEvent = isBusy();
        if (inEvent) inEvent();
        const std::lock_guard lock(mutex);
        eventThread = std::this_thread::get_id();
        ++events;
        changed.notify_all();
    }
};

TEST_F(BackgroundRunTest, SolvesOnAThreadOfItsOwnAndTellsIt) {
    buildSmall();
    ASSERT_THAT(model->OptimizeAsync(), succeeds());
    ASSERT_TRUE(eventCame());
    EXPECT_NE(eventThread, std::this_thread::get_id());
    EXPECT_FALSE(busyInEvent);
    EXPECT_FALSE(isBusy());
    EXPECT_THAT(valueOf<double>(&ITARQModel::get_LPObjFunctValue), DoubleNear(1.0 / 3.0, 1e-6));
}

TEST_F(BackgroundRunTest, ForegroundRunFiresBeforeItReturnsOnTheSameThread) {
    buildSmall();
    ASSERT_THAT(model->Optimize(), succeeds());
    EXPECT_EQ(events, 1);
    EXPECT_EQ(eventThread, std::this_thread::get_id());
}

TEST_F(BackgroundRunTest, EarlyFailureFiresTooAndLeavesTheStatusesEmpty) {
    buildSmall();
    ASSERT_THAT(model->put_LocationOfTARQDLL("/no/such/engine.dll"), succeeds());
    ASSERT_THAT(model->OptimizeAsync(), succeeds());
    ASSERT_TRUE(eventCame());
    EXPECT_EQ(valueOf<TARQSolverStatusTyp>(&ITARQModel::get_SolverStatus), TARQSolverStatusTyp::UndefinedSolverStatus);
    EXPECT_EQ(valueOf<std::string>(&ITARQModel::get_LastSolverMessage), "");
    EXPECT_THAT(model->Optimize(), raises(status::libraryNotFound, "Could not find TARQ.DLL."));
    EXPECT_EQ(valueOf<std::string>(&ITARQModel::get_TARQDLLVersion), "unknown");
    EXPECT_EQ(events, 2);
}

TEST_F(BackgroundRunTest, SecondRunIsRefusedAndTheFirstGoesOn) {
    buildSmall();
    play("long");
    ASSERT_THAT(model->OptimizeAsync(), succeeds());
    EXPECT_TRUE(isBusy());
    EXPECT_THAT(model->OptimizeAsync(), raises(status::componentFailure, "Component is busy at the moment."));
    ASSERT_TRUE(runIsUnderWay());
    EXPECT_TRUE(isBusy());
    ASSERT_THAT(model->StopOptimizeAsync(), succeeds());
    ASSERT_TRUE(eventCame());
    EXPECT_EQ(valueOf<TARQSolverStatusTyp>(&ITARQModel::get_SolverStatus), TARQSolverStatusTyp::LPxfriteReached);
    EXPECT_EQ(events, 1);
}

TEST_F(BackgroundRunTest, StopWithoutARunIsForgottenByTheNext) {
    buildSmall();
    ASSERT_THAT(model->StopOptimizeAsync(), succeeds());
    ASSERT_THAT(model->OptimizeAsync(), succeeds());
    ASSERT_TRUE(eventCame());
    EXPECT_EQ(valueOf<TARQSolutionStatusTyp>(&ITARQModel::get_SolutionStatus),
              TARQSolutionStatusTyp::LPOptimalSolution);
}

TEST_F(BackgroundRunTest, SinkMayStartTheNextRun) {
    buildSmall();
    std::atomic<int> runs{1};
    inEvent = [&] {
        if (runs.fetch_add(1) == 5) return;
        EXPECT_THAT(model->OptimizeAsync(), succeeds());
    };
    ASSERT_THAT(model->OptimizeAsync(), succeeds());
    ASSERT_TRUE(eventCame(5));
    EXPECT_FALSE(isBusy());
}

TEST_F(BackgroundRunTest, StopReachesItsOwnRunWhileALaterOneIsOn) {
    buildSmall();
    play("long");
    const Ref<ITARQModel> earlier = model;
    ASSERT_THAT(earlier->OptimizeAsync(), succeeds());
    ASSERT_TRUE(runIsUnderWay());
    model = createObject<ITARQModel>("TARQModel");
    play("long");
    ASSERT_THAT(model->OptimizeAsync(), succeeds());
    ASSERT_TRUE(runIsUnderWay());
    ASSERT_THAT(earlier->StopOptimizeAsync(), succeeds());
    ASSERT_TRUE(eventCame());
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_IsBusy), 1);
    ASSERT_THAT(model->StopOptimizeAsync(), succeeds());
    EXPECT_TRUE(comes([&] { return valueOf<std::int32_t>(&ITARQModel::get_IsBusy) == 0; }));
    model = earlier;
}

TEST_F(BackgroundRunTest, EditsAndASecondRunDuringARunDoNoHarm) {
    constexpr int columns = 3000;
    buildSmall();
    for (int column = 3; column < columns; ++column) {
        ASSERT_THAT(model->AddCol(0, 1, TARQColType::Continuous, Variant(1.0)), succeeds());
        ASSERT_THAT(model->AddNZ(Variant("r"), Variant(column + 1), 1.0), succeeds());
    }
    for (int round = 1; round <= 5; ++round) {
        ASSERT_THAT(model->OptimizeAsync(), succeeds());
        for (int edit = 0; edit < 300; ++edit) {
            ASSERT_THAT(model->AddCol(0, 1, TARQColType::Continuous, Variant(1.0), Variant("added")), succeeds());
            ASSERT_THAT(model->AddNZ(Variant("r"), Variant("added"), 1.0), succeeds());
            ASSERT_THAT(model->put_Parameter("xfnbai", Variant(std::string(static_cast<std::size_t>(edit % 200), 'x'))),
                        succeeds());
            ASSERT_THAT(model->DelCol(Variant("added")), succeeds());
        }
        ASSERT_THAT(model->Optimize(), succeeds());
        ASSERT_TRUE(eventCame(2 * round));
        EXPECT_THAT(valueOf<double>(&ITARQModel::get_LPObjFunctValue), DoubleNear(1.0 / 3.0, 1e-6));
    }
}

TEST_F(BackgroundRunTest, StoppedSearchKeepsItsBestSolution) {
    buildHardKnapsacks();
    ASSERT_THAT(model->OptimizeAsync(), succeeds());
    ASSERT_TRUE(comes([&] { return valueOf<std::int32_t>(&ITARQModel::get_NumberOfIntSolutions) > 0; }));
    ASSERT_THAT(model->StopOptimizeAsync(), succeeds());
    ASSERT_TRUE(eventCame());
    EXPECT_EQ(valueOf<TARQSolverStatusTyp>(&ITARQModel::get_SolverStatus), TARQSolverStatusTyp::IPxfrndsReached);
    EXPECT_EQ(valueOf<TARQSolutionStatusTyp>(&ITARQModel::get_SolutionStatus),
              TARQSolutionStatusTyp::IPSubOptimalSolution);
    const double value = valueOf<double>(&ITARQModel::get_ColIPSol, Variant(1));
    EXPECT_TRUE(value == 0 || value == 1) << value;
}

TEST_F(BackgroundRunTest, ModelThatIsDroppedLivesUntilItsRunEnds) {
    buildSmall();
    play("long");
    // Runs of other tests may just be letting go of their models.
    ASSERT_TRUE(comes([] { return module::liveObjects() == 2; })) << "this model and its sink";
    const std::int64_t before = module::liveObjects();
    std::promise<std::int64_t> alive;
    inEvent = [&] { alive.set_value(module::liveObjects()); };
    Ref<ITARQModel> only = model;
    ASSERT_THAT(model->OptimizeAsync(), succeeds());
    ASSERT_TRUE(runIsUnderWay());
    ASSERT_THAT(model->StopOptimizeAsync(), succeeds());
    model = nullptr;
    only = nullptr;
    auto atEnd = alive.get_future();
    const bool ended = atEnd.wait_for(longest) == std::future_status::ready;
    EXPECT_TRUE(ended);
    if (ended) {
        EXPECT_EQ(atEnd.get(), before);
    }
    EXPECT_TRUE(comes([&] { return module::liveObjects() == before - 2; })) << "the model and its sink";
    model = createObject<ITARQModel>("TARQModel");
}

class KillThreadTest : public BackgroundRunTest, public testing::WithParamInterface<const char*> {};

// At a callback of the engine; while it waits without calling back; while it works without calling back.
INSTANTIATE_TEST_SUITE_P(Engines, KillThreadTest, testing::Values("long", "deaf", "spinning"));

TEST_P(KillThreadTest, RunNeverReportsAndTheModelIsFreeAgain) {
    buildSmall();
    play(GetParam());
    ASSERT_THAT(model->OptimizeAsync(), succeeds());
    ASSERT_TRUE(comes([&] { return valueOf<std::int32_t>(&ITARQModel::get_NumberOfLPIterations) >= 7; }));
    ASSERT_THAT(model->KillThread(), succeeds());
    EXPECT_FALSE(isBusy());
    const std::int32_t reached = valueOf<std::int32_t>(&ITARQModel::get_NumberOfLPIterations);

    play("optimal");
    ASSERT_THAT(model->OptimizeAsync(), succeeds());
    ASSERT_TRUE(eventCame());
    std::this_thread::sleep_for(50ms);
    EXPECT_EQ(events, 1) << "the killed run fired";
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_NumberOfLPIterations), 7)
        << "the killed run goes on from " << reached;
}

TEST_F(BackgroundRunTest, KilledSearchOfTheRealEngineLeavesItUsable) {
    buildHardKnapsacks();
    ASSERT_THAT(model->OptimizeAsync(), succeeds());
    ASSERT_TRUE(comes([&] { return valueOf<std::int32_t>(&ITARQModel::get_NumberOfNodesProcessed) > 0; }));
    ASSERT_THAT(model->KillThread(), succeeds());
    EXPECT_FALSE(isBusy());
    const Ref<ITARQModel> other = createObject<ITARQModel>("TARQModel");
    ASSERT_THAT(other->AddCol(2, 3, TARQColType::Continuous, Variant(1.0)), succeeds());
    ASSERT_THAT(other->AddRow(0, 9), succeeds());
    ASSERT_THAT(other->AddNZ(Variant(1), Variant(1), 1.0), succeeds());
    ASSERT_THAT(other->Optimize(), succeeds());
    double value = 0;
    ASSERT_THAT(other->get_LPObjFunctValue(&value), succeeds());
    EXPECT_THAT(value, DoubleNear(2, 1e-9));
    EXPECT_EQ(events, 0);
}

TEST_F(BackgroundRunTest, KillWithoutARunDoesNothing) {
    ASSERT_THAT(model->KillThread(), succeeds());
    buildSmall();
    ASSERT_THAT(model->OptimizeAsync(), succeeds());
    ASSERT_TRUE(eventCame());
    ASSERT_THAT(model->KillThread(), succeeds());
    EXPECT_EQ(events, 1);
}

}  // namespace
}  // namespace tarq
