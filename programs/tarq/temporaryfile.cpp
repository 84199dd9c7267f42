#include "temporaryfile.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <vector>

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

}  // namespace

TemporaryFile::TemporaryFile() {
    std::error_code noFolder;
    std::string name = (std::filesystem::temp_directory_path(noFolder) / "tarq-XXXXXX").string();
    file_ = mkstemp(name.data());
    if (file_ < 0) {
        failure_ = fmt::format("no temporary file can be made: {}", std::strerror(errno));
        return;
    }
    unlink(name.c_str());
    path_ = fmt::format("/dev/fd/{}", file_);
}

TemporaryFile::~TemporaryFile() {
    if (file_ >= 0) close(file_);
}

void TemporaryFile::copyStandardInput() {
    if (!failure_.empty()) return;
    std::vector<char> piece(pieceLength);
    std::int64_t total = 0;
    while (const ssize_t count = readPiece(STDIN_FILENO, piece)) {
        total += count;
        if (total > INT32_MAX) {
            failure_ = "it has 2 gigabytes or more";
        } else if (count < 0 || !writeAll(file_, piece.data(), static_cast<std::size_t>(count))) {
            failure_ = std::strerror(errno);
        }
        if (!failure_.empty()) return;
    }
}

void TemporaryFile::copyToStandardOutput() {
    if (!failure_.empty()) return;
    std::vector<char> piece(pieceLength);
    lseek(file_, 0, SEEK_SET);
    while (const ssize_t count = readPiece(file_, piece)) {
        if (count < 0 || !writeAll(STDOUT_FILENO, piece.data(), static_cast<std::size_t>(count))) {
            failure_ = std::strerror(errno);
            return;
        }
    }
}

}  // namespace tarq::command
