// ChildProcess: a program that works for the component, and the pipes to it.
//
// The program and each argument are single words, whatever they hold; no shell is in between. The child has no window
// and no standard input unless it is asked for, hears the signals that the host may have blocked or ignored, and gets
// no descriptor of ours beyond its three streams. The host's signal handlers stay as they are, and a host that ignores
// or reaps ended children by itself does no harm. One thread at a time for each object.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarq {

class ChildProcess {
public:
    enum class Start {
        Done,
        NoPipe,      ///< the system has no pipe to give
        NotStarted,  ///< the program isn't there or isn't one
    };
    enum class Input {
        None,     ///< at its end from the beginning
        Written,  ///< what `write` gives
    };
    enum class Errors {
        WithOutput,  ///< standard error goes where standard output goes
        Dropped,
    };
    enum class Read {
        Bytes,
        End,
        Failed,
        NotYet,  ///< nothing came in the time given
    };
    /// How long an operation may wait for the child.
    using Patience = std::chrono::milliseconds;
    static constexpr Patience unlimited = Patience::max();

    ChildProcess(const std::string& program, const std::vector<std::string>& arguments, Input input, Errors errors);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    /// Ends the program by force if it hasn't ended.
    ~ChildProcess();

    /// How the start went. Unless it is Done, no other operation may be called.
    [[nodiscard]] Start start() const { return start_; }

    /// Waits for output and sets `count` to the bytes read, at least 1, when there are any. The end is reached when
    /// nobody holds the stream any more, or when the program has ended and all is read that the pipe held then; what
    /// processes left behind write later is not waited for.
    [[nodiscard]] Read read(char* buffer, std::size_t length, std::size_t& count, Patience patience = unlimited);
    /// Writes to the child's input. False when the child no longer takes it, which raises no signal, or hasn't taken
    /// all in the time given.
    [[nodiscard]] bool write(std::string_view bytes, Patience patience = unlimited);
    /// Ends the child's input.
    void closeInput();
    /// Waits for the program's end, without a limit.
    void wait();

private:
    [[nodiscard]] bool launch(const std::string& program, const std::vector<std::string>& arguments, int childInput,
                              int childOutput, Errors errors);
    [[nodiscard]] bool hasEnded();
    [[nodiscard]] Read readHeld(char* buffer, std::size_t length, std::size_t& count);

    Start start_ = Start::NoPipe;
    int process_ = -1;
    bool reaped_ = false;
    int input_ = -1;
    int output_ = -1;
    bool ended_ = false;
    std::size_t held_ = 0;  ///< what the pipe still holds of a program that has ended
};

/// Runs a program to its end, without a limit on time, and keeps the first `limit` bytes of what it writes to either
/// output stream; the rest is thrown away while it runs.
enum class RunOutcome { Done, NoPipe, NotStarted, ReadFailed };
[[nodiscard]] RunOutcome runProgram(const std::string& program, const std::vector<std::string>& arguments,
                                    std::size_t limit, std::string& output);

}  // namespace tarq
