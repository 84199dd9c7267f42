#include "loadedengine.h"

#include <charconv>
#include <random>

namespace tarq::test {

namespace {

std::function<void()> callbackAction;

}  // namespace

std::vector<Parameters> combinations(const std::vector<Parameters>& lists) {
    std::vector<Parameters> all{{}};
    for (const Parameters& list : lists) {
        std::vector<Parameters> longer;
        for (const Parameters& begun : all) {
            for (const std::string& value : list) longer.emplace_back(begun).push_back(value);
        }
        all = std::move(longer);
    }
    return all;
}

TestModel& TestModel::column(double lower, double upper, double price, std::int32_t kind) {
    ++columns;
    columnLower.push_back(lower);
    columnUpper.push_back(upper);
    cost.push_back(price);
    type.push_back(kind);
    return *this;
}

TestModel& TestModel::row(double lower, const std::vector<double>& coefficients, double upper) {
    ++rows;
    rowLower.push_back(lower);
    rowUpper.push_back(upper);
    std::int32_t column = 0;
    for (const double coefficient : coefficients) {
        ++column;
        if (coefficient == 0.0) continue;
        ++nonzeros;
        rowIndices.push_back(rows);
        columnIndices.push_back(column);
        values.push_back(coefficient);
    }
    return *this;
}

TestModel& TestModel::negateCosts() {
    for (double& price : cost) price = -price;
    return *this;
}

void EngineTest::startAnew() {
    ::FreeMemory();
    EXPECT_EQ(::Initialize(), TarqSuccess);
}

std::string EngineTest::get(const std::string& name) {
    char buffer[TarqTextSize] = "?";
    return ::GetParameter(name.c_str(), buffer) == TarqSuccess ? buffer : "";
}

double EngineTest::number(const std::string& name) {
    const std::string text = get(name);
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    EXPECT_TRUE(error == std::errc{} && end == text.data() + text.size()) << name << " is '" << text << "'";
    return value;
}

std::int32_t EngineTest::put(const TestModel& model) {
    std::vector<double> lower = model.columnLower;
    std::vector<double> upper = model.columnUpper;
    lower.insert(lower.end(), model.rowLower.begin(), model.rowLower.end());
    upper.insert(upper.end(), model.rowUpper.begin(), model.rowUpper.end());
    entries_ = lower.size();
    return ::PutModel(0, model.infinity, model.rows, model.columns, model.nonzeros, model.rowIndices.data(),
                      model.columnIndices.data(), model.values.data(), lower.data(), upper.data(), model.cost.data(),
                      model.type.data());
}

StageResult& EngineTest::fetch(StageResult& stage, decltype(::GetLPSolution)* getSolution) const {
    stage.values.resize(entries_);
    stage.reducedCosts.resize(entries_);
    stage.states.resize(entries_);
    EXPECT_EQ(getSolution(&stage.solutionStatus, &stage.solutionObjective, stage.values.data(),
                          stage.reducedCosts.data(), stage.states.data()),
              TarqSuccess);
    return stage;
}

StageResult EngineTest::solveLp(std::int32_t iterationFrequency) const {
    StageResult stage;
    stage.result = ::OptimizeLP(iterationFrequency, &stage.iterations, &stage.infeasibilities, &stage.lpStatus,
                                &stage.objective, &stage.bestPossible);
    return fetch(stage, ::GetLPSolution);
}

StageResult EngineTest::solveIp(std::int32_t nodeFrequency) const {
    StageResult stage;
    stage.result = ::OptimizeIP(nodeFrequency, &stage.iterations, &stage.integerSolutions, &stage.stopReason,
                                &stage.objective, &stage.bestPossible);
    return fetch(stage, ::GetIPSolution);
}

void EngineTest::prepare(const TestModel& model, const Parameters& parameters) {
    startAnew();
    for (const std::string& parameter : parameters) EXPECT_EQ(set(parameter), TarqSuccess) << parameter;
    EXPECT_EQ(put(model), TarqSuccess) << message();
}

StageResult EngineTest::optimizeLp(const TestModel& model, const Parameters& parameters) {
    prepare(model, parameters);
    return solveLp();
}

StageResult EngineTest::optimizeIp(const TestModel& model, const Parameters& parameters) {
    EXPECT_EQ(optimizeLp(model, parameters).result, TarqSuccess) << message();
    return solveIp();
}

void EngineTest::onCallback(std::function<void()> action) {
    callbackAction = std::move(action);
    ::SetCallback([] { callbackAction(); }, TarqModelWithIntegers);
}

TestModel smallLp() {
    return TestModel{}.column(0, 3, -1).column(0, infinite, -2).row(-infinite, {1, 1}, 4).row(-infinite, {1, 3}, 6);
}

TestModel denseLp(int size) {
    std::mt19937 random(7);
    const auto draw = [&] { return 1.0 + static_cast<double>(random() % 1000) / 100.0; };
    TestModel model;
    for (int column = 0; column < size; ++column) model.column(0, infinite, draw());
    for (int row = 0; row < size; ++row) {
        std::vector<double> coefficients(model.cost.size());
        for (double& coefficient : coefficients) coefficient = draw();
        model.row(100.0 + draw(), coefficients, infinite);
    }
    return model;
}

TestModel hardIp() {
    constexpr std::size_t binaries = 30;
    constexpr std::size_t equations = 3;
    std::mt19937 random(3);
    TestModel model;
    for (std::size_t column = 0; column < binaries; ++column) model.column(0, 1, 0, TarqBinaryColumn);
    for (std::size_t column = 0; column < 2 * equations; ++column) model.column(0, infinite, 1);
    for (std::size_t row = 0; row < equations; ++row) {
        std::vector<double> coefficients(binaries + 2 * equations, 0.0);
        double half = 0.0;
        for (std::size_t column = 0; column < binaries; ++column) {
            coefficients[column] = static_cast<double>(random() % 100);
            half += coefficients[column] / 2.0;
        }
        coefficients[binaries + 2 * row] = 1.0;
        coefficients[binaries + 2 * row + 1] = -1.0;
        half = static_cast<double>(static_cast<long>(half));
        model.row(half, coefficients, half);
    }
    return model;
}

}  // namespace tarq::test
