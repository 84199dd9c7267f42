// Describing classes, interfaces, members and enumerations.
#include "process.h"

namespace tarq::command {
namespace {

using Json = nlohmann::ordered_json;
using testing::AllOf;
using testing::HasSubstr;

class CommandDescribeTest : public CommandTest {};

TEST_F(CommandDescribeTest, OverviewNamesEveryClassInterfaceAndEnumeration) {
    const std::string out = run({"describe"}).out;
    EXPECT_THAT(out, AllOf(HasSubstr("TARQModel       tarq.TARQModel.1       ITARQModel\n"),
                           HasSubstr("_ITARQModelEvents"), HasSubstr("TARQSolutionStatusTyp")));
    const Json all = Json::parse(run({"describe", "--json"}).out);
    EXPECT_EQ(all["classes"].size(), 14U);
    EXPECT_EQ(all["enumerations"].size(), 5U);
    const Json& model = all["classes"][0];
    EXPECT_EQ(model["name"], "TARQModel");
    EXPECT_EQ(model["versionedProgId"], "tarq.TARQModel.1");
    EXPECT_EQ(model["available"], true);
    EXPECT_EQ(model["interface"], "ITARQModel");
    EXPECT_EQ(model["events"], "_ITARQModelEvents");
    EXPECT_EQ(all["classes"][13]["interface"], Json());
}

TEST_F(CommandDescribeTest, NamesAreFoundInAnyCaseAndAsPartOfTheirOwner) {
    struct {
        const char* name;
        const char* shown;
    } const cases[] = {
        {"tarqmodel", "TARQModel (class)"},
        {"TARQ.tarqmodel.1", "TARQModel (class)"},
        {"itarqmodel", "ITARQModel (interface {"},
        {"tarqcoltype", "TARQColType (enumeration)"},
        {"binary", "Binary = 2 (TARQColType)"},
        {"collb", "ITARQModel.ColLB (member "},
        {"tarqmodel.collb", "ITARQModel.ColLB (member "},
        {"ITARQModel.COLLB", "ITARQModel.ColLB (member "},
        {"optimizationfinished", "_ITARQModelEvents.OptimizationFinished (member 1)"},
    };
    for (const auto& [name, shown] : cases) {
        const Output output = run({"describe", name});
        EXPECT_EQ(output.exitCode, 0) << name << output.err;
        EXPECT_THAT(output.out, HasSubstr(shown)) << name;
    }
}

TEST_F(CommandDescribeTest, AMemberTellsItsFormsParametersAndFlags) {
    EXPECT_THAT(run({"describe", "AddCol"}).out,
                AllOf(HasSubstr("method  AddCol(LB As Double, UB As Double, Type As TARQColType, [Cost As Variant], "
                                "[Name As Variant])\n"),
                      HasSubstr("may be left out")));
    EXPECT_THAT(run({"describe", "ColLB"}).out, AllOf(HasSubstr("get     ColLB(Col As Variant) As Double\n"),
                                                      HasSubstr("put     ColLB(Col As Variant) = Double\n")));
    EXPECT_THAT(run({"describe", "ITARQVarSet.Enum"}).out, HasSubstr(") As ITARQVarSetEnum\n"));
    EXPECT_THAT(run({"describe", "Optimize"}).out, HasSubstr("may take long"));
    EXPECT_THAT(run({"describe", "AddObjSum"}).out, HasSubstr("any number of values"));

    const Json forms = Json::parse(run({"describe", "GetParameterOption", "--json"}).out);
    ASSERT_EQ(forms.size(), 1U);
    EXPECT_EQ(forms[0]["interface"], "ITARQModel");
    EXPECT_EQ(forms[0]["kind"], "method");
    EXPECT_EQ(forms[0]["parameters"][2]["name"], "lpOptionValue");
    EXPECT_EQ(forms[0]["parameters"][2]["out"], true);
    const Json type = Json::parse(run({"describe", "ColType", "--json"}).out);
    ASSERT_EQ(type.size(), 2U);
    EXPECT_EQ(type[0]["result"], "TARQColType");
    EXPECT_EQ(type[0]["id"], type[1]["id"]);
}

TEST_F(CommandDescribeTest, AnInterfaceListsItsMembersInPublishedOrder) {
    const Json members = Json::parse(run({"describe", "ITARQModel", "--json"}).out)["members"];
    ASSERT_GT(members.size(), 100U);
    EXPECT_EQ(members[0]["name"], "Test");
    EXPECT_EQ(members[0]["id"], 1);
    for (std::size_t i = 1; i < members.size(); ++i) {
        const std::int32_t step = members[i]["name"] == members[i - 1]["name"] ? 0 : 1;
        EXPECT_EQ(members[i]["id"].get<int>(), members[i - 1]["id"].get<int>() + step) << members[i]["name"];
    }
    EXPECT_THAT(run({"describe", "ITARQModel"}).out,
                AllOf(HasSubstr(" 1  method          Test()\n"), HasSubstr("hidden")));
}

TEST_F(CommandDescribeTest, UnknownNameSuggestsNearOnes) {
    const Output output = run({"describe", "ITARQModel.ColBL"});
    EXPECT_EQ(output.exitCode, 1);
    EXPECT_EQ(output.out, "");
    EXPECT_THAT(output.err, AllOf(HasSubstr("'ITARQModel.ColBL'"), HasSubstr("ColLB")));
    EXPECT_THAT(run({"describe", "qqqqqqq"}).err, HasSubstr("'tarq describe' lists"));
}

}  // namespace
}  // namespace tarq::command
