#include "platform/childprocess.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <optional>
#include <utility>

namespace tarq {
namespace {

// How often is looked whether a program has ended whose streams somebody else still holds.
constexpr int lookInterval = 50;  // milliseconds

constexpr std::size_t pieceLength = 64 * 1024;

/// A descriptor that is closed at the end.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    void reset(int number) {
        if (number_ >= 0) ::close(number_);
        number_ = number;
    }
    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] int release() { return std::exchange(number_, -1); }
    /// Moves the descriptor above those of the standard streams, which a host may have closed.
    [[nodiscard]] bool liftAboveStreams() {
        if (number_ > STDERR_FILENO) return true;
        reset(::fcntl(number_, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
        return number_ >= 0;
    }

private:
    int number_;
};

/// The two ends of a pipe, or of a pair of sockets, that no other child gets.
struct Ends {
    Descriptor ours;
    Descriptor childs;

    [[nodiscard]] bool openOutput() {
        std::array<int, 2> pair{};
        return ::pipe2(pair.data(), O_CLOEXEC) == 0 && take(pair[0], pair[1]);
    }
    /// A socket can be written to without a signal when the child is gone.
    [[nodiscard]] bool openInput() {
        std::array<int, 2> pair{};
        return ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair.data()) == 0 && take(pair[0], pair[1]);
    }

private:
    [[nodiscard]] bool take(int first, int second) {
        ours.reset(first);
        childs.reset(second);
        return ours.liftAboveStreams() && childs.liftAboveStreams();
    }
};

class SpawnActions {
public:
    SpawnActions() { isMade_ = ::posix_spawn_file_actions_init(&actions_) == 0; }
    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;
    ~SpawnActions() {
        if (isMade_) ::posix_spawn_file_actions_destroy(&actions_);
    }
    /// The stream becomes a copy of `origin`, or nothing where that is negative.
    [[nodiscard]] bool connect(int stream, int origin) {
        if (!isMade_) return false;
        if (origin >= 0) return ::posix_spawn_file_actions_adddup2(&actions_, origin, stream) == 0;
        const int mode = stream == STDIN_FILENO ? O_RDONLY : O_WRONLY;
        return ::posix_spawn_file_actions_addopen(&actions_, stream, "/dev/null", mode, 0) == 0;
    }
    [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
    bool isMade_ = false;
};

/// No signal blocked, and those of programs as they are at a program's start; what a user's shell may have told to
/// ignore stays ignored.
class SpawnSignals {
public:
    SpawnSignals() {
        isMade_ = ::posix_spawnattr_init(&attributes_) == 0;
        if (!isMade_) return;
        sigset_t signals;
        sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&attributes_, &signals);
        sigfillset(&signals);
        for (const int kept : {SIGHUP, SIGINT, SIGQUIT, SIGTSTP, SIGTTIN, SIGTTOU, SIGKILL, SIGSTOP}) {
            sigdelset(&signals, kept);
        }
        ::posix_spawnattr_setsigdefault(&attributes_, &signals);
        ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    SpawnSignals(const SpawnSignals&) = delete;
    SpawnSignals& operator=(const SpawnSignals&) = delete;
    ~SpawnSignals() {
        if (isMade_) ::posix_spawnattr_destroy(&attributes_);
    }
    [[nodiscard]] const posix_spawnattr_t* get() const { return isMade_ ? &attributes_ : nullptr; }

private:
    posix_spawnattr_t attributes_{};
    bool isMade_ = false;
};

/// The end of an operation's patience.
class Deadline {
public:
    using Clock = std::chrono::steady_clock;
    explicit Deadline(ChildProcess::Patience patience) {
        // An unlimited one has no end that the clock can tell.
        if (patience != ChildProcess::unlimited) end_ = Clock::now() + patience;
    }
    /// Milliseconds to wait at once, for one who wants to look around every `longest` of them.
    [[nodiscard]] int share(int longest) const {
        if (!end_) return longest;
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(*end_ - Clock::now()).count();
        return static_cast<int>(std::clamp<std::int64_t>(left, 0, longest));
    }
    [[nodiscard]] bool isOver() const { return end_ && Clock::now() >= *end_; }

private:
    std::optional<Clock::time_point> end_;
};

bool holdsZero(const std::string& word) { return word.find('\0') != std::string::npos; }

}  // namespace

ChildProcess::ChildProcess(const std::string& program, const std::vector<std::string>& arguments, Input input,
                           Errors errors) {
    Ends output;
    Ends fed;
    if (!output.openOutput()) return;
    if (input == Input::Written && !fed.openInput()) return;
    start_ = Start::NotStarted;
    if (!launch(program, arguments, fed.childs.number(), output.childs.number(), errors)) return;
    start_ = Start::Done;
    input_ = fed.ours.release();
    output_ = output.ours.release();
}

