// Parts whose work shows only when HiGHS goes wrong or is slow to listen.
#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>

#include "solutioncheck.h"
#include "stagecontrol.h"

namespace tarq::engine {

// x + 2y between 1 and 4, both within 0 and 3, y integer.
HighsLp twoColumns() {
    HighsLp lp;
    lp.num_col_ = 2;
    lp.num_row_ = 1;
    lp.col_cost_ = {1, 10};
    lp.col_lower_ = {0, 0};
    lp.col_upper_ = {3, 3};
    lp.row_lower_ = {1};
    lp.row_upper_ = {4};
    lp.a_matrix_.start_ = {0, 1, 2};
    lp.a_matrix_.index_ = {0, 0};
    lp.a_matrix_.value_ = {1, 2};
    return lp;
}

TEST(SolutionCheck, PointsAreJudgedByTheModel) {
    struct Case {
        const char* what;
        std::vector<double> point;
        bool feasible;
    };
    const std::vector<HighsVarType> integrality{HighsVarType::kContinuous, HighsVarType::kInteger};
    for (const Case& judged :
         {Case{"inside", {0.5, 1}, true}, Case{"within tolerance", {-1e-7, 1.000001}, true},
          Case{"below a bound", {-0.01, 1}, false}, Case{"above a bound", {3.01, 0}, false},
          Case{"row too small", {0.5, 0}, false}, Case{"row too large", {3, 1}, false},
          Case{"fractional", {1, 0.5}, false}, Case{"not a number", {kHighsInf - kHighsInf, 1}, false},
          Case{"endless", {kHighsInf, 1}, false}, Case{"row overflows", {1, 1.7e308}, false},
          Case{"too short", {1}, false}}) {
        std::vector<double> rows;
        const PointCheck check = checkPoint(twoColumns(), integrality, judged.point, {1e-6, 1e-5}, rows);
        EXPECT_EQ(check.feasible, judged.feasible) << judged.what;
    }
    std::vector<double> rows;
    EXPECT_DOUBLE_EQ(checkPoint(twoColumns(), integrality, {0.5, 1}, {1e-6, 1e-5}, rows).objective, 10.5);
    EXPECT_EQ(rows, std::vector<double>{2.5});
}

TEST(StageControl, AStageThatDoesNotListenIsGivenUp) {
    auto control = std::make_shared<StageControl>(1e9, 0);
    auto free = std::make_shared<std::atomic<bool>>(false);
    auto ended = std::make_shared<std::atomic<bool>>(false);
    const auto work = [free, ended, control] {
        while (!*free) std::this_thread::sleep_for(std::chrono::milliseconds(5));
        EXPECT_EQ(control->atInterruptPoint(), StopReason::Request);
        *ended = true;
    };
    int calls = 0;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(runStage(control, work,
                       [&] {
                           if (++calls == 2) control->requestStop();
                       }),
              StageEnd::Abandoned);
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_GE(took, stopPatience);
    EXPECT_LE(took, stopPatience + std::chrono::seconds(2));
    *free = true;
    while (!*ended) std::this_thread::sleep_for(std::chrono::milliseconds(5));
}

TEST(StageControl, TimeLimitEndsAtTheNextInterruptPoint) {
    auto control = std::make_shared<StageControl>(0.05, 0);
    const auto work = [control] {
        while (control->atInterruptPoint() == StopReason::None) {
        }
    };
    EXPECT_EQ(runStage(control, work, [] {}), StageEnd::Finished);
    EXPECT_EQ(control->stopReason(), StopReason::TimeLimit);
}

TEST(StageControl, FailuresOfTheWorkReachTheCaller) {
    auto control = std::make_shared<StageControl>(1e9, 0);
    EXPECT_THROW(static_cast<void>(runStage(
                     control, [] { throw std::runtime_error("broken"); }, [] {})),
                 std::runtime_error);
    // A caller that leaves early gives the stage up, which then ends by itself.
    auto left = std::make_shared<StageControl>(1e9, 0);
    auto ended = std::make_shared<std::atomic<bool>>(false);
    const auto work = [left, ended] {
        while (left->atInterruptPoint() == StopReason::None) {
        }
        *ended = true;
    };
    int calls = 0;
    const auto leave = [&] {
        if (++calls == 2) throw std::runtime_error("left");
    };
    EXPECT_THROW(static_cast<void>(runStage(left, work, leave)), std::runtime_error);
    while (!*ended) std::this_thread::sleep_for(std::chrono::milliseconds(5));
}

}  // namespace tarq::engine
