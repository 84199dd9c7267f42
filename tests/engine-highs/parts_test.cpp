// Parts whose work shows only when HiGHS goes wrong or is slow to listen.
#include <gtest/gtest.h>

#include <atomic>
#include <limits>
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
    const std::vector<HighsVarType> integrality{HighsVarType::kContinuous, HighsVarType::kInteger};
    std::vector<double> rows;
    const auto check = [&](const std::vector<double>& point) {
        return checkPoint(twoColumns(), integrality, point, {1e-6, 1e-5}, rows);
    };
    constexpr double overflowing = 1.7e308;
    constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
    for (const std::vector<double>& inside : {std::vector<double>{0.5, 1}, {-1e-7, 1.000001}}) {
        EXPECT_TRUE(check(inside).feasible) << testing::PrintToString(inside);
    }
    // Beyond the bounds, beyond the row, fractional, no finite numbers, too few.
    for (const std::vector<double>& outside : {std::vector<double>{-0.01, 1},
                                               {3.01, 0},
                                               {0.5, 0},
                                               {3, 1},
                                               {1, 0.5},
                                               {noNumber, 1},
                                               {kHighsInf, 1},
                                               {1, overflowing},
                                               {1}}) {
        EXPECT_FALSE(check(outside).feasible) << testing::PrintToString(outside);
    }
    EXPECT_DOUBLE_EQ(check({0.5, 1}).objective, 10.5);
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

TEST(StageControl, FailuresReachTheCaller) {
    const auto fail = [] { throw std::runtime_error("broken"); };
    const auto control = std::make_shared<StageControl>(1e9, 0);
    EXPECT_THROW(static_cast<void>(runStage(control, fail, [] {})), std::runtime_error);
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
