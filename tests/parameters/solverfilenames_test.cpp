#include "parameters/solverfilenames.h"

#include <gmock/gmock.h>

#include <string>

#include "tests/support/outcomematchers.h"

namespace tarq {
namespace {

struct SolverFileNames : testing::Test {
    ParameterTable table;

    const std::string& nameIn(std::string_view row) { return table.stringValue(parameterIndex(row)); }
};

TEST_F(SolverFileNames, BaseNameFillsSevenRowsAndNoOther) {
    EXPECT_THAT(generateFileNames(table, "c:\\temp\\run1"), succeeds());

    for (const std::string suffix : {"lps", "ips", "sta", "log", "msg", "mps", "pro"}) {
        EXPECT_EQ(nameIn("xfn" + suffix), "c:\\temp\\run1." + suffix);
    }
    for (const std::string_view row : {"xfnbai", "xfnbao", "xfnsav"}) EXPECT_EQ(nameIn(row), "") << row;
    EXPECT_THAT(generateFileNames(table, ""), succeeds());
    EXPECT_EQ(nameIn("xfnlps"), ".lps");
}

TEST_F(SolverFileNames, LongestNameIsCountedInBytes) {
    const std::string longest(250, 'n');
    EXPECT_THAT(generateFileNames(table, longest), succeeds());
    EXPECT_EQ(nameIn("xfnpro"), longest + ".pro");

    // The length is looked at before the characters.
    for (const std::string& name : {std::string(251, '*'), std::string(249, 'n') + "ä"}) {
        EXPECT_THAT(generateFileNames(table, name), failsWith(status::fileNameRejected, "Filename too long."));
    }
    EXPECT_EQ(nameIn("xfnlps"), longest + ".lps");
}

TEST_F(SolverFileNames, IllegalCharacterLeavesAllRows) {
    EXPECT_THAT(generateFileNames(table, "/tmp/it's a \"run\": 1"), succeeds());
    for (const char illegal : std::string_view("*?<>|")) {
        EXPECT_THAT(generateFileNames(table, std::string("a") + illegal + "b"),
                    failsWith(status::fileNameRejected, "Filename contains illegal characters."));
    }
    EXPECT_EQ(nameIn("xfnlps"), "/tmp/it's a \"run\": 1.lps");
}

}  // namespace
}  // namespace tarq
