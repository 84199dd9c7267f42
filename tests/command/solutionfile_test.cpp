// The solution as a file.
#include "process.h"

#include "printing/solutionfile.h"

namespace tarq::command {
namespace {

using Json = nlohmann::ordered_json;
using testing::HasSubstr;

class CommandSolutionFileTest : public CommandTest {};

TEST_F(CommandSolutionFileTest, CsvHasALineForEachColumnAndRow) {
    const Output output = run({"solve", file("model.mps", smallModel), "--solution", path("solution.CSV")});
    ASSERT_EQ(output.exitCode, 0) << output.err;
    EXPECT_EQ(contentOf(path("solution.CSV")),
              "kind,index,name,value,dual,status\n"
              "column,1,X,3,-1,StatusUB\n"
              "column,2,Y,1,0,StatusBasic\n"
              "row,1,NEED,4,2,StatusLB\n");
}

TEST_F(CommandSolutionFileTest, JsonHasTheSameInTwoLists) {
    ASSERT_EQ(run({"solve", file("model.mps", smallModel), "--solution", path("solution")}).exitCode, 0);
    const Json document = Json::parse(contentOf(path("solution")));
    EXPECT_EQ(document.dump(),
              R"({"columns":[{"index":1,"name":"X","value":3.0,"reducedCost":-1.0,"status":"StatusUB"},)"
              R"({"index":2,"name":"Y","value":1.0,"reducedCost":0.0,"status":"StatusBasic"}],)"
              R"("rows":[{"index":1,"name":"NEED","value":4.0,"dual":2.0,"status":"StatusLB"}]})");
}

TEST_F(CommandSolutionFileTest, IntegerSolutionTakesTheRelaxationsPlace) {
    ASSERT_EQ(run({"solve", example("crew_schedule.mps"), "--solution", path("crew.json")}).exitCode, 0);
    const Json solution = Json::parse(contentOf(path("crew.json")));
    ASSERT_EQ(solution["columns"].size(), 84U);
    for (const Json& column : solution["columns"]) {
        const double value = column["value"].get<double>();
        EXPECT_NEAR(value, std::round(value), 1e-6) << column;
    }
}

TEST_F(CommandSolutionFileTest, OddNamesAreQuotedAndBrokenTextIsReplaced) {
    std::string model(smallModel);
    for (std::size_t at = model.find("    Y "); at != std::string::npos; at = model.find("    Y ")) {
        model.replace(at, 8, "    \"a,\xFF");
    }
    const std::string path1 = file("model.mps", model);
    ASSERT_EQ(run({"solve", path1, "--solution", path("solution.csv")}).exitCode, 0);
    EXPECT_THAT(contentOf(path("solution.csv")), HasSubstr("column,2,\"\"\"a,\xFF\",1,0,StatusBasic\n"));
    ASSERT_EQ(run({"solve", path1, "--solution", path("solution.json")}).exitCode, 0);
    EXPECT_EQ(Json::parse(contentOf(path("solution.json")))["columns"][1]["name"], "\"a,\xEF\xBF\xBD");

    EXPECT_EQ(csvField("two\nlines"), "\"two\nlines\"");
    EXPECT_EQ(csvField(""), "");
}

TEST_F(CommandSolutionFileTest, RunWithoutSolutionLeavesNoOlderOneBehind) {
    const std::string table = file("solution.csv", "an older solution\n");
    const std::string model = file("model.mps", smallModelWith(" UP BOUND     Y                  0.5\n"));
    const Output output = run({"solve", model, "--solution", table});
    EXPECT_EQ(output.exitCode, 3);
    EXPECT_EQ(contentOf(table), "kind,index,name,value,dual,status\n");
    EXPECT_THAT(output.err, HasSubstr("there is no solution"));
}

TEST_F(CommandSolutionFileTest, PathThatCannotBeWrittenIsKnownBeforeTheRun) {
    const Output output = run({"solve", file("model.mps", smallModel), "--solution", path("none") + "/solution.csv"});
    EXPECT_EQ(output.exitCode, 2);
    EXPECT_THAT(output.err, HasSubstr("none/solution.csv can't be written: No such file or directory."));
    EXPECT_EQ(output.out, "");
}

}  // namespace
}  // namespace tarq::command
