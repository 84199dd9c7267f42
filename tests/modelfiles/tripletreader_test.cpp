// The reader of Triplet files: what it makes of a text, and what it says to a wrong one.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/modelfiles/writtenfile.h"

namespace tarq {
namespace {

using enum TARQColType;

Outcome readTripletText(MpsModel& model, std::string text) {
    return model.read(std::move(text), TARQFileFormatType::Triplet);
}

TEST(TripletReader, EachSectionFillsItsPartOfTheModel) {
    MpsModel model;
    ASSERT_THAT(readTripletText(model,
                                "! comment\n* another\n\n2 5 x y 1e30 ! sizes\r\n"
                                "0 1e31 1.5 0 a name\twith blanks \n"
                                "0 1 -2 7 B\n0 2 0 1 I\n0 1 0 0 \n-1e40 1 0 1 !no name\n"
                                "-5 -2 range\n-1e30 0 free\n"
                                "1 1 3\n2 2 0\n1 1 4\n2 5 -1e-3"),
                succeeds());
    EXPECT_EQ(model.modelStore.infinity(), 1e30);
    const ColumnRecord& first = model.column("a name with blanks");
    EXPECT_EQ(first.upperBound, 1e30);
    EXPECT_EQ(first.cost, 1.5);
    EXPECT_EQ(first.type, Continuous);
    EXPECT_EQ(model.column("B").type, Binary);
    EXPECT_EQ(model.column("I").type, Integer);
    EXPECT_EQ(model.modelStore.column(3).name, "");
    EXPECT_EQ(model.modelStore.column(4).name, "");
    EXPECT_EQ(model.modelStore.column(4).lowerBound, -1e30);
    EXPECT_EQ(model.row("range").lowerBound, 2);
    EXPECT_EQ(model.row("range").upperBound, 5);
    EXPECT_EQ(model.row("free").upperBound, 1e30);
    EXPECT_FALSE(std::signbit(model.row("free").lowerBound));
    EXPECT_EQ(model.modelStore.nonzeros().size(), 2);
    EXPECT_EQ(model.nonzero("a name with blanks", "range"), 4);
    EXPECT_TRUE(model.parameters.empty());
}

TEST(TripletReader, WrongTextsFailWithTheirMessageAndLine) {
    const std::string sizes = "1 1 0 0\n";
    const std::string column = sizes + "0 1 0 0 X\n";
    const std::string row = column + "-1 0 R\n";
    const std::string two = "2 2 0 0\n0 1 0 0 X\n";
    struct {
        std::string text;
        const char* message;
        int line;
    } const cases[] = {
        {"", "Incorrect number of values in Section 2.", 2},
        {"1 1 0", "Incorrect number of values in Section 2.", 1},
        {"0 1 0 0", "Bad number of rows in Section 2.", 1},
        {"1 -1 0 0", "Bad number of cols in Section 2.", 1},
        {"1 99999999999 0 0", "Number of cols found in section 3 does not fit value from section 2.", 2},
        {"1 1 0 0 inf", "Bad value for xinf in Section 2.", 1},
        {sizes + "a 1 0 0 X", "Can't read LB in Section 3.", 2},
        {sizes + "0 0x1 0 0 X", "Can't read UB in Section 3.", 2},
        {sizes + "0 1 " + std::string(65, '0') + " 0 X", "Can't read cost in Section 3.", 2},
        {sizes + "0 1 0 1.0 X", "Can't read type in Section 3.", 2},
        {sizes + "0 1 0 0 " + std::string(64, 'n'), "Can't read col name in Section 3.", 2},
        {sizes + "2 1 0 0 X", "LB > UB in Section 3.", 2},
        {two + "0 1 0 0 X\n", "Duplicate col name 'X'.", 3},
        {two, "Number of cols found in section 3 does not fit value from section 2.", 3},
        {column + "x", "Can't read LB in Section 4.", 3},
        {column + "0", "Can't read UB in Section 4.", 3},
        {column + "0 0 " + std::string(64, 'n'), "Can't read row name in Section 4.", 3},
        {column + "1 0 R", "LB > UB in Section 4.", 3},
        {"2 1 0 0\n0 1 0 0 X\n0 0 R\n0 0 R\n", "Duplicate row name 'R'.", 4},
        {column, "Number of rows found in Section 4 does not fit value from Section 2.", 3},
        {row + "1 1", "Incorrect number of values in Section 5.", 4},
        {row + "a 1 1", "Can't read row index in Section 5.", 4},
        {row + "1 a 1", "Can't read col index in Section 5.", 4},
        {row + "2 2 nan", "Can't read nz in Section 5.", 4},
        {row + "2 2 1", "Bad row index in Section 5.", 4},
        {row + "1 0 1", "Bad col index in Section 5.", 4},
    };
    for (const auto& one : cases) {
        MpsModel model;
        EXPECT_THAT(readTripletText(model, one.text),
                    failsWith(status::syntaxError, std::string("Error parsing Triplet file: ") + one.message +
                                                       " Line " + std::to_string(one.line)))
            << one.text;
    }
}

TEST(TripletReader, FailureLeavesWhatStandsBeforeIt) {
    MpsModel model;
    EXPECT_FALSE(readTripletText(model, "1 1 0 0 1e9\n0 1 0 0 X\n0 0 R\n1 1 5\n1 1 x\n").isOk());
    EXPECT_EQ(model.clearings, 1);
    EXPECT_EQ(model.modelStore.infinity(), 1e9);
    EXPECT_EQ(model.nonzero("X", "R"), 5);
}

TEST(TripletReader, ANameThatIsNotThereIsTakenFromTheNextLineWhenNoBlankStandsBehindTheNumber) {
    MpsModel model;
    ASSERT_THAT(readTripletText(model, "1 2 0 0\n0 1 0 0\n0 1 0 0 \n-1 0\n1 1 1\n"), succeeds());
    EXPECT_EQ(model.modelStore.column(0).name, "\n0 1");
    EXPECT_EQ(model.modelStore.column(1).name, "");
    EXPECT_EQ(model.modelStore.row(0).name, "\n1");
    MpsModel atEnd;
    ASSERT_THAT(readTripletText(atEnd, "1 1 0 0\n0 1 0 0 X\n-1 0"), succeeds());
    EXPECT_EQ(atEnd.modelStore.row(0).name, "\n");
}

// A reader whose cost grows faster than its text doesn't come to an end here.
TEST(TripletReader, HostileTextsCostNoMoreThanTheirLength) {
    constexpr std::size_t length = 20'000'000;
    const std::string head = "1 1 0 0\n0 1 0 0 X\n0 0 R\n";
    std::string same = head;
    while (same.size() < length) same += "1 1 1\n";
    const struct {
        std::string text;
        bool good;
    } cases[] = {
        {"2000000000 2000000000 0 0\n", false},  {std::string(length, ' '), false},
        {std::string(length, '1'), false},       {head + std::string(length, '\0'), false},
        {head + std::string(length, '!'), true}, {same, true},
    };
    for (const auto& one : cases) {
        MpsModel model;
        EXPECT_EQ(readTripletText(model, one.text).isOk(), one.good) << one.text.substr(0, 30);
    }
}

}  // namespace
}  // namespace tarq
