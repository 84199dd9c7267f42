// Real models: every instance must reach the optimum that several solvers agree on.
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "process.h"

namespace tarq::command {
namespace {

using Json = nlohmann::ordered_json;

struct Instance {
    std::string file;
    bool integer = false;
    bool infeasible = false;
    double objective = 0.0;
};

/// The rows of optima.tsv: file, kind, rows, columns, nonzeros, integers, status, objective, source.
std::vector<Instance> readTable(const std::string& path) {
    std::ifstream input(path);
    std::string line;
    std::getline(input, line);
    std::vector<Instance> instances;
    while (std::getline(input, line)) {
        std::istringstream fields(line);
        std::vector<std::string> field;
        for (std::string text; std::getline(fields, text, '\t');) field.push_back(text);
        if (field.size() < 8) continue;
        const bool infeasible = field[6] == "infeasible";
        instances.push_back({field[0], field[1] == "MIP", infeasible, infeasible ? 0.0 : std::stod(field[7])});
    }
    return instances;
}

/// Whether a Lindo file has a row without terms, which doesn't read back.
bool hasEmptyRow(const std::string& lindo) {
    const std::string text = contentOf(lindo);
    return text.find(")   <= ") != std::string::npos || text.find(")   >= ") != std::string::npos ||
           text.find(")   = ") != std::string::npos;
}

class CommandInstancesTest : public CommandTest {
protected:
    void SetUp() override {
        const char* folder = std::getenv("TARQ_INSTANCES");
        if (folder == nullptr) GTEST_SKIP() << "TARQ_INSTANCES names no folder of instances";
        instances_ = readTable(std::string(folder) + "/optima.tsv");
        ASSERT_FALSE(instances_.empty());
        for (Instance& instance : instances_) instance.file.insert(0, std::string(folder) + "/");
    }

    /// Solves a file and compares what comes out with what is known of the instance.
    void expectOptimum(const std::string& file, const Instance& instance) const {
        SCOPED_TRACE(file);
        const Json document = json({"solve", file}, instance.infeasible ? 3 : 0);
        const std::string status = document["solutionStatus"]["name"];
        if (instance.infeasible) {
            EXPECT_TRUE(status == "LPInfeasible" || status == "IPNoSolution") << status;
        } else {
            EXPECT_EQ(status, instance.integer ? "IPOptimalSolution" : "LPOptimalSolution");
            EXPECT_NEAR(document["objective"].get<double>(), instance.objective, 1e-6 * std::abs(instance.objective));
        }
    }

    std::vector<Instance> instances_;
};

TEST_F(CommandInstancesTest, EveryInstanceReachesItsKnownOptimum) {
    for (const Instance& instance : instances_) expectOptimum(instance.file, instance);
}

TEST_F(CommandInstancesTest, EveryInstanceKeepsItsOptimumInTheOtherFormats) {
    const std::string triplet = path("model.tri");
    const std::string mps = path("model.mps");
    const std::string lindo = path("model.ltx");
    int inLindo = 0;
    for (const Instance& instance : instances_) {
        SCOPED_TRACE(instance.file);
        ASSERT_EQ(run({"convert", instance.file, triplet}).exitCode, 0);
        expectOptimum(triplet, instance);
        ASSERT_EQ(run({"convert", triplet, mps}).exitCode, 0);
        expectOptimum(mps, instance);
        const Output converted = run({"convert", triplet, lindo, "--rename"});
        if (converted.exitCode != 0) {
            EXPECT_THAT(converted.err, testing::HasSubstr("is ranged"));
        } else if (!hasEmptyRow(lindo)) {
            ++inLindo;
            expectOptimum(lindo, instance);
        }
    }
    EXPECT_GT(inLindo, 20);
}

}  // namespace
}  // namespace tarq::command
