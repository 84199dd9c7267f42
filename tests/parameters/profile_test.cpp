// Profiles: what is assigned, what is refused and in which words, and what is written.
#include "parameters/profile.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "parameters/parameterrows.h"
#include "tests/support/outcomematchers.h"

namespace tarq {
namespace {

constexpr double infinity = 1e25;

std::string valueOf(const ParameterTable& table, std::string_view name) {
    return table.valueText(parameterIndex(name));
}

TEST(Profile, AssignmentsAreFoundAmongCommentsBlanksAndQuotes) {
    struct {
        const char* text;
        const char* name;
        const char* value;
    } const cases[] = {
        {"xmiter = 5", "xmiter", "5"},
        {"\n\t  XMITER\t=\t5\r\n\r\n", "xmiter", "5"},
        {"x m i t e r = 5", "xmiter", "5"},
        {"* xmiter = 9\nc xmiter = 8\n  CONFIG\nxmiter=5", "xmiter", "5"},
        {"xmiter = 5 ! limit", "xmiter", "5"},
        {"! xmiter = 9\nxmiter = 5", "xmiter", "5"},
        {"xscale=1 xmiter=5 xtolx=1e-5", "xmiter", "5"},
        {"xminmx='max' xmiter=5", "xmiter", "5"},
        {"xminmx=\"MAX'", "xminmx", "max"},
        {"xfnmps = 'C:\\my models\\a.mps'", "xfnmps", "C:\\my models\\a.mps"},
        {"xfnmps = 'wow! so' ! much", "xfnmps", "wow! so"},
        {"xbound = ab\nxbound = ''", "xbound", ""},
        {"xbound = \"' xobj=A", "xobj", "A"},
        {"xbound = 'a b", "", ""},
        {"xtolx=0,5", "", ""},
    };
    for (const auto& one : cases) {
        ParameterTable table;
        const Outcome outcome = readProfileText(one.text, table, infinity);
        if (*one.name == '\0') {
            EXPECT_FALSE(outcome.isOk()) << one.text;
            continue;
        }
        EXPECT_THAT(outcome, succeeds()) << one.text;
        EXPECT_EQ(valueOf(table, one.name), one.value) << one.text;
    }
    ParameterTable table;
    for (const char* nothing : {"", " \n\t", "* comment", "! comment\n\n"}) {
        EXPECT_THAT(readProfileText(nothing, table, infinity), succeeds());
    }
}

TEST(Profile, RefusedTextsAreNamedWithTheirLineAndWhatStandsBeforeStays) {
    struct {
        const char* text;
        Status status;
        const char* message;
    } const cases[] = {
        {"xscale=1\nxmiter\nxmxnod=4", status::profileFailure, "Syntax error in line 'xmiter' Near parameter: xmiter"},
        {"xscale=1\n = 5", status::profileFailure, "Syntax error in line '= 5'"},
        {"xscale=1\nxmiter =\nxobj=A", status::profileFailure,
         "Syntax error in line 'xmiter =' Near parameter: xmiter"},
        {"xscale=1\nxobj = 'a\nb'", status::profileFailure, "Syntax error in line 'xobj = 'a' Near parameter: xobj"},
        {"xscale=1\n\n  xzbest = 1 ! no\nxobj=A", status::unknownParameter,
         "Parametername 'xzbest' does not exist! Error in line: xzbest = 1 "},
        {"xscale=1\nxmiter = many\nxobj=A", status::wrongKind,
         "Type mismatch for parameter 'xmiter'! Error in line: xmiter = many"},
        {"xscale=1\nXMITER = -1", status::valueOutOfRange,
         "Value for parameter 'XMITER' is out of range! Error in line: XMITER = -1"},
        {"xscale=1\nxminmx='max' xmiter = x", status::wrongKind,
         "Type mismatch for parameter 'xmiter'! Error in line: xminmx='max'  xmiter = x"},
    };
    for (const auto& one : cases) {
        ParameterTable table;
        EXPECT_THAT(readProfileText(one.text, table, infinity), failsWith(one.status, one.message));
        EXPECT_EQ(valueOf(table, "xscale"), "1");
        EXPECT_EQ(valueOf(table, "xobj"), "");
    }
}

TEST(Profile, ATextThatIsTooLongIsShown) {
    ParameterTable table;
    const std::string value(1000, 'n');
    EXPECT_THAT(readProfileText("xobj = " + value, table, infinity),
                failsWith(status::textTooLong, "String is too long: " + value));
}

class ProfileFile : public testing::Test {
protected:
    ProfileFile() : folder_(std::filesystem::temp_directory_path() / ("tarq_profile_" + std::to_string(getpid()))) {
        std::filesystem::create_directories(folder_);
    }
    ~ProfileFile() override { std::filesystem::remove_all(folder_); }
    [[nodiscard]] std::string path(const std::string& name) const { return (folder_ / name).string(); }

