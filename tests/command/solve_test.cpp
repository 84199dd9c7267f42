// Solving: what is reported, in which form and with which exit code, and the solution as a file.
#include <cmath>

#include "printing/solutionfile.h"
#include "process.h"

namespace tarq::command {
namespace {

using Json = nlohmann::ordered_json;
using testing::AllOf;
using testing::HasSubstr;

class CommandSolveTest : public CommandTest {};

std::string membersOf(const Json& object) {
    std::string names;
    for (const auto& [name, value] : object.items()) names += name + ' ';
    return names;
}

TEST_F(CommandSolveTest, ReportShowsStatusObjectiveAndColumnsThatAreNotZero) {
    const std::string model = file("model.mps", smallModelWith(" LO BOUND     X                    0\n"));
    EXPECT_THAT(expectRun({"solve", model}, 0, "Status             optimal\nObjective          5\n").out,
                testing::ContainsRegex("X +3 +-1\nY +1 +0\n"));
    EXPECT_THAT(run({"solve", model, "--quiet", "--set", "xminmx=max", "--set", "XMINMX=min"}).out,
                testing::MatchesRegex("Status +optimal\nObjective +5\n"));
    const Surroundings input{.input = contentOf(model), .environment = {}};
    expectRun({"solve", "-", "--format", "MPS", "--json"}, 0, "\"file\": \"-\"", "", input);
}

TEST_F(CommandSolveTest, JsonHasExactlyTheMembersThatProgramsRelyOn) {
    const Json document = json({"solve", example("crew_schedule.mps"), "--set", "xmxmin=2"});
    EXPECT_EQ(membersOf(document),
              "file version engine direction parameters model status solverStatus solutionStatus objective lpObjective "
              "ipObjective bestPossible iterations nodes integerSolutions seconds message ");
    EXPECT_THAT(document["engine"].get<std::string>(), testing::StartsWith("HiGHS "));
    EXPECT_EQ(document["direction"], "min");
    EXPECT_EQ(document["parameters"]["xmxmin"], 2);
    EXPECT_FALSE(document["parameters"].contains("xglgap"));
    EXPECT_EQ(membersOf(document["model"]), "name columns rows nonzeros integer ");
    EXPECT_EQ(membersOf(document["seconds"]), "read solve ");
    EXPECT_EQ(document["model"]["name"], "CREWPLAN");
    EXPECT_EQ(document["model"]["integer"], true);
    EXPECT_EQ(document["status"], 0);
    EXPECT_EQ(document["solverStatus"], Json({{"value", 101}, {"name", "IPFinished"}}));
    EXPECT_EQ(document["solutionStatus"], Json({{"value", 101}, {"name", "IPOptimalSolution"}}));
    EXPECT_EQ(document["objective"], document["ipObjective"]);
    EXPECT_LE(document["lpObjective"].get<double>(), document["objective"].get<double>());
}

TEST_F(CommandSolveTest, ExamplesReachTheirOptima) {
    const std::string text = file("plan.mod", "param c; var x >= 0, <= 7; maximize z: c * x; end;\n");
    const std::string data = file("plan.dat", "param c := 3;\nend;\n");
    const std::pair<std::vector<std::string>, double> optima[] = {
        {{example("refinery_blend.mps")}, -4860.192625782},
        {{example("production_week.mps")}, 36733.818709677},
        {{example("crew_schedule.mps")}, 30327},
        {{example("irrigation.mod"), "--data", example("irrigation.dat")}, 593734.949356},
        {{example("depot_choice.mod"), "--data", example("depot_choice.dat")}, 401308},
        {{text, "--data", data, "--format", "ampl"}, 21},
    };
    for (auto [arguments, optimum] : optima) {
        arguments.insert(arguments.begin(), {"solve", "--set", "xglgap=0"});
        EXPECT_NEAR(json(arguments)["objective"].get<double>(), optimum, 1e-9 * std::abs(optimum)) << arguments[3];
    }
}

TEST_F(CommandSolveTest, EachEndingHasItsExitCodeWordsAndStatusInBothForms) {
    const std::string gap = smallModelWith(
        " UP BOUND     Y                  0.5\n LI BOUND     X                    2\n"
        " UP BOUND     X                  3.7\n");
    const std::string hard = file("hard.mps", hardModel());
    const std::string infeasible = file("a.mps", smallModelWith(" UP BOUND     Y                  0.5\n"));
    const struct {
        std::vector<std::string> arguments;
        int exitCode;
        const char *words, *solution;
        bool hasObjective;
    } cases[] = {
        {{"solve", infeasible}, 3, "infeasible", "LPInfeasible", false},
        {{"solve", file("b.mps", smallModel), "--set", "xminmx=max"}, 3, "unbounded", "LPUnbounded", false},
        {{"solve", file("c.mps", gap)}, 3, "no integer solution", "IPNoSolution", false},
        {{"solve", hard, "--set", "xmxnod=20"}, 4, "the node limit (xmxnod), best", "IPSubOptimalSolution", true},
        {{"solve", example("crew_schedule.mps"), "--set", "xlpmip=0"}, 0, "xlpmip=0", "LPOptimalSolution", true},
    };
    for (const auto& one : cases) {
        const Output output = run(one.arguments);
        EXPECT_EQ(output.exitCode, one.exitCode) << output.err;
        EXPECT_THAT(output.out, HasSubstr(one.words));
        EXPECT_EQ(output.out.find("Objective          none") == std::string::npos, one.hasObjective);
        const Json document = json(one.arguments, one.exitCode);
        EXPECT_EQ(document["solutionStatus"]["name"], one.solution);
        EXPECT_EQ(document["objective"].is_number(), one.hasObjective);
    }
    const Json limited = json({"solve", hard, "--set", "xmxnod=20"}, 4);
    EXPECT_EQ(limited["status"], status::resourceLimit.value());
    EXPECT_EQ(limited["solverStatus"]["name"], "IPxmxnodReached");
    EXPECT_LT(limited["bestPossible"].get<double>(), limited["objective"].get<double>());
}

TEST_F(CommandSolveTest, JsonOfAFailureTellsItWithItsLineAndWhatIsKnown) {
    const std::string model = file("model.mps", smallModel);
    const std::string broken = file("broken.mps", "NAME          X\nROW\n");
    const std::string text = file("wrong.mod", "var x;\nminimize z: y;\nend;\n");
    const struct {
        std::vector<std::string> arguments;
        int exitCode;
        Json status, line;
        bool modelIsKnown;
    } cases[] = {{{"solve", broken}, 2, status::syntaxError.value(), 2, false},
                 {{"solve", path("none.mps")}, 2, status::fileAccess.value(), Json(), false},
                 {{"solve", text}, 2, status::modelRejected.value(), 2, false},
                 {{"solve", model, "--set", "xglgap=2"}, 1, status::valueOutOfRange.value(), Json(), true},
                 {{"solve", model, "--solution", path("none/a.csv")}, 2, Json(), Json(), true}};
    for (const auto& one : cases) {
        const Json document = json(one.arguments, one.exitCode);
        SCOPED_TRACE(document.dump());
        EXPECT_EQ(document["status"], one.status);
        EXPECT_EQ(document["error"]["status"], one.status);
        EXPECT_EQ(document["error"]["line"], one.line);
        EXPECT_NE(document["error"]["text"], "");
        EXPECT_EQ(document["model"].is_object(), one.modelIsKnown);
        EXPECT_TRUE(document["objective"].is_null() && document["solverStatus"].is_null());
    }
}

TEST_F(CommandSolveTest, BoundsThatOtherProgramsReadDifferentlyAreNoted) {
    const std::string model =
        file("model.mps", smallModelWith(" MI BOUND     X\n UP BOUND     X                    3\n MI BOUND     Y\n"));
    EXPECT_THAT(run({"solve", model}).err, HasSubstr("note: 1 MI bound also set the upper bound to 0; "));
    EXPECT_EQ(run({"solve", model, "--quiet"}).err, "");
}

TEST_F(CommandSolveTest, EngineThatIsMissingFailsOrRefusesTheModelIsExplained) {
    expectRun({"solve", file("model.mps", smallModel), "--engine", "/nonexistent/engine.so"}, 5, "",
              "/nonexistent/engine.so could not be loaded");
    EXPECT_THAT(expectRun(playedSolve(), 5, "", "LPNumericError", played("numeric")).err,
                HasSubstr("The matrix is singular."));
    const Json memory = Json::parse(run(playedSolve({"--json"}), played("nomemory")).out);
    EXPECT_EQ(memory["status"], status::engineMemory.value());
    EXPECT_EQ(memory["message"], "Error, cannot allocate requested memory");
    const std::string refused = file("model.mps", smallModelWith(" UP BOUND     Y                   -1\n"));
    expectRun({"solve", refused}, 2, "", "The lower bound 0 of column 2 is above its upper bound -1.");
    EXPECT_THAT(json({"solve", refused}, 2)["message"], HasSubstr("above its upper bound"));
}

TEST_F(CommandSolveTest, SolutionFileHasALineForEachColumnAndRowAsCsvOrJson) {
    const std::string model = file("model.mps", smallModel);
    ASSERT_EQ(run({"solve", model, "--solution", path("solution.CSV")}).exitCode, 0);
    EXPECT_EQ(contentOf(path("solution.CSV")),
              "kind,index,name,value,dual,status\n"
              "column,1,X,3,-1,StatusUB\n"
              "column,2,Y,1,0,StatusBasic\n"
              "row,1,NEED,4,2,StatusLB\n");
    ASSERT_EQ(run({"solve", model, "--solution", path("solution")}).exitCode, 0);
    EXPECT_EQ(Json::parse(contentOf(path("solution"))).dump(),
              R"({"columns":[{"index":1,"name":"X","value":3.0,"reducedCost":-1.0,"status":"StatusUB"},)"
              R"({"index":2,"name":"Y","value":1.0,"reducedCost":0.0,"status":"StatusBasic"}],)"
              R"("rows":[{"index":1,"name":"NEED","value":4.0,"dual":2.0,"status":"StatusLB"}]})");

    ASSERT_EQ(run({"solve", example("crew_schedule.mps"), "--solution", path("crew.json")}).exitCode, 0);
    const Json columns = Json::parse(contentOf(path("crew.json")))["columns"];
    EXPECT_EQ(columns.size(), 84U);
    for (const Json& column : columns) {
        EXPECT_NEAR(column["value"].get<double>(), std::round(column["value"].get<double>()), 1e-6) << column;
    }
}

TEST_F(CommandSolveTest, OddNamesAndNumbersLeaveTheSolutionFileValid) {
    std::string model(smallModel);
    for (std::size_t at = model.find("    Y "); at != std::string::npos; at = model.find("    Y ")) {
        model.replace(at, 8, "    \"a,\xFF");
    }
    const std::string odd = file("odd.mps", model);
    ASSERT_EQ(run({"solve", odd, "--solution", path("solution.csv")}).exitCode, 0);
    EXPECT_THAT(contentOf(path("solution.csv")), HasSubstr("column,2,\"\"\"a,\xFF\",1,0,StatusBasic\n"));
    ASSERT_EQ(run({"solve", odd, "--solution", path("solution.json")}).exitCode, 0);
    EXPECT_EQ(Json::parse(contentOf(path("solution.json")))["columns"][1]["name"], "\"a,\xEF\xBF\xBD");
    EXPECT_EQ(csvField("two\nlines"), "\"two\nlines\"");

    const Output noNumbers = run(playedSolve({"--json", "--solution", path("solution.json")}), played("notanumber"));
    EXPECT_TRUE(Json::parse(noNumbers.out)["objective"].is_null());
    EXPECT_TRUE(Json::parse(contentOf(path("solution.json")))["columns"][0]["value"].is_null());
}

TEST_F(CommandSolveTest, RunWithoutSolutionLeavesNoOlderOneBehind) {
    const std::string table = file("solution.csv", "an older solution\n");
    const std::string model = file("model.mps", smallModelWith(" UP BOUND     Y                  0.5\n"));
    expectRun({"solve", model, "--solution", table}, 3, "infeasible", "there is no solution");
    EXPECT_EQ(contentOf(table), "kind,index,name,value,dual,status\n");
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
    expectRun({"solve", file("model.mps", smallModel), "--solution", "/dev/full"}, 2, "optimal",
              "/dev/full can't be written: No space left on device.");
}

}  // namespace
}  // namespace tarq::command
