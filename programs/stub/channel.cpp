#include "channel.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace tarq::stub {
namespace {

constexpr std::size_t pieceLength = 64 * 1024;

[[noreturn]] void giveUp() { _exit(EXIT_FAILURE); }

/// Standard output under another number, with nothing behind its own.
int takeOutputOver() {
    const int taken = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int nothing = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (taken < 0 || nothing < 0 || ::dup2(nothing, STDOUT_FILENO) < 0) giveUp();
    return taken;
}

void hear(void* start, std::size_t length) {
    auto* next = static_cast<char*>(start);
    while (length > 0) {
        const ssize_t got = ::read(STDIN_FILENO, next, length);
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) giveUp();
        next += got;
        length -= static_cast<std::size_t>(got);
    }
}

template <class Element>
std::vector<Element> hearList() {
    const std::int32_t count = hearInteger();
    if (count < 0) giveUp();
    std::vector<Element> values(static_cast<std::size_t>(count));
    hear(values.data(), values.size() * sizeof(Element));
    return values;
}

}  // namespace

Answer::Answer() : descriptor_(takeOutputOver()) { waiting_.reserve(2 * pieceLength); }

void Answer::bytes(const void* start, std::size_t length) {
    const auto* const first = static_cast<const char*>(start);
    waiting_.insert(waiting_.end(), first, first + length);
    if (waiting_.size() >= pieceLength) flush();
}

void Answer::text(std::string_view value) {
    integer(static_cast<std::int32_t>(value.size()));
    bytes(value.data(), value.size());
}

void Answer::flush() {
    const char* next = waiting_.data();
    std::size_t length = waiting_.size();
    while (length > 0) {
        const ssize_t sent = ::write(descriptor_, next, length);
        if (sent < 0 && errno == EINTR) continue;
        if (sent <= 0) giveUp();
        next += sent;
        length -= static_cast<std::size_t>(sent);
    }
    waiting_.clear();
}

std::int32_t hearInteger() {
    std::int32_t value = 0;
    hear(&value, sizeof value);
    return value;
}

std::string hearText() {
    const std::vector<char> bytes = hearList<char>();
    return {bytes.begin(), bytes.end()};
}

std::vector<double> hearReals() { return hearList<double>(); }

std::vector<int> hearIntegers() { return hearList<int>(); }

}  // namespace tarq::stub
