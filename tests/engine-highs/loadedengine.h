// The engine library as a client sees it: driven through its C interface.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tarq/engine.h"

namespace tarq::test {

inline constexpr double infinite = 1e25;

/// A model in the form PutModel takes it; built row by row.
struct TestModel {
    std::int32_t rows = 0;
    std::int32_t columns = 0;
    std::int32_t nonzeros = 0;
    double infinity = infinite;
    std::vector<std::int32_t> rowIndices;
    std::vector<std::int32_t> columnIndices;
    std::vector<double> values;
    std::vector<double> columnLower;
    std::vector<double> columnUpper;
    std::vector<double> rowLower;
    std::vector<double> rowUpper;
    std::vector<double> cost;
    std::vector<std::int32_t> type;

    TestModel& column(double lower, double upper, double price, std::int32_t kind = TarqContinuousColumn);
    /// `coefficients` holds one value a column; zeros are left out.
    TestModel& row(double lower, const std::vector<double>& coefficients, double upper);
    TestModel& negateCosts();
};

/// What one stage delivered: the operation's outputs, then those of Get..Solution.
struct StageResult {
    std::int32_t result = -1;
    std::int32_t iterations = 0;  ///< nodes of an IP stage
    std::int32_t infeasibilities = 0;
    std::int32_t lpStatus = 0;
    std::int32_t integerSolutions = 0;
    std::int32_t stopReason = 0;
    double objective = 0.0;
    double bestPossible = 0.0;  ///< sum of infeasibilities of an LP stage
    std::int32_t solutionStatus = -1;
    double solutionObjective = 0.0;
    std::vector<double> values;
    std::vector<double> reducedCosts;
    std::vector<std::int32_t> states;
};

using Parameters = std::vector<std::string>;

/// One value of each list, in all ways.
std::vector<Parameters> combinations(const std::vector<Parameters>& lists);

/// A fixture with a fresh engine. All of it is for one thread, since a run is.
class EngineTest : public testing::Test {
protected:
    void SetUp() override { startAnew(); }
    void TearDown() override { EXPECT_EQ(::FreeMemory(), TarqSuccess); }

    /// Ends the run that there may be, and starts the next one.
    static void startAnew();

    static std::int32_t set(const std::string& assignment) { return ::SetParameter(assignment.c_str()); }
    /// Value of a parameter or result; the empty text when the engine refuses the name.
    [[nodiscard]] static std::string get(const std::string& name);
    [[nodiscard]] static double number(const std::string& name);
    [[nodiscard]] static std::string message() { return get("xline1"); }

    std::int32_t put(const TestModel& model);
    /// Starts anew, sets the parameters, and puts the model.
    void prepare(const TestModel& model, const Parameters& parameters = {});
    StageResult solveLp(std::int32_t iterationFrequency = TarqNoIterationBreak) const;
    StageResult solveIp(std::int32_t nodeFrequency = TarqNoNodeBreak) const;
    StageResult optimizeLp(const TestModel& model, const Parameters& parameters = {});
    StageResult optimizeIp(const TestModel& model, const Parameters& parameters = {});

    /// Has `action` called at the engine's break points.
    static void onCallback(std::function<void()> action);

private:
    StageResult& fetch(StageResult& stage, decltype(::GetLPSolution)* getSolution) const;

    std::size_t entries_ = 0;
};

/// min -x - 2y; x + y <= 4, x + 3y <= 6; 0 <= x <= 3: the optimum is -5 at (3, 1).
TestModel smallLp();

/// Dense random rows and columns, so that presolve finds nothing and the simplex method has to iterate.
TestModel denseLp(int size);

/// A market split: solutions are quick to find, a proof of the best takes hours.
TestModel hardIp();

}  // namespace tarq::test
