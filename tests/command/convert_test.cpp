// Converting and showing models, and profiles of parameters.
#include "process.h"

namespace tarq::command {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class CommandConvertTest : public CommandTest {
protected:
    /// Two rows, one of them with two bounds, and names that only Triplet holds.
    [[nodiscard]] std::string oddModel() const {
        return file("odd.tri",
                    "2 2 4 40 1e+25\n0 10 1 0 a long name\n0 10 2 1 X\n-5 -2 between\n-1e+25 -1 NEED\n1 1 1\n2 2 1\n");
    }
};

TEST_F(CommandConvertTest, AModelKeepsItsOptimumThroughEveryFormat) {
    std::string last = file("model.mps", smallModel);
    for (const char* name : {"a.tri", "b.ltx", "c.mps", "d.TRI"}) {
        expectRun({"convert", last, path(name)}, 0, "");
        expectRun({"solve", path(name), "--quiet"}, 0, "Objective          5\n");
        last = path(name);
    }
    const Surroundings model{.input = std::string(smallModel), .environment = {}};
    const Surroundings triplet{.input = expectRun({"convert", "-", "-", "--from", "mps", "--to", "triplet"}, 0,
                                                  "\n1 2 2 6 1e+25 \n", "", model)
                                            .out,
                               .environment = {}};
    expectRun({"solve", "-", "--format", "triplet", "--quiet"}, 0, "Objective          5\n", "", triplet);
}

TEST_F(CommandConvertTest, AModelThatTheFormatCannotHoldIsRefusedWithAdviceAndLeavesNoFile) {
    const std::string odd = oddModel();
    const std::string before = file("old.ltx", "as it was");
    expectRun({"convert", odd, path("a.mps")}, 2, "",
              "Variable name 'a long name' is longer than 8 characters.\n--rename");
    expectRun({"convert", odd, path("a.ltx"), "--rename"}, 2, "",
              "Row number 1 is ranged. Split into two restrictions for Lindo compatibility.\n--to mps");
    expectRun({"convert", odd, before}, 2, "", "longer than 8");
    EXPECT_FALSE(std::filesystem::exists(path("a.mps")) || std::filesystem::exists(path("a.ltx")));
    EXPECT_EQ(contentOf(before), "as it was");
    expectRun({"convert", odd, path("a.mps"), "--rename"}, 0, "");
}

TEST_F(CommandConvertTest, OutputThatIsClosedIsMissedAndGetsIntoNoFile) {
    const std::string model = file("model.mps", smallModel);
    const Surroundings closed{.input = {}, .environment = {}, .noOutput = true};
    expectRun({"convert", model, "-", "--to", "mps"}, 2, "", "standard output c", closed);
    expectRun({"show", model}, 2, "", "standard output c", closed);
    expectRun({"solve", model, "--solution", path("solution.csv")}, 2, "", "standard output c", closed);
    EXPECT_THAT(contentOf(path("solution.csv")), testing::StartsWith("kind,index"));
}

TEST_F(CommandConvertTest, ShowListsTheModelOrAPartOfIt) {
    const std::string odd = oddModel();
    EXPECT_THAT(expectRun({"show", odd}, 0, "between:  2 <= a long name <= 5\n").out, Not(HasSubstr("Hidden")));
    EXPECT_THAT(run({"show", odd, "--rows", "NEED", "--cols", "2:"}).out,
                AllOf(HasSubstr("Rows [2..2]  Cols [2..2]"), HasSubstr("NEED:  [1..1]... X >= 1\n")));
    const std::pair<const char*, const char*> wrong[] = {
        {"2:1", "Row startindex is higher than endindex."}, {"3", "greater than"}, {":NEEDS", "could not be found"}};
    for (const auto& [rows, words] : wrong) {
        EXPECT_THAT(expectRun({"show", odd, "--rows", rows}, 1, "", words).err, HasSubstr("FIRST:LAST"));
    }
}

TEST_F(CommandConvertTest, ProfilesAreWrittenAndActInTheOrderGiven) {
    const std::string model = file("model.mps", smallModelWith(" UP BOUND     Y                    3\n"));
    const std::string maximum = file("maximum.txt", "xminmx = max\n");
    const std::string profile = path("all.txt");
    expectRun({"parameters", "--write", profile}, 0, "");
    EXPECT_THAT(contentOf(profile), HasSubstr("\nxminmx = 'min'\n"));
    expectRun({"parameters", "--write", "-"}, 0, "xminmx = 'min'");
    const auto objective = [&](std::vector<std::string> options) {
        options.insert(options.begin(), {"solve", model});
        return json(options)["objective"].get<double>();
    };
    EXPECT_EQ(objective({"--profile", maximum}), 9.0);
    EXPECT_EQ(objective({"--profile", maximum, "--set", "xminmx=min"}), 5.0);
    EXPECT_EQ(objective({"--set", "xminmx=min", "--profile", maximum}), 9.0);
    EXPECT_EQ(objective({"--profile", maximum, "--set", "xmxmin=5", "--profile", profile}), 5.0);
}

TEST_F(CommandConvertTest, TextsInALanguageAreConvertedAndShownAlsoFromStandardInput) {
    expectRun({"convert", example("irrigation.mod"), path("plan.tri"), "--data", example("irrigation.dat")}, 0, "");
    expectRun({"solve", path("plan.tri"), "--quiet", "--set", "xminmx=max"}, 0, "593734.9494\n");
    const std::string data = file("plan.dat", "param c := 3;\nend;\n");
    const Surroundings text{.input = "param c; var x >= 0, <= 7; maximize z: c * x; display c; end;\n",
                            .environment = {}};
    EXPECT_THAT(expectRun({"show", "-", "--format", "MathProg", "--data", data, "--listing"}, 0, "MAX   3 x\n",
                          "section from standard input...\n", text)
                    .err,
                HasSubstr("c = 3\n"));
}

}  // namespace
}  // namespace tarq::command
