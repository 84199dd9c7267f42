#include "process.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <pty.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>

namespace tarq::command {

namespace {

using namespace std::chrono_literals;

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> environmentWith(const std::vector<std::string>& more) {
    std::vector<std::string> all = more;
    all.emplace_back("TERM=xterm");
    for (char** entry = environ; *entry != nullptr; ++entry) {
        if (std::string_view(*entry).substr(0, 5) != "TERM=") all.emplace_back(*entry);
    }
    return all;
}

}  // namespace

Process::Process(const std::vector<std::string>& arguments, const std::filesystem::path& folder,
                 const Surroundings& around)
    : folder_(folder) {
    std::ofstream(folder_ / "stdin", std::ios::binary) << around.input;
    std::vector<std::string> words{TARQ_PROGRAM};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> environment = environmentWith(around.environment);

    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    constexpr int writing = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_addopen(&files, 0, (folder_ / "stdin").c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, 1, (folder_ / "stdout").c_str(), writing, 0600);
    if (around.noOutput) posix_spawn_file_actions_addclose(&files, 1);
    int shownEnd = -1;
    if (around.terminal) {
        winsize size{};
        size.ws_col = 80;
        size.ws_row = 25;
        EXPECT_EQ(openpty(&terminal_, &shownEnd, nullptr, nullptr, &size), 0);
        fcntl(terminal_, F_SETFL, O_NONBLOCK);
        posix_spawn_file_actions_adddup2(&files, shownEnd, 2);
    } else {
        posix_spawn_file_actions_addopen(&files, 2, (folder_ / "stderr").c_str(), writing, 0600);
    }
    // A test runner may ignore the signals that the command is meant to hear.
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t heard;
    sigemptyset(&heard);
    sigaddset(&heard, SIGINT);
    sigaddset(&heard, SIGTERM);
    posix_spawnattr_setsigdefault(&attributes, &heard);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);

    EXPECT_EQ(posix_spawn(&child_, TARQ_PROGRAM, &files, &attributes, pointersTo(words).data(),
                          pointersTo(environment).data()),
              0);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    if (shownEnd >= 0) close(shownEnd);
}

Process::~Process() {
    if (terminal_ >= 0) close(terminal_);
}

void Process::send(int signal) const { kill(child_, signal); }

void Process::readTerminal() {
    std::string part(4096, '\0');
    for (;;) {
        const ssize_t count = read(terminal_, part.data(), part.size());
        if (count <= 0) return;
        shown_.append(part, 0, static_cast<std::size_t>(count));
    }
}

Output Process::wait() {
    int status = 0;
    const auto end = std::chrono::steady_clock::now() + 60s;
    while (waitpid(child_, &status, WNOHANG) == 0) {
        if (terminal_ >= 0) readTerminal();
        if (std::chrono::steady_clock::now() > end) {
            ADD_FAILURE() << "the command doesn't end";
            kill(child_, SIGKILL);
            waitpid(child_, &status, 0);
            break;
        }
        std::this_thread::sleep_for(2ms);
    }
    if (terminal_ >= 0) readTerminal();
    Output output;
    output.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    output.out = contentOf((folder_ / "stdout").string());
    output.err = terminal_ >= 0 ? shown_ : contentOf((folder_ / "stderr").string());
    return output;
}

CommandTest::CommandTest() {
    std::string name = (std::filesystem::temp_directory_path() / "tarq-command-XXXXXX").string();
    folder_ = mkdtemp(name.data());
}

CommandTest::~CommandTest() { std::filesystem::remove_all(folder_); }

Output CommandTest::run(const std::vector<std::string>& arguments, const Surroundings& around) const {
    return Process(arguments, folder_, around).wait();
}

Output CommandTest::expectRun(const std::vector<std::string>& arguments, int exitCode, std::string_view out,
                              std::string_view err, const Surroundings& around) const {
    Output output = run(arguments, around);
    SCOPED_TRACE(testing::PrintToString(arguments));
    EXPECT_EQ(output.exitCode, exitCode) << output.err;
    const auto check = [](const std::string& printed, std::string_view words) {
        if (words.empty()) {
            EXPECT_EQ(printed, "");
        } else {
            EXPECT_THAT(printed, testing::HasSubstr(std::string(words)));
        }
    };
    check(output.out, out);
    check(output.err, err);
    return output;
}

nlohmann::ordered_json CommandTest::json(std::vector<std::string> arguments, int exitCode) const {
    arguments.emplace_back("--json");
    const Output output = run(arguments);
    EXPECT_EQ(output.exitCode, exitCode) << testing::PrintToString(arguments) << output.err;
    auto document = nlohmann::ordered_json::parse(output.out, nullptr, false);
    EXPECT_FALSE(document.is_discarded()) << output.out;
    return document;
}

std::vector<std::string> CommandTest::playedSolve(const std::vector<std::string>& options) const {
    std::vector<std::string> arguments{"solve", file("model.mps", smallModel), "--engine", PLAYED_ENGINE};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return arguments;
}

std::string CommandTest::file(const std::string& name, std::string_view text) const {
    std::ofstream(folder_ / name, std::ios::binary) << text;
    return path(name);
}

Surroundings played(const std::string& run, bool terminal) {
    return {.input = {}, .environment = {"PLAYED_RUN=" + run}, .terminal = terminal};
}

std::string contentOf(const std::string& path) {
    std::ifstream input(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(input), {}};
}

std::string example(const std::string& name) { return std::string(EXAMPLES "/") + name; }

std::string smallModelWith(std::string_view bounds) {
    std::string text(smallModel);
    return text.insert(text.find("ENDATA"), bounds);
}

std::string hardModel() {
    constexpr int rowCount = 6;
    constexpr int columnCount = 50;
    std::string rows;
    std::string columns = "    MARK0001  'MARKER'                 'INTORG'\n";
    std::string rhs;
    std::vector<int> sums(rowCount);
    unsigned seed = 12345;
    for (int column = 1; column <= columnCount; ++column) {
        for (int row = 0; row < rowCount; ++row) {
            seed = seed * 1103515245U + 12345U;
            const int weight = static_cast<int>(seed >> 16U) % 100;
            sums[static_cast<std::size_t>(row)] += weight;
            columns += fmt::format("    X{:<7}  R{:<7}  {:>12}\n", column, row, weight);
        }
    }
    columns += "    MARK0002  'MARKER'                 'INTEND'\n";
    // Half of each row's weights must be chosen; what is missing or too much costs.
    for (int row = 0; row < rowCount; ++row) {
        rows += fmt::format(" E  R{}\n", row);
        columns += fmt::format("    OVER{:<4}  COST                 1   R{:<7}            -1\n", row, row);
        columns += fmt::format("    LACK{:<4}  COST                 1   R{:<7}             1\n", row, row);
        rhs += fmt::format("    RHS       R{:<7}  {:>12}\n", row, sums[static_cast<std::size_t>(row)] / 2);
    }
    return fmt::format("NAME          HARD\nROWS\n N  COST\n{}COLUMNS\n{}RHS\n{}ENDATA\n", rows, columns, rhs);
}

}  // namespace tarq::command
