#include "platform/filecheck.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace tarq {
namespace {

bool isDirectory(const std::string& path) {
    struct stat about {};
    return ::stat(path.c_str(), &about) == 0 && S_ISDIR(about.st_mode);
}

/// The directory of a path that is a name in it; "." for a name alone, "/" for a name in the root.
std::string directoryOf(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

FileCheck checkDescriptor(int descriptor) {
    struct stat about {};
    const bool isFile = ::fstat(descriptor, &about) == 0 && !S_ISDIR(about.st_mode);
    ::close(descriptor);
    return isFile ? FileCheck::Readable : FileCheck::OtherFailure;
}

}  // namespace

FileCheck checkReadable(const std::string& path) {
    if (path.empty()) return FileCheck::NoDirectory;
    if (path.find('\0') != std::string::npos) return FileCheck::OtherFailure;
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor >= 0) return checkDescriptor(descriptor);
    switch (errno) {
        case ENOENT:
            return isDirectory(directoryOf(path)) ? FileCheck::NoFile : FileCheck::NoDirectory;
        case ENOTDIR:
            return FileCheck::NoDirectory;
        case EACCES:
        case EPERM:
            return FileCheck::NoPermission;
        default:
            return FileCheck::OtherFailure;
    }
}

}  // namespace tarq
