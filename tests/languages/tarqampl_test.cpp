#include <gtest/gtest.h>

#include "importfixture.h"
#include "platform/childprocess.h"
#include "platform/programsearch.h"

namespace tarq {
namespace {

/// The driver as AMPL calls it.
class DriverTest : public ImportTest {
protected:
    std::string solve(const std::string& nl, const std::string& arguments, const std::string& environment = "") {
        (void)file("s.nl", nl);
        std::filesystem::remove(path("s.sol"));
        const std::string command =
            environment + " '" + findOwnProgram("tarqampl") + "' " + path("s") + " " + arguments + "; echo exit $?";
        std::string said;
        EXPECT_EQ(runProgram("/bin/sh", {"-c", command}, 10'000, said), RunOutcome::Done);
        return said;
    }
    /// What stands behind the counts: duals, values, code, each in a line; without the basis.
    [[nodiscard]] std::string numbers(const std::string& counts) const {
        const std::string text = content("s.sol").substr(0, content("s.sol").find("suffix"));
        const std::size_t start = text.find(counts);
        return start == std::string::npos ? text : text.substr(start + counts.size());
    }
};

/// Minimize x + 2 y with x + y >= 4 and x at most 3; y is an integer where that is asked for.
std::string stub(const std::string& rowBounds, const std::string& yBounds, bool integer = false) {
    return std::string("g3 1 1 0\n 2 1 1 0 0\n 0 0\n 0 0\n 0 0 0\n 0 0 0 1\n 0 ") + (integer ? "1" : "0") +
           " 0 0 0\n 2 2\n 0 0\n 0 0 0 0 0\nC0\nn0\nO0 0\nn0\nr\n" + rowBounds + "\nb\n0 0 3\n" + yBounds +
           "\nk1\n1\nJ0 2\n0 1\n1 1\nG0 2\n0 1\n1 2\n";
}

TEST_F(DriverTest, SolutionsAreWrittenWithTrueDualsAndTheCode) {
    EXPECT_EQ(solve(stub("2 4", "2 0"), "-AMPL"), "exit 0\n") << "in silence";
    EXPECT_EQ(numbers("\n1\n1\n2\n2\n"), "2\n3\n1\nobjno 0 0\n");
    EXPECT_NE(content("s.sol").find("\nsstatus\n"), std::string::npos);
    EXPECT_EQ(solve(stub("2 4.5", "2 0", true), "-AMPL"), "exit 0\n");
    EXPECT_EQ(numbers("\n1\n1\n2\n2\n"), "1\n2.5\n2\nobjno 0 1\n") << "a unit more comes from x";
    for (const auto& [nl, code] : {std::pair(stub("2 4", "0 0 0.5"), 200), std::pair(stub("1 4", "1 0"), 300)}) {
        EXPECT_EQ(solve(nl, "-AMPL"), "exit 0\n");
        EXPECT_EQ(numbers("\n1\n0\n2\n0\n"), "objno 0 " + std::to_string(code) + "\n") << "no values";
    }
}

TEST_F(DriverTest, LaterOptionsWinAndWhatFailsBeforeTheSolveIsOneLine) {
    const std::string profile = "LocationOfTARQProfile='" + file("p.pro", "xlpmip = 1 xminmx = max") + "' ";
    const std::string integer = stub("2 4.5", "2 0", true);
    EXPECT_EQ(solve(integer, "-AMPL xlpmip='\"0\"'", profile + "tarqampl_options=\"xmiter=99 xlpmip='1'\""),
              "exit 0\n");
    EXPECT_EQ(numbers("\n1\n1\n2\n2\n"), "2\n3\n1.5\nobjno 0 0\n") << "the stub has a say over the direction";
    EXPECT_EQ(solve(integer, "-AMPL xmiter=some"),
              "tarqampl: xmiter=some: Variant argument is of wrong type.\nexit 1\n");
    EXPECT_EQ(solve(integer, "-AMPL", "LocationOfTARQDLL=none.dll"), "tarqampl: Could not find TARQ.DLL.\nexit 1\n");
    EXPECT_EQ(solve("g", "-AMPL"),
              "tarqampl: " + path("s") + ": AMPL I/O Error. This is no stub, or its header is damaged.\nexit 1\n");
    EXPECT_FALSE(std::filesystem::exists(path("s.sol")));
}

}  // namespace
}  // namespace tarq
