// The exit code and the words for each way in which a run can end.
#include "run/runresult.h"

#include <gtest/gtest.h>

namespace tarq::command {
namespace {

using Solver = TARQSolverStatusTyp;
using Solution = TARQSolutionStatusTyp;

TEST(CommandRunResultTest, EachEndingHasItsExitCodeAndWords) {
    struct Case {
        std::uint32_t status;
        bool integer;
        bool onlyRelaxation;
        bool interrupted;
        Solver solver;
        Solution solution;
        ExitCode code;
        std::string_view ending;
    };
    const Case cases[] = {
        {0, false, false, false, Solver::LPFinished, Solution::LPOptimalSolution, ExitCode::Success, "optimal"},
        {0, false, false, true, Solver::LPFinished, Solution::LPOptimalSolution, ExitCode::Success, "optimal"},
        {0, true, false, false, Solver::IPFinished, Solution::IPOptimalSolution, ExitCode::Success, "optimal"},
        {0, true, true, false, Solver::LPFinished, Solution::LPOptimalSolution, ExitCode::Success,
         "optimal (LP relaxation only, xlpmip=0)"},
        {0, true, false, true, Solver::LPFinished, Solution::LPOptimalSolution, ExitCode::EndedEarly,
         "stopped by the user, no integer solution yet"},
        {0, false, false, true, Solver::UndefinedSolverStatus, Solution::UndefinedSolutionStatus, ExitCode::EndedEarly,
         "stopped by the user, no optimal solution yet"},
        {0, false, false, true, Solver::LPFinished, Solution::LPInfeasible, ExitCode::NoSolution, "infeasible"},
        {0, true, false, false, Solver::LPFinished, Solution::LPUnbounded, ExitCode::NoSolution, "unbounded"},
        {0, true, false, false, Solver::IPFinished, Solution::IPNoSolution, ExitCode::NoSolution,
         "no integer solution"},
        {0, true, false, false, Solver::IPFinished, Solution::IPSubOptimalSolution, ExitCode::EndedEarly,
         "a solution that may not be optimal"},
        {0x42001, true, false, false, Solver::IPxmxminReached, Solution::IPNoSolution, ExitCode::EndedEarly,
         "ended at the time limit (xmxmin), no integer solution yet"},
        {0x42001, false, false, false, Solver::LPxmiterReached, Solution::LPOnlyPrimalFeasible, ExitCode::EndedEarly,
         "ended at the iteration limit (xmiter), no optimal solution yet"},
        {0x42002, true, false, true, Solver::IPxfrndsReached, Solution::IPSubOptimalSolution, ExitCode::EndedEarly,
         "stopped by the user, best solution so far"},
        {0x42002, true, false, false, Solver::IPxfrndsReached, Solution::IPSubOptimalSolution, ExitCode::EndedEarly,
         "ended at a break of branch and bound (xfrnds), best solution so far"},
        {0, false, false, false, Solver::LPFinished, Solution::UndefinedSolutionStatus, ExitCode::EngineFailed,
         "the engine failed"},
        {0x80041024, true, false, true, Solver::IPGeneralError, Solution::UndefinedSolutionStatus,
         ExitCode::EngineFailed, "the engine failed"},
    };
    for (const Case& one : cases) {
        RunResult result;
        result.status = Status(one.status);
        result.integer = one.integer;
        result.onlyRelaxation = one.onlyRelaxation;
        result.interrupted = one.interrupted;
        result.solverStatus = one.solver;
        result.solutionStatus = one.solution;
        EXPECT_EQ(result.exitCode(), one.code) << one.ending;
        EXPECT_EQ(result.ending(), one.ending);
    }
}

TEST(CommandRunResultTest, ObjectiveIsTheIntegerSolutionsOnlyWhereThereIsOne) {
    RunResult result;
    result.lpObjective = 3;
    result.ipObjective = 7;
    result.solutionStatus = Solution::IPNoSolution;
    EXPECT_EQ(result.objective(), 3);
    EXPECT_EQ(result.bound(), std::nullopt);
    result.integer = true;
    EXPECT_EQ(result.objective(), std::nullopt);
    EXPECT_EQ(result.lpValue(), 3);
    result.solutionStatus = Solution::IPSubOptimalSolution;
    EXPECT_EQ(result.objective(), 7);
}

}  // namespace
}  // namespace tarq::command
