#include "solver.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <vector>

#include "console.h"
#include "platform/programsearch.h"

namespace tarq::translator {

namespace {

constexpr int notStarted = 127;

// Where this program is installed, or was built, solvers are here.
constexpr const char* ownFolders[] = {"../../bin"};

bool isProgram(const std::filesystem::path& path) {
    std::error_code missing;
    return std::filesystem::is_regular_file(path, missing) && access(path.c_str(), X_OK) == 0;
}

/// A break from the keyboard reaches the solver too, which ends with the best that it has; this process waits for that.
class BreaksIgnored {
public:
    BreaksIgnored() {
        for (std::size_t one = 0; one < signals.size(); ++one) before_[one] = signal(signals[one], SIG_IGN);
    }
    BreaksIgnored(const BreaksIgnored&) = delete;
    BreaksIgnored& operator=(const BreaksIgnored&) = delete;
    ~BreaksIgnored() { restore(); }

    void restore() const {
        for (std::size_t one = 0; one < signals.size(); ++one) signal(signals[one], before_[one]);
    }

private:
    static constexpr std::array signals{SIGINT, SIGQUIT};
    std::array<void (*)(int), signals.size()> before_{};
};

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace

std::optional<std::string> findSolver(const std::string& name) {
    return findProgram(name, {.counts = &isProgram, .ownFolders = ownFolders});
}

std::string runSolver(const std::string& program, const std::string& stub, const Options& options) {
    flushOutput();
    std::vector<std::string> words{program, stub, "-AMPL"};
    std::vector<std::string> environment = options.environment();
    const std::vector<char*> wordPointers = pointersTo(words);
    const std::vector<char*> environmentPointers = pointersTo(environment);

    const BreaksIgnored ignored;
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child < 0) return fmt::format("can't be started: {}", std::strerror(errno));
    if (child == 0) {
        ignored.restore();
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (getppid() != parent) _exit(notStarted);
        const int nothing = open("/dev/null", O_RDONLY);
        if (nothing >= 0) dup2(nothing, STDIN_FILENO);
        execve(program.c_str(), wordPointers.data(), environmentPointers.data());
        _exit(notStarted);
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFSIGNALED(status)) return fmt::format("was ended by signal {}", WTERMSIG(status));
    const int code = WEXITSTATUS(status);
    if (code == notStarted) return "can't be started";
    return code == 0 ? "" : fmt::format("ended with exit code {}", code);
}

}  // namespace tarq::translator
