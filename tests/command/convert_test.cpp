// Converting and showing model files, and profiles of parameters.
#include "process.h"

namespace tarq::command {
namespace {

using Json = nlohmann::ordered_json;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class CommandConvertTest : public CommandTest {
protected:
    /// Two rows, one of them with two bounds, and names that only Triplet holds.
    [[nodiscard]] std::string oddModel() const {
        return file("odd.tri",
                    "2 2 4 40 1e+25\n0 10 1 0 a long name\n0 10 2 1 X\n-5 -2 between\n-1e+25 -1 NEED\n1 1 1\n2 2 1\n");
    }

    static Surroundings withInput(std::string_view text) {
        Surroundings around;
        around.input = text;
        return around;
    }
};

TEST_F(CommandConvertTest, AModelKeepsItsOptimumThroughEveryFormat) {
    const std::string model = file("model.mps", smallModel);
    std::string last = model;
    for (const char* name : {"a.tri", "b.ltx", "c.mps", "d.TRI"}) {
        const Output output = run({"convert", last, path(name)});
        ASSERT_EQ(output.exitCode, 0) << name << output.err;
        EXPECT_THAT(output.out + output.err, IsEmpty());
        EXPECT_THAT(run({"solve", path(name), "--quiet"}).out, HasSubstr("Objective          5\n")) << name;
        last = path(name);
    }
}

TEST_F(CommandConvertTest, StandardStreamsTakeTheirFormatFromTheOptions) {
    const Output triplet = run({"convert", "-", "-", "--from", "mps", "--to", "triplet"}, withInput(smallModel));
    EXPECT_EQ(triplet.exitCode, 0) << triplet.err;
    EXPECT_THAT(triplet.out, HasSubstr("\n1 2 2 6 1e+25 \n"));
    EXPECT_THAT(run({"solve", "-", "--format", "triplet", "--quiet"}, withInput(triplet.out)).out,
                HasSubstr("Objective          5\n"));
    EXPECT_EQ(run({"convert", "-", path("a.tri")}).exitCode, 1);
}

TEST_F(CommandConvertTest, AModelThatTheFormatCannotHoldIsRefusedWithAdviceAndLeavesNoFile) {
    const std::string odd = oddModel();
    const std::string before = file("old.ltx", "as it was");
    struct {
        std::vector<std::string> arguments;
        const char* words;
    } const cases[] = {
        {{odd, path("a.mps")}, "Variable name 'a long name' is longer than 8 characters.\n--rename"},
        {{odd, path("a.ltx"), "--rename"},
         "Row number 1 is ranged. Split into two restrictions for Lindo compatibility.\n--to mps"},
        {{odd, before}, "longer than 8"},
    };
    for (const auto& [arguments, words] : cases) {
        std::vector<std::string> all{"convert"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        const Output output = run(all);
        EXPECT_EQ(output.exitCode, 2);
        EXPECT_THAT(output.err, HasSubstr(words));
    }
    EXPECT_FALSE(std::filesystem::exists(path("a.mps")) || std::filesystem::exists(path("a.ltx")));
    EXPECT_EQ(contentOf(before), "as it was");
    EXPECT_EQ(run({"convert", odd, path("a.mps"), "--rename"}).exitCode, 0);
}

TEST_F(CommandConvertTest, OutputThatCannotBeWrittenIsExplained) {
    const std::string model = file("model.mps", smallModel);
    EXPECT_THAT(run({"convert", model, path("no/folder.mps")}).err, HasSubstr("No such file or directory"));
    EXPECT_THAT(run({"convert", model, path("."), "--to", "mps"}).err, HasSubstr("it is a directory"));
    const Output unknown = run({"convert", model, path("model.txt")});
    EXPECT_EQ(unknown.exitCode, 1);
    EXPECT_THAT(unknown.err, AllOf(HasSubstr("--to"), HasSubstr("lindo (.ltx)")));
}

TEST_F(CommandConvertTest, OutputThatIsClosedIsMissedAndGetsIntoNoFile) {
    const std::string model = file("model.mps", smallModel);
    const Surroundings closed{.input = {}, .environment = {}, .noOutput = true};
    const std::vector<std::string> commands[] = {
        {"convert", model, "-", "--to", "mps"}, {"show", model}, {"solve", model, "--solution", path("solution.csv")}};
    for (const auto& arguments : commands) {
        const Output output = run(arguments, closed);
        EXPECT_EQ(output.exitCode, 2) << arguments[0];
        EXPECT_THAT(output.err, HasSubstr("standard output c")) << arguments[0];
    }
    EXPECT_THAT(contentOf(path("solution.csv")), testing::StartsWith("kind,index"));
}

TEST_F(CommandConvertTest, ShowListsTheModelOrAPartOfIt) {
    const std::string odd = oddModel();
    const Output whole = run({"show", odd});
    EXPECT_EQ(whole.exitCode, 0) << whole.err;
    EXPECT_THAT(whole.out, AllOf(HasSubstr("between:  2 <= a long name <= 5\n"), Not(HasSubstr("Hidden"))));
    EXPECT_THAT(run({"show", odd, "--rows", "NEED", "--cols", "2:"}).out,
                AllOf(HasSubstr("Rows [2..2]  Cols [2..2]"), HasSubstr("NEED:  [1..1]... X >= 1\n")));
    const std::pair<const char*, const char*> wrong[] = {
        {"2:1", "Row startindex is higher than endindex."}, {"3", "greater than"}, {":NEEDS", "could not be found"}};
    for (const auto& [rows, words] : wrong) {
        const Output output = run({"show", odd, "--rows", rows});
        EXPECT_EQ(output.exitCode, 1) << rows;
        EXPECT_THAT(output.err, AllOf(HasSubstr(words), HasSubstr("FIRST:LAST")));
        EXPECT_THAT(output.out, IsEmpty());
    }
}

TEST_F(CommandConvertTest, ProfilesAreWrittenAndActInTheOrderGiven) {
    const std::string model = file("model.mps", smallModelWith(" UP BOUND     Y                    3\n"));
    const std::string maximum = file("maximum.txt", "xminmx = max\n");
    const std::string profile = path("all.txt");
    ASSERT_EQ(run({"parameters", "--write", profile}).exitCode, 0);
    EXPECT_THAT(contentOf(profile), HasSubstr("\nxminmx = 'min'\n"));
    EXPECT_THAT(run({"parameters", "--write", "-"}).out, HasSubstr("xminmx = 'min'"));
    const auto objective = [&](std::vector<std::string> options) {
        options.insert(options.begin(), {"solve", model, "--json"});
        return Json::parse(run(options).out)["objective"].get<double>();
    };
    EXPECT_EQ(objective({"--profile", maximum}), 9.0);
    EXPECT_EQ(objective({"--profile", maximum, "--set", "xminmx=min"}), 5.0);
    EXPECT_EQ(objective({"--set", "xminmx=min", "--profile", maximum}), 9.0);
    EXPECT_EQ(objective({"--profile", maximum, "--set", "xmxmin=5", "--profile", profile}), 5.0);

    const Output refused = run({"solve", model, "--profile", file("bad.txt", "xmiter = many\n")});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_THAT(refused.err, HasSubstr("Type mismatch for parameter 'xmiter'! Error in line: xmiter = many"));
    const Output missing = run({"solve", model, "--profile", path("none.txt")});
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_THAT(missing.err, HasSubstr("none.txt can't be read: No such file or directory."));
}

}  // namespace
}  // namespace tarq::command
