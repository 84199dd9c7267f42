// Watching a run and stopping it.
#include <csignal>
#include <thread>

#include "process.h"
#include "run/progress.h"

namespace tarq::command {
namespace {

using namespace std::chrono_literals;
using Json = nlohmann::ordered_json;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr auto underWay = 700ms;  ///< after which a run has surely begun

class CommandInterruptTest : public CommandTest {
protected:
    /// A run of the played engine that gets a signal when it is under way.
    Output stopped(const std::string& run, int signal, const std::vector<std::string>& options = {},
                   bool terminal = false) const {
        Process process(playedSolve(options), folder_, played(run, terminal));
        std::this_thread::sleep_for(underWay);
        process.send(signal);
        return process.wait();
    }
};

TEST_F(CommandInterruptTest, InterruptedSearchReportsItsBestSolution) {
    Process process({"solve", file("hard.mps", hardModel()), "--json", "--solution", path("best.csv")}, folder_, {});
    std::this_thread::sleep_for(2s);
    process.send(SIGINT);
    const auto stopped = std::chrono::steady_clock::now();
    const Output output = process.wait();
    EXPECT_LT(std::chrono::steady_clock::now() - stopped, 20s);
    ASSERT_EQ(output.exitCode, 4) << output.err;
    const Json document = Json::parse(output.out);
    EXPECT_EQ(document["solutionStatus"]["name"], "IPSubOptimalSolution");
    EXPECT_EQ(document["solverStatus"]["name"], "IPxfrndsReached");
    EXPECT_GE(document["integerSolutions"].get<int>(), 1);
    EXPECT_THAT(contentOf(path("best.csv")), HasSubstr("column,1,X1,"));
}

TEST_F(CommandInterruptTest, StopBeforeAnySolutionSaysSo) {
    for (const int signal : {SIGINT, SIGTERM}) {
        const Output output = stopped("long", signal);
        EXPECT_EQ(output.exitCode, 4);
        EXPECT_EQ(output.err, "");
        EXPECT_THAT(output.out, AllOf(HasSubstr("stopped by the user, no optimal solution yet"),
                                      testing::ContainsRegex("Objective +none"), Not(HasSubstr("Reduced cost"))));
    }
}

TEST_F(CommandInterruptTest, OtherSignalIsNoStopAndLeavesAnOlderSolution) {
    const std::string table = file("solution.csv", "an older solution");
    for (const int signal : {SIGALRM, SIGKILL}) {
        EXPECT_EQ(stopped("long", signal, {"--solution", table}).exitCode, -signal);
        EXPECT_EQ(contentOf(table), "an older solution");
    }
}

TEST_F(CommandInterruptTest, SecondInterruptQuitsAtOnce) {
    Process process(playedSolve(), folder_, played("deaf"));
    std::this_thread::sleep_for(underWay);
    process.send(SIGINT);
    std::this_thread::sleep_for(200ms);
    process.send(SIGINT);
    const Output output = process.wait();
    EXPECT_EQ(output.exitCode, 130);
    EXPECT_EQ(output.out, "");
}

TEST_F(CommandInterruptTest, TerminalShowsProgressInOneLineThatIsWiped) {
    const Output output = stopped("long", SIGINT, {}, true);
    EXPECT_EQ(output.exitCode, 4);
    EXPECT_THAT(output.err,
                AllOf(testing::ContainsRegex("\r\033\\[Kiterations [0-9]+  objective 1.5  time 0\\.[0-9] s"),
                      Not(HasSubstr("\n")), testing::EndsWith("\r\033[K")));
    const auto model = createObject<ITARQModel>("TARQModel");
    EXPECT_EQ(progressText(*model, true, 4000, 44), "nodes 0  best -  gap -  time 1:06:40 h");
    EXPECT_EQ(progressText(*model, true, 4000, 10), "time 1:06:40 h");
}

}  // namespace
}  // namespace tarq::command
