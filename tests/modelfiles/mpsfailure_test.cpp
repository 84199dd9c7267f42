// MPS texts that break the rules: the message, its line, and hostile input that must end in one.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "tests/modelfiles/mpsmodel.h"

namespace tarq {
namespace {

const std::string rows = "NAME          T\nROWS\n N  COST\n E  R1\n";
const std::string columns = rows + "COLUMNS\n" + fields({"", "X", "R1", "1"});

struct FailureCase {
    std::string text;
    std::string messageAndLine;
};

const std::vector<FailureCase> failureCases{
    {"", "Unexpected end of file. Line 2"},
    {"* only\n\n   \n", "Unexpected end of file. Line 4"},
    {"NAME FOO\nROWS\n", "NAME indicator expected. Line 1"},
    {"NAME", "Unexpected end of file. Line 2"},
    {"NAME\nROW\n", "ROWS indicator expected. Line 2"},
    {columns + "ENDATA\nQSECTION", "QSECTION found. Quadratic models are not supported by TARQ. Line 1"},
    {"NAME\n qsection\nQSECTIO\n", "ROWS indicator expected. Line 2"},
    {rows + " E\n", "Empty row name in ROW section. Line 5"},
    {rows + " X  R2\n", "Bad row type in ROW section. Line 5"},
    {rows + "RHS\n", "COLUMNS indicator expected. Line 5"},
    {columns + "    M         'MARKER'                 'SOSORG'\n", "Special ordered sets are not supported. Line 7"},
    {columns + "    M         'MARKER'                 'OTHER'\n", "Unknown Marker found. Line 7"},
    {columns + "    M        'MARKER'                 'INTORG'\n", "Empty cost or nonzero value encountered. Line 7"},
    {columns + fields({"", "", "R1", "1"}), "Empty col name encountered. Line 7"},
    {columns + fields({"", "X", "", "1"}), "Empty row name encountered. Line 7"},
    {columns + fields({"", "X", "R1", "1", "", "1"}), "Empty row name encountered. Line 7"},
    {columns + fields({"", "X", "R1"}), "Empty cost or nonzero value encountered. Line 7"},
    {columns + fields({"", "X", "R1", "1", "R1"}), "Empty cost or nonzero value encountered. Line 7"},
    {columns + fields({"", "X", "R1", "1x"}), "Cost or nonzero value is not numeric. Line 7"},
    {columns + fields({"", "X", "R9", "1"}), "Row name does not exist. Line 7"},
    {columns, "RHS, RANGES, BOUNDS or ENDDATA indicator expected. Line 7"},
    {columns + "RHS\n" + fields({"", "B", "R1"}), "Empty RHS value encountered. Line 8"},
    {columns + "RHS\n" + fields({"", "B", "R1", "1,5"}), "RHS value is not numeric. Line 8"},
    {columns + "RHS\n" + fields({"", "B", "COST", "1"}), "Row name does not exist. Line 8"},
    {columns + "RHS\n", "RANGES, BOUNDS or ENDDATA indicator expected. Line 8"},
    {columns + "RANGES\nRHS\n", "BOUNDS or ENDDATA indicator expected. Line 8"},
    {columns + "RANGES\n" + fields({"", "B", "R1"}), "Empty RANGE value encountered. Line 8"},
    {columns + "RANGES\n" + fields({"", "B", "R1", "--1"}), "RANGE value is not numeric. Line 8"},
    {columns + "RANGES\n" + fields({"", "B", "R2", "1"}), "Row name does not exist. Line 8"},
    {columns + "RANGES\n", "BOUNDS or ENDDATA indicator expected. Line 8"},
    {columns + "BOUNDS\n" + fields({"UP", "B", "", "1"}), "Empty col name in BOUNDS section. Line 8"},
    {columns + "BOUNDS\n" + fields({"XX", "B", "Y", "1"}), "Col name does not exist. Line 8"},
    {columns + "BOUNDS\n" + fields({"XX", "B", "X", "1"}), "Bad type in BOUNDS section. Line 8"},
    {columns + "BOUNDS\n" + fields({"UP", "B", "X", "1e"}), "BOUND value is not numeric. Line 8"},
    {columns + "BOUNDS\nRHS\n", "ENDDATA indicator expected. Line 8"},
};

TEST(MpsFailure, EachBrokenRuleIsNamedWithItsLine) {
    for (const FailureCase& failure : failureCases) {
        MpsModel model;
        EXPECT_THAT(model.read(failure.text),
                    failsWith(status::syntaxError, "Error parsing MPS file: " + failure.messageAndLine))
            << failure.text;
        EXPECT_EQ(model.clearings, 1);
    }
}

const std::string sample = columns + "    M         'MARKER'                 'INTORG'\n" +
                           fields({"", "Y", "COST", "-2.5", "R1", "4"}) + "RHS\n" + fields({"", "B", "R1", "4"}) +
                           "RANGES\n" + fields({"", "R", "R1", "2"}) + "BOUNDS\n" + fields({"UP", "B", "Y", "4"}) +
                           "ENDATA\n";

TEST(MpsFailure, TextCutAnywhereBeforeItsEndFails) {
    const std::size_t complete = sample.find("ENDATA") + 6;
    for (std::size_t length = 0; length < complete; ++length) {
        MpsModel model;
        EXPECT_TRUE(model.read(sample.substr(0, length)).failed()) << length;
    }
    EXPECT_THAT(MpsModel().read(sample.substr(0, complete)), succeeds());
}

TEST(MpsFailure, AnyByteAnywhereEndsInAMessageOrAModel) {
    std::mt19937 random(7);
    for (std::size_t position = 0; position < sample.size(); ++position) {
        for (const char byte : {'\0', '\n', '\r', '\t', '\xFF', static_cast<char>(random())}) {
            std::string text = sample;
            text[position] = byte;
            MpsModel model;
            const Outcome outcome = model.read(text);
            EXPECT_TRUE(outcome.isOk() || outcome.status() == status::syntaxError) << position;
        }
    }
}

// A reader whose cost grows faster than its text doesn't come to an end here.
TEST(MpsFailure, HostileTextsCostNoMoreThanTheirLength) {
    constexpr std::size_t length = 20'000'000;
    std::string manyQs = "NAME\n";
    while (manyQs.size() < length) manyQs += "\nQSECTIOQ";
    std::string sameLines = rows;
    while (sameLines.size() < length) sameLines += " E  R1\n";
    // A thousand columns tell how many will come; the one behind them is met again and again.
    std::string sameColumn = columns;
    for (int column = 0; column < 200'000; ++column) sameColumn += fields({"", std::to_string(column), "R1", "1"});
    while (sameColumn.size() < length) sameColumn += fields({"", "999", "R1", "1"}) + fields({"", "0", "R1", "1"});
    for (std::string text :
         {std::string(length, ' '), std::string(length, '\n'), std::string(length, '\0'), std::string(length, '\r'),
          "NAME" + std::string(length, '9'), manyQs, sameLines, sameColumn}) {
        MpsModel model;
        EXPECT_TRUE(model.read(std::move(text)).failed());
    }
}

}  // namespace
}  // namespace tarq
