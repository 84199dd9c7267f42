// The reader of Lindo files: what it makes of a text, and what it says to a wrong one.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/modelfiles/writtenfile.h"

namespace tarq {
namespace {

using enum TARQColType;

constexpr double infinity = 1e25;

Outcome readLindoText(MpsModel& model, std::string text) {
    return model.read(std::move(text), TARQFileFormatType::Lindo);
}

TEST(LindoReader, SumsRelationsAndStatementsFillTheModel) {
    MpsModel good;
    ASSERT_THAT(readLindoText(good,
                              "! a comment\nmaximize 3x1+2 Y - Z ! profit\n + x1\n\nsubject to\n"
                              "row1) 2 X1 + Y - .5Z + X1 <= 10\n"
                              "      Y - Z + W - W >= -4.5 cost) Z = + 2 X1 < 7\nend\n"
                              "GIN 2 INT Z\nSLB X1 - 5 SUB X1 8 FREE W TITLE"),
                succeeds());
    EXPECT_EQ(good.parameters, (std::vector<std::pair<std::string, std::string>>{{"xminmx", "max"}}));
    EXPECT_EQ(good.modelStore.columnCount(), 4);
    EXPECT_EQ(good.column("X1").cost, 4);
    EXPECT_EQ(good.column("Z").cost, -1);
    EXPECT_EQ(good.nonzero("X1", "ROW1"), 3);
    EXPECT_EQ(good.nonzero("Z", "ROW1"), -0.5);
    EXPECT_EQ(std::pair(good.row("ROW1").lowerBound, good.row("ROW1").upperBound), std::pair(-infinity, 10.0));
    EXPECT_EQ(good.modelStore.row(1).name, "");
    EXPECT_EQ(std::pair(good.modelStore.row(1).lowerBound, good.modelStore.row(1).upperBound),
              std::pair(-4.5, infinity));
    EXPECT_EQ(good.modelStore.nonzeros().size(), 7);  // W went away
    EXPECT_EQ(std::pair(good.row("COST").lowerBound, good.row("COST").upperBound), std::pair(2.0, 2.0));
    EXPECT_EQ(good.column("X1").type, Integer);
    EXPECT_EQ(std::pair(good.column("X1").lowerBound, good.column("X1").upperBound), std::pair(-5.0, 8.0));
    EXPECT_EQ(good.column("Y").type, Integer);
    EXPECT_EQ(good.column("Z").type, Binary);
    EXPECT_EQ(good.column("W").lowerBound, -infinity);
    EXPECT_EQ(good.name, "TITLE\n");
}

TEST(LindoReader, WrongTextsFailWithTheirMessageAndLine) {
    const std::string st = "MIN X ST\n";
    const std::string end = st + "X > 1\nEND\n";
    struct {
        std::string text;
        const char* message;
        int line;
    } const cases[] = {
        {"", "Unexpected end of file.", 2},
        {"* MIN X", "Optimization direction (MIN/MAX) expected.", 1},
        {"MIN", "Start of objective function expected.", 2},
        {"MIN X +", "Incomplete objective function.", 2},
        {"MIN X Y", "+ or - expected.", 1},
        {"MIN 2", "Expecting variable name.", 2},
        {"MIN ABCDEFGHI", "Variable names may not be longer than 8 characters.", 1},
        {"MIN 2 3 X", "Variable names may not start with a number.", 1},
        {"MIN 2 + X", "No constans allowed in objective function.", 1},
        {"MIN X + <= 3", "Illegal character in variable name '<='.", 1},
        {"MIN X +\nST X>1", "Token 'ST' appears after incomplete objective function. Don't use ST as a variable name.",
         2},
        {"MIN 3 Such That ", "'SUBJECT TO' appears after incomplete objective function.", 1},
        {"MIN X", "Unexpected end of file, missing constraints.", 2},
        {"MIN ST", "Unexpected end of file, 'END' missing.", 2},
        {st + "ABCDEFGHI > 1", "Name of restriction or variable is longer than 8 characters.", 2},
        {st + "R) X > 1 R) X > 2", "Duplicate row name.", 2},
        {st + "R)", "Start of restriction expected.", 3},
        {st + "X -", "Incomplete restriction.", 3},
        {st + "X\n\nY > 1", "+ or - expected.", 4},
        {st + "R) > 1", "Illegal character in variable name '>'.", 2},
        {st + "X + 4 5 > 1", "Variable name may not start with a number.", 2},
        {st + "X >", "RHS of restriction is missing.", 3},
        {st + "X > -", "Incomplete RHS.", 3},
        {st + "X > 1.2.3", "RHS is no valid number.", 2},
        {end + "qcp", "TARQ does not support quadratic models.", 4},
        {end + "TITLE a b", "Unknown Lindo Statement.", 4},
        {end + "GIN", "Missing variable name after GIN.", 5},
        {end + "SUB x", "Missing value name after SUB.", 5},
        {end + "SLB x -", "Missing value name after SLB X.", 5},
        {end + "SLB x y", "Bad numeric value for SLB.", 4},
        {end + "int y", "Variable name 'Y' does not exist.", 4},
        {end + "SLB 1 2", "Variable name '1' does not exist.", 4},
    };
    for (const auto& one : cases) {
        MpsModel model;
        EXPECT_THAT(readLindoText(model, one.text),
                    failsWith(status::syntaxError, std::string("Error parsing Lindo file: ") + one.message + " Line " +
                                                       std::to_string(one.line)))
            << one.text;
    }
}

TEST(LindoReader, TheKeywordNeedsABlankOrALineFeedBehindIt) {
    for (const char* text : {"MAX ST X<1 END", "MAX STEEL ST X<1 END", "MAX X S.T. X<1 END", "MAX X such that\nX<1 END",
                             "MAX ST\nX<1 END"}) {
        MpsModel model;
        EXPECT_THAT(readLindoText(model, text), succeeds()) << text;
    }
    MpsModel model;
    EXPECT_FALSE(readLindoText(model, "MAX X ST! no keyword\nX<1 END").isOk());
}

TEST(LindoReader, StatementsActInTheirOrderAlsoOnTheFirstColumns) {
    const std::string head = "MIN A + B + C + D ST A>0 END ";
    struct {
        const char* statements;
        std::string types;  // of the four columns
        double lower[4];
    } const cases[] = {
        {"GIN 2", "iicc", {0, 0, 0, 0}},
        {"GIN 99 INT 1", "biii", {0, 0, 0, 0}},
        {"GIN 99999999999", "iiii", {0, 0, 0, 0}},
        {"INT 3 GIN 2", "iibc", {0, 0, 0, 0}},
        {"GIN 0 INT 0", "cccc", {0, 0, 0, 0}},
        {"SLB B 5 FREE 3 SLB C 7", "cccc", {-infinity, -infinity, 7, 0}},
        {"FREE 3 SLB B 5 INT 1 FREE 1 GIN D", "bcci", {-infinity, 5, -infinity, 0}},
        {"INT 4 SLB A 3 INT 2 GIN 1", "ibbb", {0, 0, 0, 0}},
    };
    for (const auto& one : cases) {
        MpsModel model;
        ASSERT_THAT(readLindoText(model, head + one.statements), succeeds());
        for (std::int32_t i = 0; i < 4; ++i) {
            const ColumnRecord& column = model.modelStore.column(i);
            EXPECT_EQ("cib"[static_cast<std::size_t>(column.type)], one.types[static_cast<std::size_t>(i)])
                << one.statements << i;
            EXPECT_EQ(column.lowerBound, one.lower[i]) << one.statements << i;
        }
    }
}

TEST(LindoReader, FailureLeavesWhatStandsBeforeIt) {
    MpsModel model;
    EXPECT_FALSE(readLindoText(model, "MAX 2 X ST\nR) 3 X + 4 Y < 5\nS) Y + 2 X ?").isOk());
    EXPECT_EQ(model.clearings, 1);
    EXPECT_EQ(model.nonzero("Y", "R"), 4);
    EXPECT_EQ(model.nonzero("X", "S"), 2);
    EXPECT_EQ(model.row("S").upperBound, 0);
}

// A reader whose cost grows faster than its text doesn't come to an end here.
TEST(LindoReader, HostileTextsCostNoMoreThanTheirLength) {
    constexpr std::size_t length = 20'000'000;
    std::string general = "MIN X";
    for (int i = 0; i < 200'000; ++i) general.append(" + V").append(std::to_string(i));
    general += " ST X > 0 END\n";
    while (general.size() < length) general += "GIN 200000 INT 199999 FREE X\n";
    std::string peeks = "MIN X ST\n";
    while (peeks.size() < length) peeks += "X\n\n>\n1\n";
    const struct {
        std::string text;
        const char* message;
    } cases[] = {
        {std::string(length, ' '), "Unexpected end of file."},
        {"MIN " + std::string(length, 'X'), "Variable names may not be longer than 8 characters."},
        {"MIN " + std::string(length, '-'), "No constans allowed in objective function."},
        {"MIN X ST X > " + std::string(length, '1'), "Unexpected end of file, 'END' missing."},
        {std::string(length, '\0'), "Optimization direction (MIN/MAX) expected."},
        {"MIN " + std::string(length, '\n'), "Start of objective function expected."},
        {peeks, "Unexpected end of file, 'END' missing."},
    };
    for (const auto& one : cases) {
        MpsModel model;
        const Outcome outcome = readLindoText(model, one.text);
        EXPECT_FALSE(outcome.isOk());
        EXPECT_THAT(outcome.description(), testing::HasSubstr(one.message));
    }
    MpsModel model;
    EXPECT_THAT(readLindoText(model, general), succeeds());
}

}  // namespace
}  // namespace tarq
