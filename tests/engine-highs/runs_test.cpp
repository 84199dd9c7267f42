// Runs of several threads: each gets its turn and its own answers, whatever becomes of the others.
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <thread>

#include "loadedengine.h"

namespace tarq::test {

using testing::StartsWith;

/// What one thread has of the engine.
class Client : public EngineTest {
public:
    using EngineTest::optimizeIp;
    using EngineTest::optimizeLp;
    void TestBody() override {}
};

using RunsTest = EngineTest;

// None of the threads ends its last run; it is given up with them.
TEST_F(RunsTest, FortyModelsOnEightThreadsGiveFortyAnswers) {
    EXPECT_EQ(::FreeMemory(), 0);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread) {
        threads.emplace_back([thread] {
            Client client;
            for (int number = 5 * thread; number < 5 * thread + 5; ++number) {
                TestModel model = smallLp();
                for (double& cost : model.cost) cost *= number + 1;
                model.type[0] = number % 2;
                const StageResult best = number % 2 == 0 ? client.optimizeLp(model) : client.optimizeIp(model);
                EXPECT_NEAR(best.solutionObjective, -5.0 * (number + 1), 1e-6);
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    startAnew();
}

TEST_F(RunsTest, OnlyTheThreadOfARunIsServed) {
    ASSERT_NE(set("xtolx=abc"), 0);
    const std::string text = message();
    std::thread([&] {
        EXPECT_EQ(set("xtolx=1"), TarqGeneralError);
        EXPECT_EQ(put(smallLp()), TarqGeneralError);
        for (const auto operation : {::FreeMemory, ::InitModel}) EXPECT_EQ(operation(), TarqGeneralError);
        EXPECT_EQ(get("xline1"), "");
        EXPECT_THAT(get("xversn"), StartsWith("HiGHS"));
    }).join();
    EXPECT_EQ(::Initialize(), TarqGeneralError);
    EXPECT_EQ(::AllocateMemory(300), TarqGeneralError);
    EXPECT_EQ(message(), text);
    EXPECT_NEAR(number("xtolx"), 1e-4, 1e-12);
}

std::atomic<bool> stopped;
std::atomic<int> asleep;

void sleepOn(int /*signal*/) {
    ++asleep;
    while (stopped) usleep(1000);
}

// One thread is stopped in a stage, one as it waits for its turn. Once they may go on, the first has lost its run.
TEST_F(RunsTest, StoppedThreadsHoldUpNobody) {
    const auto abandon = ::AbandonRun;
    EXPECT_EQ(abandon(gettid()), 0);
    EXPECT_EQ(abandon(gettid()), TarqGeneralError);
    stopped = true;
    asleep = 0;
    std::signal(SIGUSR1, sleepOn);
    std::atomic<int> owner{0};
    std::atomic<int> lost{-1};
    std::thread first([&] {
        Client client;
        EXPECT_EQ(client.optimizeLp(hardIp(), {"xcbnnd=20"}).result, 0);
        onCallback([&] {
            if (number("xnodes") == 0) return;
            owner = gettid();
            sleepOn(0);
        });
        std::int32_t whole = 0;
        double real = 0.0;
        lost = ::OptimizeIP(-1, &whole, &whole, &whole, &real, &real);
    });
    while (asleep < 1) usleep(1000);
    std::atomic<int> waiting{0};
    std::thread second([&] {
        waiting = 1;
        EXPECT_NEAR(Client().optimizeLp(smallLp()).objective, -5, 1e-9);
    });
    while (waiting == 0) usleep(1000);
    usleep(20000);
    pthread_kill(second.native_handle(), SIGUSR1);
    while (asleep < 2) usleep(1000);
    EXPECT_EQ(abandon(owner), 0);
    EXPECT_NEAR(optimizeLp(smallLp()).objective, -5, 1e-9);
    stopped = false;
    first.join();
    EXPECT_EQ(lost, TarqStoppedAtBreak);
    EXPECT_EQ(::FreeMemory(), 0);
    second.join();
    startAnew();
}

}  // namespace tarq::test
