#include "loadedengine.h"

#include <dlfcn.h>

#include <charconv>
#include <random>

namespace tarq::test {

namespace {

std::function<void()> callbackAction;

void callAction() { callbackAction(); }

std::size_t entries(std::int32_t rows, std::int32_t columns) {
    return static_cast<std::size_t>(rows) + static_cast<std::size_t>(columns);
}

}  // namespace

TestModel& TestModel::column(double lower, double upper, double price, std::int32_t kind) {
    columnLower.push_back(lower);
    columnUpper.push_back(upper);
    cost.push_back(price);
    type.push_back(kind);
    return *this;
}

TestModel& TestModel::row(double lower, const std::vector<double>& coefficients, double upper) {
    rowLower.push_back(lower);
    rowUpper.push_back(upper);
    for (std::size_t position = 0; position < coefficients.size(); ++position) {
        if (coefficients[position] == 0.0) continue;
        rowIndices.push_back(rows());
        columnIndices.push_back(static_cast<std::int32_t>(position) + 1);
        values.push_back(coefficients[position]);
    }
    return *this;
}

void* EngineTest::symbol(const char* name) {
    static void* const library = dlopen(TARQ_ENGINE_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    return library ? dlsym(library, name) : nullptr;
}

void EngineTest::SetUp() {
    ASSERT_NE(symbol("Initialize"), nullptr) << dlerror();
    startAnew();
}

void EngineTest::TearDown() { EXPECT_EQ(operation<decltype(FreeMemory)>("FreeMemory")(), 0); }

void EngineTest::startAnew() {
    operation<decltype(FreeMemory)>("FreeMemory")();
    EXPECT_EQ(operation<decltype(Initialize)>("Initialize")(), 0);
}

std::int32_t EngineTest::set(const std::string& assignment) const {
    return operation<decltype(SetParameter)>("SetParameter")(assignment.c_str());
}

std::string EngineTest::get(const std::string& name) const {
    char buffer[255] = "?";
    if (operation<decltype(GetParameter)>("GetParameter")(name.c_str(), buffer) != 0) return {};
    return buffer;
}

double EngineTest::number(const std::string& name) const {
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
    rows_ = model.rows();
    columns_ = model.columns();
    return operation<decltype(PutModel)>("PutModel")(
        0, infinite, rows_, columns_, static_cast<std::int32_t>(model.values.size()), model.rowIndices.data(),
        model.columnIndices.data(), model.values.data(), lower.data(), upper.data(), model.cost.data(),
        model.type.data());
}

StageResult EngineTest::solveLp(std::int32_t iterationFrequency) const {
    StageResult stage;
    double sum = 0.0;
    stage.result = operation<decltype(OptimizeLP)>("OptimizeLP")(
        iterationFrequency, &stage.iterations, &stage.infeasibilities, &stage.lpStatus, &stage.objective, &sum);
    stage.values.resize(entries(rows_, columns_));
    stage.reducedCosts.resize(stage.values.size());
    stage.states.resize(stage.values.size());
    EXPECT_EQ(operation<decltype(GetLPSolution)>("GetLPSolution")(&stage.solutionStatus, &stage.solutionObjective,
                                                                  stage.values.data(), stage.reducedCosts.data(),
                                                                  stage.states.data()),
              0);
    return stage;
}

StageResult EngineTest::solveIp(std::int32_t nodeFrequency) const {
    StageResult stage;
    stage.result =
        operation<decltype(OptimizeIP)>("OptimizeIP")(nodeFrequency, &stage.iterations, &stage.integerSolutions,
                                                      &stage.stopReason, &stage.objective, &stage.bestPossible);
    stage.values.resize(entries(rows_, columns_));
    stage.reducedCosts.resize(stage.values.size());
    stage.states.resize(stage.values.size());
    EXPECT_EQ(operation<decltype(GetIPSolution)>("GetIPSolution")(&stage.solutionStatus, &stage.solutionObjective,
                                                                  stage.values.data(), stage.reducedCosts.data(),
                                                                  stage.states.data()),
              0);
    return stage;
}

StageResult EngineTest::optimizeLp(const TestModel& model, const std::vector<std::string>& parameters) {
    startAnew();
    for (const std::string& parameter : parameters) EXPECT_EQ(set(parameter), 0) << parameter;
    EXPECT_EQ(put(model), 0) << message();
    return solveLp();
}

StageResult EngineTest::optimizeIp(const TestModel& model, const std::vector<std::string>& parameters) {
    EXPECT_EQ(optimizeLp(model, parameters).result, 0);
    return solveIp();
}

void EngineTest::onCallback(std::function<void()> action) const {
    callbackAction = std::move(action);
    operation<decltype(SetCallback)>("SetCallback")(callAction, 0);
}

TestModel smallLp() {
    return TestModel{}.column(0, 3, -1).column(0, infinite, -2).row(-infinite, {1, 1}, 4).row(-infinite, {1, 3}, 6);
}

TestModel denseLp(int size) {
    std::mt19937 random(7);
    const auto draw = [&] { return 1.0 + static_cast<double>(random() % 1000) / 100.0; };
    TestModel model;
    const auto columns = static_cast<std::size_t>(size);
    for (std::size_t column = 0; column < columns; ++column) model.column(0, infinite, draw());
    for (int row = 0; row < size; ++row) {
        std::vector<double> coefficients(columns);
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
    for (std::size_t column = 0; column < binaries; ++column) model.column(0, 1, 0, 2);
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