    std::filesystem::path folder_;
};

TEST_F(ProfileFile, WhatIsWrittenReadsBackToTheSameValues) {
    ParameterTable written;
    for (const auto& [name, value] : {std::pair{"xfnlog", "a log.txt"}, {"xobj", "x!y"}, {"xminmx", "max"}}) {
        ASSERT_THAT(written.setString(parameterIndex(name), value), succeeds());
    }
    ASSERT_THAT(written.setLong(parameterIndex("xmiter"), 77), succeeds());
    ASSERT_THAT(written.setDouble(parameterIndex("xtolx"), 1.25e-5), succeeds());
    ASSERT_THAT(writeProfile(path("profile"), written), succeeds());
    std::stringstream text;
    text << std::ifstream(path("profile")).rdbuf();
    EXPECT_THAT(text.str(), testing::MatchesRegex("\\* TARQ profile written by TARQ Component at "
                                                  "..:..:.. on ..\\...\\.....\n(.|\n)*\nxtolx = 1.25e-05\n(.|\n)*"));
    EXPECT_THAT(text.str(), testing::HasSubstr("\nxfnlog = 'a log.txt'\n"));
    ParameterTable read;
    ASSERT_THAT(readProfile(path("profile"), read, infinity), succeeds());
    for (int row = 0; row < parameterCount; ++row) EXPECT_EQ(read.valueText(row), written.valueText(row));
}

TEST_F(ProfileFile, FilesThatCannotBeReadOrWrittenAreRefused) {
    ParameterTable table;
    const std::string words = "Error while opening, reading or writing to a file.";
    for (const std::string& name : {path("missing"), folder_.string(), std::string(255, 'n')}) {
        EXPECT_THAT(readProfile(name, table, infinity), failsWith(status::fileAccess, words));
    }
    EXPECT_THAT(readProfile(std::string(256, 'n'), table, infinity),
                failsWith(status::textTooLong, "Passed string is to long."));
    EXPECT_THAT(writeProfile(path("no/folder"), table), failsWith(status::fileAccess, words));
    EXPECT_THAT(writeProfile(std::string(300, 'n'), table), failsWith(status::fileAccess, words));
    if (std::filesystem::exists("/dev/full")) {
        EXPECT_THAT(writeProfile("/dev/full", table), failsWith(status::fileAccess, words));
    }
}

// A reader whose cost grows faster than its text doesn't come to an end here.
TEST(Profile, HostileTextsCostNoMoreThanTheirLength) {
    constexpr std::size_t length = 20'000'000;
    std::string comments;
    std::string assignments;
    while (comments.size() < length) comments += "* comment\n   ! more\n";
    while (assignments.size() < length) assignments += "xobj='a' ";
    const struct {
        std::string text;
        bool good;
    } cases[] = {
        {comments, true},
        {assignments, true},
        {std::string(length, '\''), false},
        {std::string(length, ' '), true},
        {"x" + std::string(length, '='), false},
        {std::string(length, '!'), true},
        {std::string(length, 'x'), false},
    };
    for (const auto& one : cases) {
        ParameterTable table;
        EXPECT_EQ(readProfileText(one.text, table, infinity).isOk(), one.good) << one.text.substr(0, 10);
    }
}

}  // namespace
}  // namespace tarq
