#include "printing/console.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>

namespace tarq::command {

void fillStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) >= 0) continue;
        // The lowest free descriptor is this one, as those below it are taken by now. It is opened for the other
        // direction: what was to be read or written is missed, and not taken for empty or done.
        if (open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) < 0) (void)open("/", O_RDONLY);
    }
}

void showMessage(std::string_view text) {
    const std::string line = fmt::format("tarq: {}\n", text);
    std::fwrite(line.data(), 1, line.size(), stderr);
}

ExitCode show(const Failure& failure) {
    showMessage(failure.text);
    return failure.code;
}

ExitCode writeResult(std::string_view text, ExitCode code) {
    const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (written && std::fflush(stdout) == 0) return code;
    showMessage(fmt::format("standard output could not be written: {}", std::strerror(errno)));
    return ExitCode::InputRejected;
}

bool isTerminal(std::FILE* stream) { return isatty(fileno(stream)) == 1; }

bool canRewriteLines(std::FILE* stream) {
    const char* terminal = std::getenv("TERM");
    return isTerminal(stream) && terminal != nullptr && std::string_view(terminal) != "dumb";
}

std::size_t terminalWidth(std::FILE* stream) {
    constexpr std::size_t usual = 80;
    constexpr std::size_t narrowest = 40;
    winsize size{};
    if (ioctl(fileno(stream), TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return usual;
    return size.ws_col < narrowest ? narrowest : size.ws_col;
}

std::size_t readingWidth() {
    constexpr std::size_t widest = 100;
    return std::min(terminalWidth(stdout), widest);
}

}  // namespace tarq::command
