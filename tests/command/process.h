// Running the built command as a child process, and the models that it is given.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace tarq::command {

struct Output {
    int exitCode = -1;  ///< minus the signal's number for a process that a signal ended
    std::string out;
    std::string err;
};

struct Surroundings {
    std::string input;                     ///< what standard input holds
    std::vector<std::string> environment;  ///< NAME=VALUE, in addition to the test's own
    bool terminal = false;                 ///< standard error is a terminal of 80 characters
    bool noOutput = false;                 ///< standard output is closed
};

/// A running command. Its streams go to files in `folder`, or to a terminal.
class Process {
public:
    Process(const std::vector<std::string>& arguments, const std::filesystem::path& folder, const Surroundings& around);
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process();

    void send(int signal) const;
    /// Waits until the process has ended. One that takes more than a minute is ended by force and fails the test.
    Output wait();

private:
    void readTerminal();

    std::filesystem::path folder_;
    pid_t child_ = -1;
    int terminal_ = -1;
    std::string shown_;
};

/// A test with a folder of its own that is gone behind it.
class CommandTest : public testing::Test {
protected:
    CommandTest();
    ~CommandTest() override;

    Output run(const std::vector<std::string>& arguments, const Surroundings& around = {}) const;
    /// Runs the command and checks its exit code and that `out` and `err` are among what it prints; without either,
    /// that it prints nothing there.
    Output expectRun(const std::vector<std::string>& arguments, int exitCode, std::string_view out,
                     std::string_view err = {}, const Surroundings& around = {}) const;
    /// The document that the command prints; a failure of the test when it prints none.
    nlohmann::ordered_json json(std::vector<std::string> arguments, int exitCode = 0) const;
    /// The arguments that solve the small model by an engine that ends its run as played() says.
    std::vector<std::string> playedSolve(const std::vector<std::string>& options = {}) const;
    /// Writes a file in the test's folder and returns its path.
    std::string file(const std::string& name, std::string_view text) const;
    std::string path(const std::string& name) const { return (folder_ / name).string(); }

    std::filesystem::path folder_;
};

/// Has the engine of playedSolve() end its run so; see playedengine.cpp.
[[nodiscard]] Surroundings played(const std::string& run, bool terminal = false);

[[nodiscard]] std::string contentOf(const std::string& path);
[[nodiscard]] std::string example(const std::string& name);

/// Minimize x + 2 y with x + y >= 4, x <= 3: the optimum is 5 with x = 3 and y = 1.
inline constexpr std::string_view smallModel =
    "NAME          SMALL\n"
    "ROWS\n"
    " N  COST\n"
    " G  NEED\n"
    "COLUMNS\n"
    "    X         COST                 1   NEED                 1\n"
    "    Y         COST                 2   NEED                 1\n"
    "RHS\n"
    "    RHS       NEED                 4\n"
    "BOUNDS\n"
    " UP BOUND     X                    3\n"
    "ENDATA\n";

/// The same with more bounds, such as " UP BOUND     Y                    1\n".
[[nodiscard]] std::string smallModelWith(std::string_view bounds);

/// An integer model for which branch and bound takes very long, though solutions are easily found.
[[nodiscard]] std::string hardModel();

}  // namespace tarq::command
