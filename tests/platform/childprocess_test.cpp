#include "platform/childprocess.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/programsearch.h"

namespace tarq {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

std::string outputOf(const std::string& script, std::size_t limit = 1000) {
    std::string output;
    EXPECT_EQ(runProgram("/bin/sh", {"-c", script}, limit, output), RunOutcome::Done) << script;
    return output;
}

TEST(ChildProcessTest, BothStreamsAreKeptUpToTheLimitAndNothingIsWaitedForBeyondTheEnd) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(outputOf("echo out; echo err >&2"), "out\nerr\n");
    EXPECT_EQ(outputOf("head -c 30000000 /dev/zero | tr '\\0' x", 5), "xxxxx") << "what is thrown away doesn't block";
    EXPECT_EQ(outputOf("sleep 60 & echo left behind"), "left behind\n");
    EXPECT_EQ(outputOf("yes & echo $! >&2; kill -9 $$", 0), "") << "flooded by what is left behind";
    EXPECT_EQ(outputOf("exec >&- 2>&-; sleep 0.2; exit 3"), "");
    EXPECT_EQ(outputOf("read line; echo \"<$line>\""), "<>\n") << "the input is at its end";
    EXPECT_LT(std::chrono::steady_clock::now() - start, 30s);

    std::string output = "old";
    EXPECT_EQ(runProgram("/nowhere/program", {}, 9, output), RunOutcome::NotStarted);
    EXPECT_EQ(runProgram("/etc/passwd", {}, 9, output), RunOutcome::NotStarted);
    EXPECT_EQ(runProgram("/bin/echo", {std::string("a\0b", 3)}, 9, output), RunOutcome::NotStarted);
    EXPECT_EQ(output, "old");
}

TEST(ChildProcessTest, HostsOfAllKindsKeepWhatIsTheirs) {
    struct sigaction former {};
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
    signal(SIGCHLD, SIG_IGN);
    EXPECT_EQ(outputOf("sleep 0.1 & wait $!; echo waited $?"), "waited 0\n") << "the child can wait for its own";
    EXPECT_EQ(outputOf("(sleep 0.1; kill $$) & sleep 9"), "") << "the child hears what its host blocks";
    sigaction(SIGCHLD, nullptr, &former);
    EXPECT_EQ(former.sa_handler, SIG_IGN);
    signal(SIGCHLD, SIG_DFL);
    pthread_sigmask(SIG_UNBLOCK, &blocked, nullptr);

    const std::string alone = outputOf("ls /proc/self/fd");
    const ChildProcess other("/bin/cat", {}, ChildProcess::Input::Written, ChildProcess::Errors::Dropped);
    EXPECT_EQ(outputOf("ls /proc/self/fd"), alone) << "no child gets the pipes of another";
}

TEST(ChildProcessTest, HostWithoutStandardStreamsHasChildrenWithThem) {
    EXPECT_EXIT(
        {
            for (const int stream : {0, 1, 2}) close(stream);
            std::string output;
            const RunOutcome outcome = runProgram("/bin/sh", {"-c", "cat; echo out; echo err >&2"}, 99, output);
            _exit(outcome == RunOutcome::Done && output == "out\nerr\n" ? 7 : 8);
        },
        testing::ExitedWithCode(7), "");
}

TEST(ChildProcessTest, InputThatNobodyTakesRaisesNoSignal) {
    ChildProcess gone("/bin/true", {}, ChildProcess::Input::Written, ChildProcess::Errors::Dropped);
    gone.wait();
    EXPECT_FALSE(gone.write(std::string(1 << 20, 'x')));
}

TEST(ChildProcessTest, PatienceEndsWithAChildThatSaysAndTakesNothing) {
    ChildProcess silent("/bin/sleep", {"60"}, ChildProcess::Input::Written, ChildProcess::Errors::Dropped);
    char letter = 0;
    std::size_t count = 0;
    EXPECT_EQ(silent.read(&letter, 1, count, 0ms), ChildProcess::Read::NotYet);
    EXPECT_EQ(silent.read(&letter, 1, count, 70ms), ChildProcess::Read::NotYet);
    EXPECT_FALSE(silent.write(std::string(1 << 22, 'x'), 70ms));
    ChildProcess echo("/bin/cat", {}, ChildProcess::Input::Written, ChildProcess::Errors::Dropped);
    EXPECT_TRUE(echo.write("x", 60s));
    EXPECT_EQ(echo.read(&letter, 1, count, 60s), ChildProcess::Read::Bytes);
}

TEST(ProgramSearchTest, PlacesAreTakenInOrderAndOnlyFilesCount) {
    const fs::path folder = fs::path(testing::TempDir()) / "tarq-search";
    fs::remove_all(folder);
    const std::string one = folder / "one";
    const std::string two = folder / "two";
    fs::create_directories(one);
    fs::create_directories(two + "/tool.exe");
    for (const std::string& name : {one + "/tool.exe", two + "/tool"}) std::ofstream(name) << 1;
    const std::string path = std::getenv("PATH");
    setenv("PATH", (":" + two + "::" + one).c_str(), 1);
    EXPECT_EQ(findProgram("tool.EXE"), two + "/tool") << "the first folder wins";
    for (const std::string& name : {std::string("TOOL.Exe"), two + "/TooL.exe"}) {
        EXPECT_EQ(findProgram(name), two + "/tool") << "where there is no TOOL";
    }
    EXPECT_EQ(findProgram(one + "/tool.exe"), one + "/tool.exe");
    EXPECT_EQ(findProgram("platform_tests.exe"), PROBE_DIRECTORY "/platform_tests");
    EXPECT_EQ(findOwnProgram("tool"), "tool");
    unsetenv("PATH");
    EXPECT_EQ(findProgram("tool.exe"), "tool.exe");
    setenv("PATH", path.c_str(), 1);
    fs::remove_all(folder);
}

}  // namespace
}  // namespace tarq
