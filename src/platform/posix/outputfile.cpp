#include "platform/outputfile.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <utility>

namespace tarq {
namespace {

// As large as the cache takes well; larger ones only move the work to page faults.
constexpr std::size_t bufferLength = 4 * OutputFile::largestRoom;

/// Keeps the signal of a pipe without a reader from ending the process: the write's own failure tells enough.
class BrokenPipeSilence {
public:
    BrokenPipeSilence() {
        sigemptyset(&signal_);
        sigaddset(&signal_, SIGPIPE);
        sigset_t pending;
        wasPending_ = sigpending(&pending) == 0 && sigismember(&pending, SIGPIPE) == 1;
        pthread_sigmask(SIG_BLOCK, &signal_, &before_);
    }
    BrokenPipeSilence(const BrokenPipeSilence&) = delete;
    BrokenPipeSilence& operator=(const BrokenPipeSilence&) = delete;
    ~BrokenPipeSilence() {
        constexpr std::timespec atOnce{};
        if (!wasPending_) {
            while (sigtimedwait(&signal_, nullptr, &atOnce) < 0 && errno == EINTR) {
            }
        }
        pthread_sigmask(SIG_SETMASK, &before_, nullptr);
    }

private:
    sigset_t signal_;
    sigset_t before_;
    bool wasPending_ = false;
};

bool writeAll(int descriptor, const char* text, std::size_t length) {
    while (length > 0) {
        const ssize_t written = ::write(descriptor, text, length);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        text += written;
        length -= static_cast<std::size_t>(written);
    }
    return true;
}

}  // namespace

OutputFile::OutputFile(const std::string& fileName) {
    // The system would take the name as ended at a zero byte, and write another file.
    if (fileName.find('\0') != std::string::npos) return;
    buffer_ = std::make_unique_for_overwrite<char[]>(bufferLength);
    end_ = buffer_.get();
    limit_ = end_ + bufferLength;
    constexpr mode_t readAndWrite = 0666;
    descriptor_ = ::open(fileName.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, readAndWrite);
}

OutputFile::~OutputFile() {
    if (isOpen()) (void)close();
}

void OutputFile::write(std::string_view text) {
    while (!text.empty()) {
        const std::size_t piece = std::min(text.size(), largestRoom);
        std::memcpy(room(piece), text.data(), piece);
        end_ += piece;
        text.remove_prefix(piece);
    }
}

void OutputFile::flush() {
    const BrokenPipeSilence silence;
    if (!failed_) failed_ = !writeAll(descriptor_, buffer_.get(), static_cast<std::size_t>(end_ - buffer_.get()));
    end_ = buffer_.get();
}

bool OutputFile::close() {
    flush();
    // The system may tell only now that the last bytes had no room.
    const bool closed = ::close(std::exchange(descriptor_, -1)) == 0;
    return closed && !failed_;
}

}  // namespace tarq