ChildProcess::~ChildProcess() {
    if (input_ >= 0) ::close(input_);
    if (output_ >= 0) ::close(output_);
    if (start_ != Start::Done) return;
    if (!hasEnded()) ::kill(process_, SIGKILL);
    wait();
}

bool ChildProcess::launch(const std::string& program, const std::vector<std::string>& arguments, int childInput,
                          int childOutput, Errors errors) {
    // The system would take a word as ended at a zero byte.
    if (holdsZero(program) || std::ranges::any_of(arguments, holdsZero)) return false;
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);

    SpawnActions actions;
    const SpawnSignals signals;
    const bool connected = actions.connect(STDIN_FILENO, childInput) && actions.connect(STDOUT_FILENO, childOutput) &&
                           actions.connect(STDERR_FILENO, errors == Errors::WithOutput ? childOutput : -1);
    return connected &&
           ::posix_spawn(&process_, program.c_str(), actions.get(), signals.get(), pointers.data(), environ) == 0;
}

/// A child that somebody else has reaped has ended too.
bool ChildProcess::hasEnded() {
    if (ended_) return true;
    siginfo_t about{};
    if (::waitid(P_PID, static_cast<id_t>(process_), &about, WEXITED | WNOHANG | WNOWAIT) == 0) {
        ended_ = about.si_pid == process_;
    } else {
        ended_ = reaped_ = errno == ECHILD;
    }
    return ended_;
}

ChildProcess::Read ChildProcess::read(char* buffer, std::size_t length, std::size_t& count, Patience patience) {
    const Deadline deadline(patience);
    for (;;) {
        if (ended_) return readHeld(buffer, length, count);
        if (hasEnded()) {
            int held = 0;
            if (::ioctl(output_, FIONREAD, &held) != 0) return Read::Failed;
            held_ = static_cast<std::size_t>(held);
            continue;
        }
        pollfd readable{.fd = output_, .events = POLLIN, .revents = 0};
        const int ready = ::poll(&readable, 1, deadline.share(lookInterval));
        if (ready == 0 || (ready < 0 && errno == EINTR)) {
            if (deadline.isOver()) return Read::NotYet;
            continue;
        }
        if (ready < 0) return Read::Failed;
        const ssize_t got = ::read(output_, buffer, length);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return Read::Failed;
        count = static_cast<std::size_t>(got);
        return got > 0 ? Read::Bytes : Read::End;
    }
}

ChildProcess::Read ChildProcess::readHeld(char* buffer, std::size_t length, std::size_t& count) {
    if (held_ == 0) return Read::End;
    ssize_t got = 0;
    do got = ::read(output_, buffer, std::min(length, held_));
    while (got < 0 && errno == EINTR);
    if (got < 0) return Read::Failed;
    count = static_cast<std::size_t>(got);
    held_ -= count;
    return got > 0 ? Read::Bytes : Read::End;
}

bool ChildProcess::write(std::string_view bytes, Patience patience) {
    const Deadline deadline(patience);
    while (!bytes.empty()) {
        const ssize_t sent = ::send(input_, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent > 0) bytes.remove_prefix(static_cast<std::size_t>(sent));
        if (sent > 0 || (sent < 0 && errno == EINTR)) continue;
        if (sent == 0 || (errno != EAGAIN && errno != EWOULDBLOCK) || deadline.isOver()) return false;
        pollfd writable{.fd = input_, .events = POLLOUT, .revents = 0};
        if (::poll(&writable, 1, deadline.share(lookInterval)) < 0 && errno != EINTR) return false;
    }
    return true;
}

void ChildProcess::closeInput() {
    if (input_ >= 0) ::close(std::exchange(input_, -1));
}

void ChildProcess::wait() {
    if (reaped_) return;
    while (::waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
    }
    ended_ = reaped_ = true;
}

RunOutcome runProgram(const std::string& program, const std::vector<std::string>& arguments, std::size_t limit,
                      std::string& output) {
    ChildProcess child(program, arguments, ChildProcess::Input::None, ChildProcess::Errors::WithOutput);
    if (child.start() == ChildProcess::Start::NoPipe) return RunOutcome::NoPipe;
    if (child.start() == ChildProcess::Start::NotStarted) return RunOutcome::NotStarted;
    std::vector<char> piece(pieceLength);
    std::string kept;
    for (;;) {
        std::size_t count = 0;
        const ChildProcess::Read read = child.read(piece.data(), piece.size(), count);
        if (read == ChildProcess::Read::Failed) return RunOutcome::ReadFailed;
        if (read == ChildProcess::Read::End) break;
        kept.append(piece.data(), std::min(count, limit - kept.size()));
    }
    child.wait();
    output = std::move(kept);
    return RunOutcome::Done;
}

}  // namespace tarq
