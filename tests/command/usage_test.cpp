// What the command says to wrong usage and to input that it can't read.
#include "process.h"

namespace tarq::command {
namespace {

class CommandUsageTest : public CommandTest {
protected:
    struct Refusal {
        std::vector<std::string> arguments;
        std::string saying;
    };
    /// Each is told on standard error behind the program's name, or behind a translator's listing.
    void expectRefused(int exitCode, const std::vector<Refusal>& refusals) const {
        for (const auto& [arguments, saying] : refusals) {
            EXPECT_THAT(expectRun(arguments, exitCode, "", saying).err, testing::HasSubstr("tarq: "));
        }
    }
};

TEST_F(CommandUsageTest, WrongUsageIsExplainedOnStandardErrorOnly) {
    const std::string model = file("model.mps", smallModel);
    const std::string data = file("plan.dat", "param c := 3;\nend;\n");
    const std::string text = file("plan.mod", "param c; var x >= 0, <= 7; maximize z: c * x; end;\n");
    expectRefused(
        1, {
               {{}, "no command was given"},
               {{"explode"}, "there is no command 'explode'. The commands are solve, convert"},
               {{"solv", model}, "Did you mean solve?"},
               {{"solve"}, "FILE"},
               {{"solve", model, "--fast"}, "--fast"},
               {{"solve", model, "more"}, "more"},
               {{"solve", data}, "mps (.mps), triplet (.tri) and lindo (.ltx)"},
               {{"solve", model, "--format", "xml"}, "there is no such format"},
               {{"solve", "-"}, "standard input and output need --format"},
               {{"solve", model, "--set", "xmxmin"}, "expected NAME=VALUE"},
               {{"solve", model, "--set", "=5"}, "expected NAME=VALUE"},
               {{"solve", model, "--set", "xmxnd=5"}, "Parameter name does not exist.\nDid you mean xmxnod"},
               {{"solve", model, "--set", "zzzzzzzz=5"}, "'tarq parameters' lists them all"},
               {{"solve", model, "--set", "xzbest=5"}, "a result of a run"},
               {{"solve", model, "--set", "xmreal=2001"}, "valid range.\nxmreal takes 0 to 2000."},
               {{"solve", model, "--set", "xmreal=much"}, "xmreal takes a whole number, 0 to 2000."},
               {{"solve", model, "--set", "xglgap=0,01"}, "takes a number, 0 to 1. The decimal mark is a point."},
               {{"solve", model, "--set", "xglgap=nan"}, "xglgap takes a number"},
               {{"solve", model, "--set", "xmxnod=1e3"}, "xmxnod takes a whole number"},
               {{"solve", model, "--set", "xminmx=maximize"}, "xminmx takes min or max."},
               {{"solve", model, "--solution", model}, "would overwrite the model"},
               {{"solve", model, "--solution", "-"}, "--solution needs the name of a file"},
               {{"solve", model, "--engine", std::string(256, 'e')}, "255 characters"},
               {{"solve", model, "--data", data}, "this format takes no data file."},
               {{"solve", text, "--data", data, "--data", data}, "this format takes one data file."},
               {{"solve", text, "--data", data, "--solution", data}, "this would overwrite the model."},
               {{"convert", model, path("model.txt")}, "lindo (.ltx)"},
               {{"convert", text, path("out.mod"), "--data", data}, "a model can't be written in mathprog."},
               {{"convert", "-", path("a.tri")}, "standard input and output need --from"},
               {{"parameters", "xmxnd"}, "Did you mean xmxnod"},
               {{"parameters", "xmxnod", "xmxmin"}, "xmxmin"},
               {{"parameters", "--profile", model}, "--profile requires --page"},
               {{"describe", "ITARQModel.ColBL"}, "'ITARQModel.ColBL'. Did you mean ColLB"},
               {{"describe", "qqqqqqq"}, "'tarq describe' lists"},
           });
    EXPECT_EQ(contentOf(model), smallModel);
}

TEST_F(CommandUsageTest, InputThatCannotBeReadNamesFileAndLine) {
    const auto changed = [&](const std::string& name, std::string_view from, std::string_view to) {
        std::string text(smallModel);
        return file(name, text.replace(text.find(from), from.size(), to));
    };
    const std::string text = file("plan.mod", "param c; var x >= 0, <= 7; maximize z: c * x; end;\n");
    const std::string wrong = file("wrong.mod", "var x;\nminimize z: y;\nend;\n");
    const std::string noData = file("wrong.dat", "param c := 3;\nparam d := 4;\n");
    const std::string model = file("model.mps", smallModel);
    const std::string folder = path("folder.mps");
    std::filesystem::create_directory(folder);
    expectRefused(
        2, {
               {{"solve", path("missing.mps")}, "missing.mps can't be read: No such file or directory."},
               {{"solve", folder}, "it is a directory"},
               {{"solve", std::string(300, 'n') + ".mps"}, "255 characters"},
               {{"solve", file("empty.mps", "")}, "line 2: Unexpected end of file.\nThe file ends"},
               {{"solve", changed("free.mps", "NAME          SMALL", "NAME SMALL")},
                "line 1: NAME indicator expected.\nThis looks like free"},
               {{"solve", changed("keyword.mps", "COLUMNS", "COLS")}, "line 5: COLUMNS indicator expected.\nA section"},
               {{"solve", changed("row.mps", "NEED                 1\n    Y", "WANT                 1\n    Y")},
                "row.mps, line 6: Row name does not exist.\nNames are"},
               {{"solve", changed("number.mps", "   4\n", "4,5\n")}, "line 9: RHS value is not numeric.\nMPS is read"},
               {{"solve", changed("cut.mps", "ENDATA\n", "")}, "ENDDATA indicator expected."},
               {{"solve", file("binary.mps", {"\x7f\x45LF\0\1\n\xff", 8})}, "binary.mps, line 1: "},
               {{"solve", file("model.ltx", "MAX X\nEND\n")}, "model.ltx, line 2: + or - expected."},
               {{"solve", wrong}, "\ntarq: " + wrong + ", line 2: Error in MathProg model. y not defined\n"},
               {{"solve", wrong, "--format", "ampl"}, "tarq: " + wrong + ", line 2: Error in AMPL model. "},
               {{"solve", text, "--data", noData}, noData + ", line 2: Error in MathProg model. d not a parameter\n"},
               {{"solve", text, "--data", path("none.dat")}, path("none.dat") + ": Could not find .DAT file."},
               {{"solve", path("none.mod")}, path("none.mod") + ": Could not find .MOD file. Bad filename."},
               {{"solve", file("x.nl", "no stub")}, path("x.nl") + ": AMPL I/O Error. This is no stub"},
               {{"solve", path("none"), "--format", "nl"}, path("none.nl") + " can't be read: No such file"},
               {{"solve", file("plan.mpl", "")}, "plan.mpl: MPL is not available."},
               {{"solve", model, "--profile", file("bad.txt", "xmiter = many\n")},
                "Type mismatch for parameter 'xmiter'! Error in line: xmiter = many"},
               {{"solve", model, "--profile", path("none.txt")}, "none.txt can't be read: No such file or directory."},
               {{"solve", model, "--solution", path("none/a.csv")}, "none/a.csv can't be written: No such file"},
               {{"convert", model, path("no/folder.mps")}, "No such file or directory"},
               {{"convert", model, path("."), "--to", "mps"}, "it is a directory"},
           });
    const Surroundings cut{.input = "NAME          X\nROW\n", .environment = {}};
    expectRun({"solve", "-", "--format", "mps"}, 2, "", "standard input, line 2: ROWS indicator expected.", cut);
}

TEST_F(CommandUsageTest, HelpAndVersionGoToStandardOutput) {
    EXPECT_THAT(expectRun({"solve", "--help"}, 0, "4  ended at a limit").out, testing::HasSubstr("Examples:"));
    expectRun({"--help"}, 0, "tarq describe ITARQModel");
    EXPECT_THAT(run({"--version", "--engine", PLAYED_ENGINE}).out,
                testing::ContainsRegex("tarq [0-9.]+\nengine played\n"));
    expectRun({"--version", "--engine", "/nonexistent"}, 0, "engine unknown\n");
    expectRun({"--version"}, 0, "engine HiGHS ");
}

}  // namespace
}  // namespace tarq::command
