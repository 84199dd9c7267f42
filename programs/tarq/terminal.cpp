#include "terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>

namespace tarq::command {

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

}  // namespace tarq::command
