#include "standardinput.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <vector>

namespace tarq::command {

namespace {

bool writeAll(int file, const char* data, std::size_t size) {
    while (size > 0) {
        const ssize_t written = write(file, data, size);
        if (written < 0) return false;
        data += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

}  // namespace

StandardInputFile::StandardInputFile() {
    std::error_code noFolder;
    std::string name = (std::filesystem::temp_directory_path(noFolder) / "tarq-input-XXXXXX").string();
    file_ = mkstemp(name.data());
    if (file_ < 0) {
        failure_ = fmt::format("no temporary file can be made: {}", std::strerror(errno));
        return;
    }
    unlink(name.c_str());
    path_ = fmt::format("/dev/fd/{}", file_);
    copy();
}

StandardInputFile::~StandardInputFile() {
    if (file_ >= 0) close(file_);
}

void StandardInputFile::copy() {
    std::vector<char> buffer(std::size_t{1} << 20U);
    for (;;) {
        const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count == 0) return;
        if (count < 0 && errno == EINTR) continue;
        if (count < 0 || !writeAll(file_, buffer.data(), static_cast<std::size_t>(count))) {
            failure_ = std::strerror(errno);
            return;
        }
    }
}

}  // namespace tarq::command
