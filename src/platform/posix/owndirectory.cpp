#include "platform/owndirectory.h"

#include <dlfcn.h>

#include <system_error>

namespace tarq {
namespace {

namespace fs = std::filesystem;

fs::path findOwnDirectory() {
    Dl_info info{};
    std::error_code error;
    if (dladdr(reinterpret_cast<const void*>(&findOwnDirectory), &info) != 0 && info.dli_fname != nullptr) {
        const fs::path file = info.dli_fname;
        if (file.has_parent_path()) return fs::absolute(file, error).parent_path();
    }
    // A program that was found through PATH is known to the loader by its plain name only.
    return fs::read_symlink("/proc/self/exe", error).parent_path();
}

}  // namespace

const fs::path& ownDirectory() {
    static const fs::path directory = findOwnDirectory();
    return directory;
}

}  // namespace tarq
