#include "platform/owndirectory.h"

#include <dlfcn.h>
#include <link.h>

#include <system_error>

namespace tarq {
namespace {

namespace fs = std::filesystem;

fs::path findOwnDirectory() {
    Dl_info info{};
    link_map* map = nullptr;
    const auto* const here = reinterpret_cast<const void*>(&findOwnDirectory);
    const bool isKnown = dladdr1(here, &info, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) != 0;
    std::error_code error;
    if (isKnown && map->l_name != nullptr && *map->l_name != '\0')
        return fs::absolute(map->l_name, error).parent_path();
    // The loader knows of the program itself only what it was called, which may be a link elsewhere or a name in PATH.
    return fs::read_symlink("/proc/self/exe", error).parent_path();
}

}  // namespace

const fs::path& ownDirectory() {
    static const fs::path directory = findOwnDirectory();
    return directory;
}

}  // namespace tarq
