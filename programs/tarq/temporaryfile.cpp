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
    std::string name;
    make(name, 0);
    if (file_ < 0) return;
    unlink(name.c_str());
    path_ = fmt::format("/dev/fd/{}", file_);
}

TemporaryFile::TemporaryFile(const std::string& extension) {
    std::string name = extension;
    make(name, extension.size());
    isNamed_ = file_ >= 0;
    path_.swap(name);
}

TemporaryFile::~TemporaryFile() {
    if (isNamed_) unlink(path_.c_str());
    if (file_ >= 0) close(file_);
}

/// Makes the file; `name` holds the extension and gets the whole name.
void TemporaryFile::make(std::string& name, std::size_t extensionLength) {
    std::error_code noFolder;
    name = (std::filesystem::temp_directory_path(noFolder) / ("tarq-XXXXXX" + name)).string();
    file_ = mkstemps(name.data(), static_cast<int>(extensionLength));
    if (file_ < 0) failure_ = fmt::format("no temporary file can be made: {}", std::strerror(errno));
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
