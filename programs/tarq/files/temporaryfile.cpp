#include "files/temporaryfile.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <vector>

#include "model/failure.h"

namespace tarq::command {

namespace {

constexpr std::size_t pieceLength = std::size_t{1} << 20U;

bool writeAll(int file, const char* data, std::size_t size) {
    while (size > 0) {
        const ssize_t written = write(file, data, size);
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        data += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

/// Bytes read, 0 at the end, below 0 on failure.
ssize_t readPiece(int file, std::vector<char>& piece) {
    ssize_t count = 0;
    do {
        count = read(file, piece.data(), piece.size());
    } while (count < 0 && errno == EINTR);
    return count;
}

[[noreturn]] void fail(StandardStream stream, std::string_view reason) {
    if (stream == StandardStream::Input) throw cannotRead("standard input", reason);
    throw cannotWrite("standard output", reason);
}

/// A new file, in the system's folder for such files, and its name.
int makeFile(StandardStream stream, const std::string& extension, std::string& name) {
    std::error_code noFolder;
    name = (std::filesystem::temp_directory_path(noFolder) / ("tarq-XXXXXX" + extension)).string();
    const int file = mkstemps(name.data(), static_cast<int>(extension.size()));
    if (file < 0) fail(stream, fmt::format("no temporary file can be made: {}", std::strerror(errno)));
    return file;
}

}  // namespace

TemporaryFile::TemporaryFile(StandardStream stream, const std::string& extension)
    : isNamed_(!extension.empty()), file_(makeFile(stream, extension, path_)) {
    if (isNamed_) return;
    unlink(path_.c_str());
    path_ = fmt::format("/dev/fd/{}", file_);
}

TemporaryFile::~TemporaryFile() {
    if (isNamed_) unlink(path_.c_str());
    close(file_);
}

void TemporaryFile::copyStandardInput() const {
    std::vector<char> piece(pieceLength);
    std::int64_t total = 0;
    while (const ssize_t count = readPiece(STDIN_FILENO, piece)) {
        total += count;
        if (total > INT32_MAX) fail(StandardStream::Input, "it has 2 gigabytes or more");
        if (count < 0 || !writeAll(file_, piece.data(), static_cast<std::size_t>(count))) {
            fail(StandardStream::Input, std::strerror(errno));
        }
    }
}

void TemporaryFile::copyToStandardOutput() const {
    std::vector<char> piece(pieceLength);
    lseek(file_, 0, SEEK_SET);
    while (const ssize_t count = readPiece(file_, piece)) {
        if (count < 0 || !writeAll(STDOUT_FILENO, piece.data(), static_cast<std::size_t>(count))) {
            fail(StandardStream::Output, std::strerror(errno));
        }
    }
}

}  // namespace tarq::command
