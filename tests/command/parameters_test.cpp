// Listing and explaining the parameters.
#include "process.h"

namespace tarq::command {
namespace {

using Json = nlohmann::ordered_json;
using testing::AllOf;
using testing::HasSubstr;

class CommandParametersTest : public CommandTest {};

TEST_F(CommandParametersTest, JsonListHasEveryParameterWithTheMembersOfItsType) {
    const Output output = run({"parameters", "--json"});
    ASSERT_EQ(output.exitCode, 0) << output.err;
    const Json list = Json::parse(output.out);
    ASSERT_EQ(list.size(), 121U);
    for (std::size_t i = 0; i < list.size(); ++i) {
        const Json& row = list[i];
        SCOPED_TRACE(row.dump());
        std::vector<std::string> members;
        for (const auto& [name, value] : row.items()) members.push_back(name);
        const std::vector<std::string> limits =
            row["type"] == "text" ? std::vector<std::string>{"maxLength"} : std::vector<std::string>{"min", "max"};
        std::vector<std::string> expected{"id", "name", "type"};
        expected.insert(expected.end(), limits.begin(), limits.end());
        expected.insert(expected.end(), {"default", "value", "section", "description", "options"});
        EXPECT_EQ(members, expected);
        EXPECT_EQ(row["id"], i + 1);
        EXPECT_EQ(row["value"], row["default"]);
    }
}

TEST_F(CommandParametersTest, JsonOfOneParameterIsTheEntryOfTheList) {
    const Json list = Json::parse(run({"parameters", "--json"}).out);
    for (const std::size_t id : {9U, 10U, 40U, 66U, 72U}) {
        const Json& row = list[id - 1];
        EXPECT_EQ(Json::parse(run({"parameters", row["name"], "--json"}).out), row);
    }
    EXPECT_EQ(list[71]["min"], 0);
    EXPECT_EQ(list[71]["max"], 2000);
    EXPECT_TRUE(list[71]["max"].is_number_integer());
    EXPECT_EQ(list[39]["default"], 1e-4);
    EXPECT_EQ(list[65]["maxLength"], 8);
    EXPECT_EQ(list[65]["section"], "Optimization Direction");
    EXPECT_TRUE(list[9]["section"].is_null());
    EXPECT_EQ(list[5]["options"].size(), 3U);
    EXPECT_EQ(list[5]["options"][0], Json({{"value", 1}, {"text", "Internal basis format in file xfnsav."}}));
}

TEST_F(CommandParametersTest, ListIsGroupedBySectionAndTellsTheWholeMeaning) {
    const std::string out = run({"parameters"}).out;
    std::size_t last = 0;
    for (const char* title : {"Optimization Direction", "Ressource Limits", "LP Parameter", "IP Parameter",
                              "Other Parameter", "Tolerances", "File Names and File Switches", "Not in a section"}) {
        const std::size_t at = out.find(title);
        ASSERT_NE(at, std::string::npos) << title;
        EXPECT_GE(at, last) << title;
        last = at;
    }
    EXPECT_THAT(out, AllOf(HasSubstr("IP optimization will be stopped after xmxnod nodes."),
                           testing::ContainsRegex("\n  xmreal +0 +0 to 2000 +Memory in MB")));
}

TEST_F(CommandParametersTest, WordIsLookedForInNamesAndMeanings) {
    const Json found = Json::parse(run({"parameters", "NODES", "--json"}).out);
    EXPECT_THAT(found.dump(), AllOf(HasSubstr("\"xmxnod\""), testing::Not(HasSubstr("\"xmreal\""))));
    EXPECT_THAT(run({"parameters", "nodes"}).out, HasSubstr("IP optimization will be stopped after xmxnod nodes."));
}

TEST_F(CommandParametersTest, OneParameterIsExplainedInFullWithinTheLine) {
    const std::string out = run({"parameters", "XMREAL"}).out;
    EXPECT_THAT(out, AllOf(HasSubstr("xmreal (parameter 72)"), HasSubstr("Ressource Limits"), HasSubstr("0 to 2000"),
                           HasSubstr("Memory in MB")));
    const std::string options = run({"parameters", "xcovct"}).out;
    EXPECT_THAT(options, AllOf(HasSubstr("0  No Cover Cuts are derived."), HasSubstr("3  Cover Cuts will be derived")));
    std::istringstream lines(options + run({"parameters", "xautom"}).out);
    for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 80U) << line;
}

TEST_F(CommandParametersTest, PageWithoutADisplayLeavesTheProfileAlone) {
    Surroundings noDisplay;
    noDisplay.environment = {"DISPLAY=", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM="};
    const Output output = run({"parameters", "--page", "--profile", path("plan.pro")}, noDisplay);
    EXPECT_EQ(output.exitCode, 5);
    EXPECT_THAT(output.err, HasSubstr("'tarq parameters --write FILE' makes a profile"));
    EXPECT_FALSE(std::filesystem::exists(path("plan.pro")));
}

}  // namespace
}  // namespace tarq::command
