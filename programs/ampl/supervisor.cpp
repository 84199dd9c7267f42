#include "supervisor.h"

#include <fmt/format.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "console.h"

namespace tarq::translator {

namespace {

constexpr std::array requests{SIGINT, SIGQUIT, SIGHUP, SIGTERM};

class TemporaryFolder {
public:
    TemporaryFolder() {
        const char* chosen = std::getenv("TMPDIR");
        path_ = fmt::format("{}/ampl-XXXXXX", chosen != nullptr && *chosen != '\0' ? chosen : "/tmp");
        isThere_ = mkdtemp(path_.data()) != nullptr;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code stays;
        if (isThere_) std::filesystem::remove_all(path_, stays);
    }

    [[nodiscard]] bool isThere() const { return isThere_; }
    [[nodiscard]] const std::string& path() const { return path_; }

private:
    std::string path_;
    bool isThere_ = false;
};

int complain(std::string_view words) {
    showLine(words);
    flushOutput();
    return EXIT_FAILURE;
}

/// Waits for the child's end and passes on what asks for it. `awaited` is blocked.
int waitFor(pid_t child, const sigset_t& awaited) {
    int status = 0;
    while (waitpid(child, &status, WNOHANG) == 0) {
        const int signal = sigwaitinfo(&awaited, nullptr);
        if (signal > 0 && signal != SIGCHLD) kill(child, signal);
    }
    if (WIFEXITED(status)) return WEXITSTATUS(status);
    const int signal = WTERMSIG(status);
    // Whoever asked for the end, or stopped reading, knows why.
    const bool isKnown = signal == SIGPIPE || std::find(requests.begin(), requests.end(), signal) != requests.end();
    if (isKnown) return 128 + signal;
    return complain(
        fmt::format("the translator broke down with signal {}; does the text nest too deeply, or is the "
                    "model too large for this machine?",
                    signal));
}

}  // namespace

int supervise(const std::function<int(const std::string& folder)>& work) {
    const TemporaryFolder folder;
    if (!folder.isThere()) return complain(fmt::format("{} can't be made: {}", folder.path(), std::strerror(errno)));

    // Whoever started this program may have had the signal of ended children ignored, which would hide their ends.
    signal(SIGCHLD, SIG_DFL);
    sigset_t awaited;
    sigset_t before;
    sigemptyset(&awaited);
    sigaddset(&awaited, SIGCHLD);
    for (const int request : requests) sigaddset(&awaited, request);
    sigprocmask(SIG_BLOCK, &awaited, &before);

    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child < 0) return complain(fmt::format("no process can be started: {}", std::strerror(errno)));
    if (child == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent) std::_Exit(EXIT_FAILURE);
        sigprocmask(SIG_SETMASK, &before, nullptr);
        const int code = work(folder.path());
        std::_Exit(flushOutput() ? code : EXIT_FAILURE);
    }
    signal(SIGPIPE, SIG_IGN);
    return waitFor(child, awaited);
}

}  // namespace tarq::translator
