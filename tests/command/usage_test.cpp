// What the command says to wrong usage and to input that it can't read.
#include "process.h"

namespace tarq::command {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class CommandUsageTest : public CommandTest {};

TEST_F(CommandUsageTest, WrongUsageIsExplainedOnStandardErrorOnly) {
    const std::string model = file("model.mps", smallModel);
    const std::string noFormat = file("model.dat", smallModel);
    struct Case {
        std::vector<std::string> arguments;
        std::string_view saying;
    };
    const Case cases[] = {
        {{}, "no command was given"},
        {{"explode"}, "there is no command 'explode'. The commands are solve, convert"},
        {{"solv", model}, "Did you mean solve?"},
        {{"solve"}, "FILE"},
        {{"solve", model, "--fast"}, "--fast"},
        {{"solve", model, "more"}, "more"},
        {{"solve", noFormat}, "mps (.mps), triplet (.tri) and lindo (.ltx)"},
        {{"solve", model, "--format", "xml"}, "there is no such format"},
        {{"solve", "-"}, "standard input and output need --format"},
        {{"solve", model, "--set", "xmxmin"}, "expected NAME=VALUE"},
        {{"solve", model, "--set", "=5"}, "expected NAME=VALUE"},
        {{"solve", model, "--set", "xmxnd=5"}, "Parameter name does not exist.\nDid you mean xmxnod"},
        {{"solve", model, "--set", "zzzzzzzz=5"}, "'tarq parameters' lists them all"},
        {{"solve", model, "--set", "xzbest=5"}, "a result of a run"},
        {{"solve", model, "--set", "xmreal=2001"}, "Passed value is not within valid range.\nxmreal takes 0 to 2000."},
        {{"solve", model, "--set", "xmreal=much"}, "xmreal takes a whole number, 0 to 2000."},
        {{"solve", model, "--set", "xglgap=much"}, "xglgap takes a number, 0 to 1."},
        {{"solve", model, "--set", "xglgap=0,01"}, "xglgap takes a number, 0 to 1. The decimal mark is a point."},
        {{"solve", model, "--set", "xglgap=nan"}, "xglgap takes a number"},
        {{"solve", model, "--set", "xmxnod=1e3"}, "xmxnod takes a whole number"},
        {{"solve", model, "--set", "xminmx=maximize"}, "xminmx takes min or max."},
        {{"solve", model, "--solution", model}, "would overwrite the model"},
        {{"solve", model, "--solution", "-"}, "--solution needs the name of a file"},
        {{"solve", model, "--engine", std::string(256, 'e')}, "255 characters"},
        {{"parameters", "xmxnd"}, "Did you mean xmxnod"},
        {{"parameters", "xmxnod", "xmxmin"}, "xmxmin"},
        {{"parameters", "--profile", model}, "--profile requires --page"},
    };
    for (const Case& one : cases) {
        const Output output = run(one.arguments);
        SCOPED_TRACE(testing::PrintToString(one.arguments));
        EXPECT_EQ(output.exitCode, 1);
        EXPECT_THAT(output.err, AllOf(HasSubstr("tarq: "), HasSubstr(one.saying)));
        EXPECT_THAT(output.out, IsEmpty());
    }
    EXPECT_EQ(contentOf(model), smallModel);
}

TEST_F(CommandUsageTest, InputThatCannotBeReadNamesFileAndLine) {
    const auto changed = [](std::string_view from, std::string_view to) {
        std::string text(smallModel);
        return text.replace(text.find(from), from.size(), to);
    };
    struct Case {
        std::string file;
        std::string_view saying;
    };
    const Case cases[] = {
        {path("missing.mps"), "missing.mps can't be read: No such file or directory."},
        {path("missing") + "/model.mps", "No such file or directory."},
        {std::string(300, 'n') + ".mps", "255 characters"},
        {file("empty.mps", ""), "empty.mps, line 2: Unexpected end of file."},
        {file("free.mps", changed("NAME          SMALL", "NAME SMALL")),
         "line 1: NAME indicator expected.\nThis looks like free"},
        {file("keyword.mps", changed("COLUMNS", "COLS")), "keyword.mps, line 5: COLUMNS indicator expected."},
        {file("row.mps", changed("NEED                 1\n    Y", "WANT                 1\n    Y")),
         "row.mps, line 6: Row name does not exist."},
        {file("number.mps", changed("   4\n", "4,5\n")), "number.mps, line 9: RHS value is not numeric."},
        {file("cut.mps", changed("ENDATA\n", "")), "ENDDATA indicator expected."},
        {file("binary.mps", std::string("\x7f"
                                        "ELF\0\1\n\xff",
                                        8)),
         "binary.mps, line 1: "},
        {file("model.ltx", "MAX X\nEND\n"), "model.ltx, line 2: + or - expected."},
        {file("model.tri", "1 1 1 1\n0 1 x 0 X\n"), "model.tri, line 2: Can't read cost in Section 3."},
    };
    std::filesystem::create_directory(folder_ / "folder.mps");
    const auto check = [&](const std::string& model, std::string_view saying) {
        SCOPED_TRACE(model);
        const Output output = run({"solve", model});
        EXPECT_EQ(output.exitCode, 2);
        EXPECT_THAT(output.err, HasSubstr(saying));
        EXPECT_THAT(output.out, IsEmpty());
    };
    for (const Case& one : cases) check(one.file, one.saying);
    check(path("folder.mps"), "it is a directory");
}

TEST_F(CommandUsageTest, HelpTellsFormatsExitCodesAndExamplesOnStandardOutput) {
    const Output solve = run({"solve", "--help"});
    EXPECT_EQ(solve.exitCode, 0);
    EXPECT_THAT(solve.out, AllOf(HasSubstr(".ltx"), HasSubstr("4  ended at a limit"), HasSubstr("Examples:")));
    EXPECT_THAT(solve.err, IsEmpty());
    EXPECT_THAT(run({"--help"}).out, AllOf(HasSubstr("solve"), HasSubstr("convert"), HasSubstr("describe")));
}

TEST_F(CommandUsageTest, VersionNamesProgramAndEngine) {
    EXPECT_THAT(run({"--version", "--engine", PLAYED_ENGINE}).out,
                testing::ContainsRegex("tarq [0-9.]+\nengine played\n"));
    EXPECT_THAT(run({"--version", "--engine", "/nonexistent"}).out, HasSubstr("engine unknown\n"));
    EXPECT_THAT(run({"--version"}).out, Not(HasSubstr("unknown")));
}

}  // namespace
}  // namespace tarq::command
