// Models in modelling languages.
#include "process.h"

namespace tarq::command {
namespace {

using Json = nlohmann::ordered_json;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

class CommandLanguagesTest : public CommandTest {
protected:
    const std::string model = file("plan.mod", "param c; var x >= 0, <= 7; maximize z: c * x; display c; end;\n");
    const std::string data = file("plan.dat", "param c := 3;\nend;\n");
};

TEST_F(CommandLanguagesTest, ExamplesAreSolved) {
    struct {
        std::vector<std::string> arguments;
        double optimum;
    } const cases[] = {
        {{example("irrigation.mod"), "--data", example("irrigation.dat")}, 593734.949356},
        {{example("depot_choice.mod"), "--data", example("depot_choice.dat"), "--set", "xglgap=0"}, 401308},
        {{model, "--data", data, "--format", "ampl"}, 21},
    };
    for (const auto& row : cases) {
        std::vector<std::string> arguments{"solve", "--json"};
        arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
        const Output output = run(arguments);
        ASSERT_EQ(output.exitCode, 0) << output.err;
        EXPECT_NEAR(Json::parse(output.out)["objective"].get<double>(), row.optimum, 1e-4) << row.arguments.front();
        EXPECT_THAT(output.err, IsEmpty());
    }
}

TEST_F(CommandLanguagesTest, TextsAreConvertedAndShownAlsoFromStandardInput) {
    ASSERT_EQ(
        run({"convert", example("irrigation.mod"), path("plan.tri"), "--data", example("irrigation.dat")}).exitCode, 0);
    EXPECT_THAT(run({"solve", path("plan.tri"), "--quiet", "--set", "xminmx=max"}).out, HasSubstr("593734.9494\n"));
    Surroundings around;
    around.input = contentOf(model);
    const Output shown = run({"show", "-", "--format", "MathProg", "--data", data, "--listing"}, around);
    EXPECT_THAT(shown.out, HasSubstr("MAX   3 x\n"));
    EXPECT_THAT(shown.err, AllOf(HasSubstr("section from standard input...\n"), HasSubstr("c = 3\n")));
}

TEST_F(CommandLanguagesTest, FailuresNameFileAndLineBehindTheListing) {
    const std::string wrong = file("wrong.mod", "var x;\nminimize z: y;\nend;\n");
    const std::string noData = file("wrong.dat", "param c := 3;\nparam d := 4;\n");
    const std::string noStub = file("wrong.nl", "no stub");
    struct {
        std::vector<std::string> arguments;
        int exitCode;
        std::string words;
    } const cases[] = {
        {{wrong}, 2, "\ntarq: " + wrong + ", line 2: Error in MathProg model. y not defined\n"},
        {{wrong, "--format", "ampl"}, 2, "tarq: " + wrong + ", line 2: Error in AMPL model. "},
        {{model, "--data", noData}, 2, "tarq: " + noData + ", line 2: Error in MathProg model. d not a parameter\n"},
        {{model, "--data", path("none.dat")}, 2, "tarq: " + path("none.dat") + ": Could not find .DAT file."},
        {{path("none.mod")}, 2, "tarq: " + path("none.mod") + ": Could not find .MOD file. Bad filename."},
        {{noStub}, 2, "tarq: " + noStub + ": AMPL I/O Error. This is no stub"},
        {{path("none"), "--format", "nl"}, 2, path("none.nl") + " can't be read: No such file or directory.\n"},
        {{file("plan.mpl", "")}, 2, "plan.mpl: MPL is not available."},
        {{model, "--data", data, "--data", data}, 1, "this format takes one data file."},
        {{file("plan.mps", smallModel), "--data", data}, 1, "this format takes no data file."},
        {{model, "--data", data, "--solution", data}, 1, "this would overwrite the model."},
    };
    for (const auto& row : cases) {
        std::vector<std::string> arguments{"solve"};
        arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
        const Output output = run(arguments);
        EXPECT_EQ(output.exitCode, row.exitCode) << row.words;
        EXPECT_THAT("\n" + output.err, HasSubstr(row.words));
    }
    const Json document = Json::parse(run({"solve", wrong, "--json"}).out);
    EXPECT_EQ(document["error"]["line"], 2);
    EXPECT_EQ(document["error"]["status"], 0x80041021U);
    EXPECT_EQ(run({"convert", model, path("out.mod"), "--data", data}).exitCode, 1);
}

}  // namespace
}  // namespace tarq::command
