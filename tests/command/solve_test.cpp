// Solving: what is reported, in which form and with which exit code.
#include "process.h"

#include <cmath>

namespace tarq::command {
namespace {

using Json = nlohmann::ordered_json;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class CommandSolveTest : public CommandTest {
protected:
    Output playedRun(const std::string& played, std::vector<std::string> options = {}) {
        options.insert(options.begin(), {"solve", file("model.mps", smallModel), "--engine", PLAYED_ENGINE});
        return run(options, {.input = {}, .environment = {"PLAYED_RUN=" + played}});
    }
};

std::vector<std::string> membersOf(const Json& object) {
    std::vector<std::string> names;
    for (const auto& [name, value] : object.items()) names.push_back(name);
    return names;
}

TEST_F(CommandSolveTest, ReportShowsStatusObjectiveAndColumnsThatAreNotZero) {
    const Output output = run({"solve", file("model.mps", smallModelWith(" LO BOUND     X                    0\n"))});
    EXPECT_EQ(output.exitCode, 0) << output.err;
    EXPECT_THAT(output.out, testing::ContainsRegex("Status +optimal\nObjective +5\n"));
    EXPECT_THAT(output.out, testing::ContainsRegex("X +3 +-1\nY +1 +0\n"));
    EXPECT_THAT(output.err, IsEmpty());
}

TEST_F(CommandSolveTest, QuietPrintsOnlyStatusAndObjective) {
    const Output output = run({"solve", file("model.mps", smallModel), "--quiet", "--set", "XMINMX=min"});
    EXPECT_THAT(output.out, testing::MatchesRegex("Status +optimal\nObjective +5\n"));
}

TEST_F(CommandSolveTest, LaterSettingOfAParameterWins) {
    const std::string model = file("model.mps", smallModelWith(" UP BOUND     Y                    9\n"));
    const Output output = run({"solve", model, "--quiet", "--set", "xminmx=min", "--set", "xminmx=max"});
    EXPECT_THAT(output.out, HasSubstr(" 21\n"));
}

TEST_F(CommandSolveTest, StandardInputIsReadLikeAFile) {
    const Output good =
        run({"solve", "-", "--format", "MPS", "--json"}, {.input = std::string(smallModel), .environment = {}});
    EXPECT_EQ(good.exitCode, 0) << good.err;
    EXPECT_EQ(Json::parse(good.out)["file"], "-");
    EXPECT_NEAR(Json::parse(good.out)["objective"].get<double>(), 5, 1e-9);

    const Output bad = run({"solve", "-", "--format", "mps"}, {.input = "NAME          X\nROW\n", .environment = {}});
    EXPECT_EQ(bad.exitCode, 2);
    EXPECT_THAT(bad.err, HasSubstr("standard input, line 2: ROWS indicator expected."));
}

TEST_F(CommandSolveTest, JsonHasExactlyTheMembersThatProgramsRelyOn) {
    const Output output = run({"solve", example("crew_schedule.mps"), "--json", "--set", "xmxmin=2"});
    ASSERT_EQ(output.exitCode, 0) << output.err;
    const Json document = Json::parse(output.out);
    EXPECT_THAT(membersOf(document),
                ElementsAre("file", "version", "engine", "direction", "parameters", "model", "status", "solverStatus",
                            "solutionStatus", "objective", "lpObjective", "ipObjective", "bestPossible", "iterations",
                            "nodes", "integerSolutions", "seconds", "message"));
    EXPECT_THAT(document["engine"].get<std::string>(), testing::StartsWith("HiGHS "));
    EXPECT_EQ(document["direction"], "min");
    EXPECT_EQ(document["parameters"]["xmxmin"], 2);
    EXPECT_FALSE(document["parameters"].contains("xglgap"));
    EXPECT_THAT(membersOf(document["model"]), ElementsAre("name", "columns", "rows", "nonzeros", "integer"));
    EXPECT_THAT(membersOf(document["seconds"]), ElementsAre("read", "solve"));
    EXPECT_EQ(document["model"]["name"], "CREWPLAN");
    EXPECT_EQ(document["model"]["integer"], true);
    EXPECT_EQ(document["status"], 0);
    EXPECT_EQ(document["solverStatus"], Json({{"value", 101}, {"name", "IPFinished"}}));
    EXPECT_EQ(document["solutionStatus"], Json({{"value", 101}, {"name", "IPOptimalSolution"}}));
    EXPECT_EQ(document["objective"], document["ipObjective"]);
    EXPECT_LE(document["lpObjective"].get<double>(), document["objective"].get<double>());
    EXPECT_THAT(output.err, IsEmpty());
}

TEST_F(CommandSolveTest, ExamplesReachTheOptimaOfTheirReadme) {
    const std::pair<const char*, double> optima[] = {{"refinery_blend.mps", -4860.192625782},
                                                     {"production_week.mps", 36733.818709677},
                                                     {"crew_schedule.mps", 30327}};
    for (const auto& [name, optimum] : optima) {
        const Output output = run({"solve", example(name), "--json", "--set", "xglgap=0"});
        ASSERT_EQ(output.exitCode, 0) << name << output.err;
        EXPECT_NEAR(Json::parse(output.out)["objective"].get<double>(), optimum, 1e-6 * std::abs(optimum)) << name;
    }
}

TEST_F(CommandSolveTest, ModelsWithoutSolutionGiveTheirStatusAndExitCode3) {
    struct Case {
        std::string model;
        std::vector<std::string> options;
        std::string_view ending;
        std::string_view status;
    };
    const std::string integerGap = smallModelWith(
        " UP BOUND     Y                  0.5\n LI BOUND     X                    2\n"
        " UP BOUND     X                  3.7\n");
    const Case cases[] = {
        {smallModelWith(" UP BOUND     Y                  0.5\n"), {}, "infeasible", "LPInfeasible"},
        {std::string(smallModel), {"--set", "xminmx=max"}, "unbounded", "LPUnbounded"},
        {integerGap, {}, "no integer solution", "IPNoSolution"},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.ending);
        std::vector<std::string> arguments{"solve", file("model.mps", one.model)};
        arguments.insert(arguments.end(), one.options.begin(), one.options.end());
        const Output human = run(arguments);
        EXPECT_EQ(human.exitCode, 3) << human.err;
        EXPECT_THAT(human.out, AllOf(HasSubstr(one.ending), testing::ContainsRegex("Objective +none")));
        arguments.emplace_back("--json");
        const Output json = run(arguments);
        EXPECT_EQ(json.exitCode, 3);
        EXPECT_EQ(Json::parse(json.out)["solutionStatus"]["name"], one.status);
        EXPECT_TRUE(Json::parse(json.out)["objective"].is_null());
    }
}

TEST_F(CommandSolveTest, JsonOfAFailureTellsItWithItsLineAndWhatIsKnown) {
    const std::string model = file("model.mps", smallModel);
    const std::string broken = file("broken.mps", "NAME          X\nROW\n");
    struct {
        std::vector<std::string> options;
        int exitCode;
        Json status, line;
        const char* text;
        bool modelIsKnown;
    } const cases[] = {{{broken}, 2, 0x8004102AU, 2, "ROWS indicator expected", false},
                       {{path("none.mps")}, 2, 0x80041028U, Json(), "No such file", false},
                       {{model, "--set", "xglgap=2"}, 1, 0x80041017U, Json(), "0 to 1", true},
                       {{model, "--solution", path("none/a.csv")}, 2, Json(), Json(), "can't be written", true}};
    for (const auto& one : cases) {
        std::vector<std::string> arguments{"solve", "--json"};
        arguments.insert(arguments.end(), one.options.begin(), one.options.end());
        const Output output = run(arguments);
        SCOPED_TRACE(output.out);
        EXPECT_EQ(output.exitCode, one.exitCode);
        const Json document = Json::parse(output.out);
        EXPECT_EQ(document["error"]["status"], one.status);
        EXPECT_EQ(document["error"]["line"], one.line);
        EXPECT_THAT(document["error"]["text"].get<std::string>(), HasSubstr(one.text));
        EXPECT_EQ(document["model"].is_object(), one.modelIsKnown);
        EXPECT_TRUE(document["objective"].is_null() && document["solverStatus"].is_null());
    }
}

TEST_F(CommandSolveTest, BoundsThatOtherProgramsReadDifferentlyAreNoted) {
    const std::string model =
        file("model.mps", smallModelWith(" MI BOUND     X\n UP BOUND     X                    3\n MI BOUND     Y\n"));
    EXPECT_THAT(run({"solve", model}).err, HasSubstr("note: 1 MI bound also set the upper bound to 0; "));
    EXPECT_EQ(run({"solve", model, "--quiet"}).err, "");
    EXPECT_EQ(run({"convert", file("none.mps", smallModel), path("a.tri")}).err, "");
}

TEST_F(CommandSolveTest, LimitReportsTheBestSolutionSoFarWithExitCode4) {
    const std::string model = file("hard.mps", hardModel());
    const Output output = run({"solve", model, "--json", "--set", "xmxnod=20"});
    EXPECT_EQ(output.exitCode, 4) << output.err;
    const Json document = Json::parse(output.out);
    EXPECT_EQ(document["status"], 0x42001);
    EXPECT_EQ(document["solverStatus"]["name"], "IPxmxnodReached");
    EXPECT_EQ(document["solutionStatus"]["name"], "IPSubOptimalSolution");
    EXPECT_GE(document["integerSolutions"].get<int>(), 1);
    EXPECT_LT(document["bestPossible"].get<double>(), document["objective"].get<double>());
    EXPECT_THAT(run({"solve", model, "--set", "xmxnod=20"}).out,
                AllOf(HasSubstr("ended at the node limit (xmxnod)"), HasSubstr("columns are not zero")));
}

TEST_F(CommandSolveTest, RelaxationAloneIsAnOptimum) {
    const Output output = run({"solve", example("crew_schedule.mps"), "--json", "--set", "xlpmip=0"});
    EXPECT_EQ(output.exitCode, 0);
    const Json document = Json::parse(output.out);
    EXPECT_EQ(document["solutionStatus"]["name"], "LPOptimalSolution");
    EXPECT_EQ(document["objective"], document["lpObjective"]);
}

TEST_F(CommandSolveTest, EngineThatIsMissingOrFailsGivesExitCode5AndTheReason) {
    const Output missing = run({"solve", file("model.mps", smallModel), "--engine", "/nonexistent/engine.so"});
    EXPECT_EQ(missing.exitCode, 5);
    EXPECT_THAT(missing.err,
                AllOf(HasSubstr("/nonexistent/engine.so could not be loaded"), HasSubstr("--engine FILE")));
    EXPECT_THAT(missing.out, IsEmpty());

    const Output numeric = playedRun("numeric");
    EXPECT_EQ(numeric.exitCode, 5);
    EXPECT_THAT(numeric.err, AllOf(HasSubstr("LPNumericError"), HasSubstr("The matrix is singular.")));

    const Output memory = playedRun("nomemory", {"--json"});
    EXPECT_EQ(memory.exitCode, 5);
    EXPECT_EQ(Json::parse(memory.out)["status"], 0x80041013U);
    EXPECT_EQ(Json::parse(memory.out)["message"], "Error, cannot allocate requested memory");
}

TEST_F(CommandSolveTest, DataThatTheEngineRefusesIsRejectedInputWithItsReason) {
    const Output output =
        run({"solve", file("model.mps", smallModelWith(" UP BOUND     Y                   -1\n")), "--json"});
    EXPECT_EQ(output.exitCode, 2);
    EXPECT_THAT(output.err, HasSubstr("The lower bound 0 of column 2 is above its upper bound -1."));
    EXPECT_THAT(Json::parse(output.out)["message"], HasSubstr("above its upper bound"));
}

TEST_F(CommandSolveTest, ValuesThatAreNoNumbersLeaveTheJsonValid) {
    const Output output = playedRun("notanumber", {"--json", "--solution", path("solution.json")});
    EXPECT_TRUE(Json::parse(output.out)["objective"].is_null());
    EXPECT_TRUE(Json::parse(contentOf(path("solution.json")))["columns"][0]["value"].is_null());
}

TEST_F(CommandSolveTest, FullOutputIsReported) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
    const Output output = run({"solve", file("model.mps", smallModel), "--solution", "/dev/full"});
    EXPECT_EQ(output.exitCode, 2);
    EXPECT_THAT(output.err, HasSubstr("/dev/full can't be written: No space left on device."));
}

}  // namespace
}  // namespace tarq::command
