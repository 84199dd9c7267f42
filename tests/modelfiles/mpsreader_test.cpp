// Reading MPS texts: what ends up in the model.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>
#include <vector>

#include "tests/modelfiles/mpsmodel.h"

namespace tarq {
namespace {

using testing::ElementsAre;
using testing::Pair;

constexpr double inf = 1e25;

/// Rows COST (objective), E1, L1, G1 and the free N2; the columns section is open.
const std::string opening = "NAME          TINY MODEL\nROWS\n N  COST\n E  E1\n L  L1\n G  G1\n N  N2\nCOLUMNS\n";
const std::string oneColumn = opening + fields({"", "X", "COST", "1", "E1", "2"});

TEST(MpsReader, EachSectionFillsItsPartOfTheModel) {
    MpsModel model;
    const std::string text = "* made by hand\n\n" + opening +  //
                             fields({"", "X", "COST", "1.5", "E1", "2"}) + fields({"", "X", "N2", "-1"}) +
                             fields({"", "Y", "L1", "4e1", "G1", "1"}) + "RHS\n" +
                             fields({"", "B", "E1", "7", "L1", "8"}) + "RANGES\n" + fields({"", "R", "L1", "3"}) +
                             "BOUNDS\n" + fields({"UP", "BND", "X", "9"}) + "ENDATA\nanything behind it is not read";
    ASSERT_THAT(model.read(text), succeeds());
    EXPECT_EQ(model.name, "TINY MODEL");
    EXPECT_THAT(model.parameters, ElementsAre(Pair("xdata", "TINY MODEL"), Pair("xobj", "COST"), Pair("xrhs", "B"),
                                              Pair("XRANGE", "R"), Pair("XBOUND", "BND")));
    EXPECT_EQ(model.modelStore.rowCount(), 4) << "the objective is no row, the second free row is one";
    EXPECT_EQ(model.modelStore.columnCount(), 2);
    EXPECT_EQ(model.modelStore.nonzeros().size(), 4);
    EXPECT_EQ(model.column("X").cost, 1.5);
    EXPECT_EQ(model.column("X").upperBound, 9);
    EXPECT_EQ(model.nonzero("X", "E1"), 2);
    EXPECT_EQ(model.nonzero("X", "N2"), -1);
    EXPECT_EQ(model.nonzero("Y", "L1"), 40);
    EXPECT_EQ(model.row("E1").lowerBound, 7);
    EXPECT_EQ(model.row("L1").lowerBound, 5);
    EXPECT_EQ(model.row("L1").upperBound, 8);
    EXPECT_EQ(model.row("G1").upperBound, inf);
}

TEST(MpsReader, RowTypeIsToldByEitherColumnAndKeptInTheDual) {
    const std::vector<std::tuple<const char*, double, double, double>> cases{
        {"E ", 1, 0, 0},    {"EQ", 1, 0, 0},   {" e", 1, 0, 0},   {"L ", 2, -inf, 0}, {"le", 2, -inf, 0},
        {" L", 2, -inf, 0}, {"G ", 3, 0, inf}, {"GE", 3, 0, inf}, {" G", 3, 0, inf},  {" n", 4, -inf, inf}};
    for (const auto& [type, dual, lower, upper] : cases) {
        MpsModel model;
        ASSERT_THAT(model.read("NAME\nROWS\n N  COST\n" + fields({type, "R"}) + "COLUMNS\nENDATA\n"), succeeds())
            << type;
        EXPECT_EQ(model.row("R").dual, dual) << type;
        EXPECT_EQ(model.row("R").lowerBound, lower) << type;
        EXPECT_EQ(model.row("R").upperBound, upper) << type;
    }
}

TEST(MpsReader, NameMetAgainKeepsItsPlaceARowItsTypeAndNonzerosAreReplaced) {
    MpsModel twice;
    ASSERT_THAT(twice.read("NAME\nROWS\n N  C\n E  R\n L  R\n N  C\nCOLUMNS\nENDATA\n"), succeeds());
    EXPECT_EQ(twice.modelStore.rowCount(), 1);
    EXPECT_EQ(twice.row("R").dual, 1);
    MpsModel model;
    ASSERT_THAT(
        model.read(opening + fields({"", "X", "E1", "1", "COST", "1"}) + fields({"", "Y", "E1", "5"}) +
                   fields({"", "X", "E1", "2", "COST", "3"}) + fields({"", "X", "E1", "0", "L1", "0"}) + "ENDATA\n"),
        succeeds());
    EXPECT_EQ(model.modelStore.columnCount(), 2);
    EXPECT_EQ(model.nonzero("X", "E1"), 2) << "a zero is dropped and erases nothing";
    EXPECT_EQ(model.column("X").cost, 3);
    EXPECT_EQ(model.modelStore.nonzeros().size(), 2);
}

TEST(MpsReader, MarkersMakeNewColumnsBinary) {
    MpsModel model;
    const std::string marker = "    MARK      'marker'                 ";
    ASSERT_THAT(
        model.read(opening + fields({"", "A", "E1", "1"}) + marker + "'IntOrg'\n" + fields({"", "A", "L1", "1"}) +
                   fields({"", "B", "E1", "1"}) + marker + "\n" + fields({"", "C", "E1", "1"}) + marker + "'INTEND'\n" +
                   fields({"", "D", "E1", "1"}) + "ENDATA\n"),
        succeeds());
    EXPECT_EQ(model.column("A").type, TARQColType::Continuous);
    EXPECT_EQ(model.column("A").upperBound, inf);
    EXPECT_EQ(model.column("B").type, TARQColType::Binary);
    EXPECT_EQ(model.column("B").upperBound, 1);
    EXPECT_EQ(model.column("C").type, TARQColType::Binary) << "a marker without a keyword changes nothing";
    EXPECT_EQ(model.column("D").type, TARQColType::Continuous);
}

TEST(MpsReader, RightHandSidesAndRangesActByRowType) {
    struct Case {
        const char *row, *rightHandSide, *range;
        double lower, upper;
    };
    for (const Case& c : {Case{"E1", "7", nullptr, 7, 7}, Case{"L1", "7", nullptr, -inf, 7},
                          Case{"G1", "7", nullptr, 7, inf}, Case{"N2", "7", "2", -inf, inf},
                          Case{"E1", "-1e30", nullptr, -inf, -inf}, Case{"G1", "9e999", nullptr, inf, inf},
                          Case{"E1", "7", "-2", 5, 7}, Case{"E1", "7", "2", 7, 9}, Case{"E1", "7", "0", 7, 7},
                          Case{"L1", "7", "-2", 5, 7}, Case{"G1", "7", "-2", 7, 9}, Case{"G1", "7", "1e26", 7, inf}}) {
        MpsModel model;
        const std::string range = c.range == nullptr ? "" : "RANGES\n" + fields({"", "", c.row, c.range});
        ASSERT_THAT(model.read(oneColumn + "RHS\n" + fields({"", "A", c.row, "3"}) +
                               fields({"", "B", c.row, c.rightHandSide}) + range + "ENDATA\n"),
                    succeeds());
        EXPECT_EQ(model.row(c.row).lowerBound, c.lower) << c.row << ' ' << c.rightHandSide;
        EXPECT_EQ(model.row(c.row).upperBound, c.upper) << c.row << ' ' << c.rightHandSide;
    }
}

TEST(MpsReader, BoundsSetSidesAndType) {
    constexpr auto continuous = TARQColType::Continuous;
    constexpr auto integer = TARQColType::Integer;
    constexpr auto binary = TARQColType::Binary;
    struct Case {
        const char *type, *value;
        TARQColType before;
        double lower, upper;
        TARQColType after;
    };
    const std::vector<Case> cases{{"FR", "", binary, -inf, inf, binary},
                                  {"PL", "x", continuous, 0, inf, continuous},
                                  {"MI", "", continuous, -inf, 0, continuous},
                                  {"BV", "", continuous, 0, 1, binary},
                                  {"lo", "3", binary, 3, 1, integer},
                                  {"LO", "0", binary, 0, 1, binary},
                                  {"LO", "-1e30", continuous, -inf, inf, continuous},
                                  {"UP", "5", binary, 0, 5, integer},
                                  {"UP", "1", binary, 0, 1, binary},
                                  {"UP", "-2", continuous, 0, -2, continuous},
                                  {"LI", "-2.7", continuous, -2, inf, integer},
                                  {"LI", "0", continuous, 0, inf, continuous},
                                  {"UI", "1e30", binary, 0, 1e30, integer},
                                  {"UI", "1", binary, 0, 1, binary},
                                  {"FX", "1e30", continuous, inf, inf, continuous},
                                  {"FX", "1 2.5", binary, 12.5, 12.5, binary}};
    for (const Case& c : cases) {
        MpsModel model;
        const std::string marker = c.before == binary ? "    M         'MARKER'                 'INTORG'\n" : "";
        ASSERT_THAT(model.read(opening + marker + fields({"", "X", "E1", "1"}) + "BOUNDS\n" +
                               fields({c.type, "", "X", c.value}) + "ENDATA\n"),
                    succeeds())
            << c.type;
        EXPECT_EQ(model.column("X").lowerBound, c.lower) << c.type << ' ' << c.value;
        EXPECT_EQ(model.column("X").upperBound, c.upper) << c.type << ' ' << c.value;
        EXPECT_EQ(model.column("X").type, c.after) << c.type << ' ' << c.value;
    }
}

TEST(MpsReader, MattersOfDialectAreCountedUnlessTheFileSettlesThem) {
    const std::string marker = "    M         'MARKER'                 'INTORG'\n";
    const std::string text =
        opening + fields({"", "X", "E1", "1"}) + marker + fields({"", "B", "E1", "1"}) + "BOUNDS\n";
    struct Case {
        std::vector<std::pair<const char*, const char*>> bounds;  ///< of X: type and value
        int mi, empty;
    };
    const std::vector<Case> cases{{{{"MI", ""}}, 1, 0},
                                  {{{"UP", "5"}, {"MI", ""}}, 1, 0},
                                  {{{"MI", ""}, {"UP", "0"}}, 0, 0},
                                  {{{"MI", ""}, {"FR", ""}}, 0, 0},
                                  {{{"UP", "-1"}}, 0, 1},
                                  {{{"UP", "-1"}, {"LO", "-9"}}, 0, 0},
                                  {{{"MI", ""}, {"UP", "-1"}}, 0, 0}};
    for (const Case& c : cases) {
        MpsModel model;
        std::string all = text + fields({c.mi != 0 ? "LO" : "UP", "", "B", "1"});
        for (const auto& [type, value] : c.bounds) all += fields({type, "", "X", value});
        ASSERT_THAT(model.read(all + "ENDATA\n"), succeeds());
        EXPECT_EQ(model.notes.upperBoundsSetByMi, c.mi) << all;
        EXPECT_EQ(model.notes.lowerBoundsAboveUpper, c.empty) << all;
        EXPECT_EQ(model.notes.integersUpToOne, c.mi) << "a lower bound alone leaves the upper one at 1";
    }
}

TEST(MpsReader, BoundWithoutANumberTakesTheLastOneReadInTheSection) {
    MpsModel model;
    ASSERT_THAT(model.read(oneColumn + fields({"", "Y", "E1", "1"}) + fields({"", "Z", "E1", "1"}) + "BOUNDS\n" +
                           fields({"UP", "", "X"}) + fields({"UP", "", "Y", "6"}) + fields({"LO", "", "Z", "   "}) +
                           "ENDATA\n"),
                succeeds());
    EXPECT_EQ(model.column("X").upperBound, 0);
    EXPECT_EQ(model.column("Z").lowerBound, 6);
}

TEST(MpsReader, TextIsTakenAsItsPlacesHoldIt) {
    MpsModel model;
    ASSERT_THAT(model.read("name\r\n rows\r\n N  COST\r\n E  A B\r\n E  LONGNAME9 ignored\r\nCOLUMNS\r\n"
                           "\t   X         A B       1 2 . 5 e 1 77 LONGNAME  2\r\nENDATA"),
                succeeds());
    EXPECT_EQ(model.nonzero("X", "A B"), 125) << "blanks in a number are dropped, digits behind its place are lost";
    EXPECT_EQ(model.nonzero("X", "LONGNAME"), 2);
}

TEST(MpsReader, FailureLeavesWhatWasReadBeforeIt) {
    MpsModel model;
    ASSERT_THAT(model.read(oneColumn + fields({"", "Y", "NOROW", "1"})),
                failsWith(status::syntaxError, "Error parsing MPS file: Row name does not exist. Line 10"));
    EXPECT_EQ(model.nonzero("X", "E1"), 2);
    EXPECT_GE(model.modelStore.findColumn("Y"), 0) << "the column is added before its row is looked up";
}

}  // namespace
}  // namespace tarq
