// Listing and explaining the parameters, and classes, interfaces, members and enumerations.
#include "process.h"

namespace tarq::command {
namespace {

using Json = nlohmann::ordered_json;
using testing::AllOf;
using testing::HasSubstr;

class CommandExplainTest : public CommandTest {};

TEST_F(CommandExplainTest, JsonListHasEveryParameterWithTheMembersOfItsType) {
    const Json list = json({"parameters"});
    ASSERT_EQ(list.size(), 121U);
    for (std::size_t i = 0; i < list.size(); ++i) {
        const Json& row = list[i];
        SCOPED_TRACE(row.dump());
        std::string members;
        for (const auto& [name, value] : row.items()) members += name + ' ';
        const std::string limits = row["type"] == "text" ? "maxLength" : "min max";
        EXPECT_EQ(members, "id name type " + limits + " default value section description options ");
        EXPECT_EQ(row["id"], i + 1);
        EXPECT_EQ(row["value"], row["default"]);
    }
    for (const std::size_t id : {9U, 10U, 40U, 66U, 72U}) {
        EXPECT_EQ(json({"parameters", list[id - 1]["name"]}), list[id - 1]);
    }
    EXPECT_TRUE(list[71]["max"] == 2000 && list[71]["max"].is_number_integer());
    EXPECT_EQ(list[39]["default"], 1e-4);
    EXPECT_EQ(list[65]["maxLength"], 8);
    EXPECT_EQ(list[65]["section"], "Optimization Direction");
    EXPECT_TRUE(list[9]["section"].is_null());
    EXPECT_EQ(list[5]["options"][0], Json({{"value", 1}, {"text", "Internal basis format in file xfnsav."}}));
}

TEST_F(CommandExplainTest, ParametersAreListedBySectionAndFoundByAWordOfTheirMeaning) {
    const std::string out = run({"parameters"}).out;
    std::size_t last = 0;
    for (const char* title : {"Optimization Direction", "Ressource Limits", "LP Parameter", "IP Parameter",
                              "Other Parameter", "Tolerances", "File Names and File Switches", "Not in a section"}) {
        const std::size_t at = out.find(title, last);
        ASSERT_NE(at, std::string::npos) << title;
        last = at;
    }
    EXPECT_THAT(out, AllOf(HasSubstr("IP optimization will be stopped after xmxnod nodes."),
                           testing::ContainsRegex("\n  xmreal +0 +0 to 2000 +Memory in MB")));
    EXPECT_THAT(json({"parameters", "NODES"}).dump(),
                AllOf(HasSubstr("\"xmxnod\""), testing::Not(HasSubstr("\"xmreal\""))));
    expectRun({"parameters", "nodes"}, 0, "IP optimization will be stopped after xmxnod nodes.");
}

TEST_F(CommandExplainTest, OneParameterIsExplainedInFullWithinTheLine) {
    EXPECT_THAT(run({"parameters", "XMREAL"}).out,
                AllOf(HasSubstr("xmreal (parameter 72)\n  Section  Ressource Limits\n"), HasSubstr("0 to 2000\n"),
                      HasSubstr("Memory in MB")));
    const std::string options = run({"parameters", "xcovct"}).out;
    EXPECT_THAT(options, AllOf(HasSubstr("0  No Cover Cuts are derived."), HasSubstr("3  Cover Cuts will be derived")));
    std::istringstream lines(options + run({"parameters", "xautom"}).out);
    for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 80U) << line;
}

TEST_F(CommandExplainTest, PageWithoutADisplayLeavesTheProfileAlone) {
    const Surroundings noDisplay{.input = {}, .environment = {"DISPLAY=", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM="}};
    expectRun({"parameters", "--page", "--profile", path("plan.pro")}, 5, "",
              "'tarq parameters --write FILE' makes a profile", noDisplay);
    EXPECT_FALSE(std::filesystem::exists(path("plan.pro")));
}

TEST_F(CommandExplainTest, WhatTheComponentOffersIsFoundInAnyCaseAndAsPartOfItsOwner) {
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{}, "TARQModel       tarq.TARQModel.1       ITARQModel\n"},
        {{}, "_ITARQModelEvents"},
        {{}, "TARQSolutionStatusTyp"},
        {{"tarqmodel"}, "TARQModel (class)"},
        {{"TARQ.tarqmodel.1"}, "TARQModel (class)"},
        {{"itarqmodel"}, "ITARQModel (interface {"},
        {{"itarqmodel"}, " 1  method          Test()\n"},
        {{"itarqmodel"}, "hidden"},
        {{"tarqcoltype"}, "TARQColType (enumeration)"},
        {{"binary"}, "Binary = 2 (TARQColType)"},
        {{"collb"}, "ITARQModel.ColLB (member "},
        {{"tarqmodel.collb"}, "get     ColLB(Col As Variant) As Double\n"},
        {{"ITARQModel.COLLB"}, "put     ColLB(Col As Variant) = Double\n"},
        {{"optimizationfinished"}, "_ITARQModelEvents.OptimizationFinished (member 1)"},
        {{"AddCol"},
         "method  AddCol(LB As Double, UB As Double, Type As TARQColType, [Cost As Variant], [Name As Variant])\n"},
        {{"AddCol"}, "may be left out"},
        {{"ITARQVarSet.Enum"}, ") As ITARQVarSetEnum\n"},
        {{"Optimize"}, "may take long"},
        {{"AddObjSum"}, "any number of values"},
    };
    for (auto [arguments, shown] : cases) {
        arguments.insert(arguments.begin(), "describe");
        expectRun(arguments, 0, shown);
    }
}

TEST_F(CommandExplainTest, JsonOfTheComponentHasClassesMembersInPublishedOrderAndTheirForms) {
    const Json all = json({"describe"});
    EXPECT_EQ(all["classes"].size(), 14U);
    EXPECT_EQ(all["enumerations"].size(), 5U);
    const Json& model = all["classes"][0];
    EXPECT_EQ(model["name"], "TARQModel");
    EXPECT_EQ(model["versionedProgId"], "tarq.TARQModel.1");
    EXPECT_EQ(model["available"], true);
    EXPECT_EQ(model["interface"], "ITARQModel");
    EXPECT_EQ(model["events"], "_ITARQModelEvents");
    EXPECT_EQ(all["classes"][13]["interface"], Json());

    const Json members = json({"describe", "ITARQModel"})["members"];
    ASSERT_GT(members.size(), 100U);
    EXPECT_EQ(members[0]["id"], 1);
    for (std::size_t i = 1; i < members.size(); ++i) {
        const std::int32_t step = members[i]["name"] == members[i - 1]["name"] ? 0 : 1;
        EXPECT_EQ(members[i]["id"].get<int>(), members[i - 1]["id"].get<int>() + step) << members[i]["name"];
    }
    const Json forms = json({"describe", "GetParameterOption"});
    ASSERT_EQ(forms.size(), 1U);
    EXPECT_EQ(forms[0]["interface"], "ITARQModel");
    EXPECT_EQ(forms[0]["kind"], "method");
    EXPECT_EQ(forms[0]["parameters"][2]["name"], "lpOptionValue");
    EXPECT_EQ(forms[0]["parameters"][2]["out"], true);
    EXPECT_EQ(json({"describe", "ColType"})[0]["result"], "TARQColType");
}

}  // namespace
}  // namespace tarq::command
