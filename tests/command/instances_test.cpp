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

class CommandInstancesTest : public CommandTest {};

TEST_F(CommandInstancesTest, EveryInstanceReachesItsKnownOptimum) {
    const char* folder = std::getenv("TARQ_INSTANCES");
    if (folder == nullptr) GTEST_SKIP() << "TARQ_INSTANCES names no folder of instances";
    const std::vector<Instance> instances = readTable(std::string(folder) + "/optima.tsv");
    ASSERT_FALSE(instances.empty());
    for (const Instance& instance : instances) {
        SCOPED_TRACE(instance.file);
        const Output output = run({"solve", std::string(folder) + "/" + instance.file, "--json"});
        EXPECT_EQ(output.exitCode, instance.infeasible ? 3 : 0) << output.err;
        const Json document = Json::parse(output.out, nullptr, false);
        ASSERT_FALSE(document.is_discarded()) << output.out << output.err;
        const std::string status = document["solutionStatus"]["name"];
        if (instance.infeasible) {
            EXPECT_TRUE(status == "LPInfeasible" || status == "IPNoSolution") << status;
        } else {
            EXPECT_EQ(status, instance.integer ? "IPOptimalSolution" : "LPOptimalSolution");
            EXPECT_NEAR(document["objective"].get<double>(), instance.objective, 1e-6 * std::abs(instance.objective));
        }
    }
}

}  // namespace
}  // namespace tarq::command
