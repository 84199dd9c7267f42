// Tells why a file can't be read, before someone tries to.
#pragma once

#include <string>

namespace tarq {

enum class FileCheck {
    Readable,
    NoDirectory,   ///< a directory of the path is not there, or the path is empty
    NoPermission,  ///< the file or a directory of its path may not be read
    NoFile,        ///< the directory is there, the file isn't
    OtherFailure,  ///< also for a directory
};

/// Opens `path` for reading and closes it again. Doesn't wait, not even for a pipe without a writer.
[[nodiscard]] FileCheck checkReadable(const std::string& path);

}  // namespace tarq
