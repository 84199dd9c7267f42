#include "platform/dynamiclibrary.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>

#include "platform/extension.h"
#include "platform/owndirectory.h"

namespace tarq {
namespace {

namespace fs = std::filesystem;

/// The name that a conventional one stands for here, libNAME.so for NAME.dll; empty for other names.
fs::path nativeName(const fs::path& path) {
    const std::string file = path.filename().string();
    if (!hasExtension(file, ".dll")) return {};
    return path.parent_path() / ("lib" + file.substr(0, file.size() - 4) + ".so");
}

void* open(const fs::path& path) { return path.empty() ? nullptr : dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL); }

/// Opens a file that is known to be there. The loader would wait for ever at a pipe that nobody writes to.
void* openExisting(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error) ? open(path) : nullptr;
}

/// Opens a path with a directory; a file that is there but no library ends the attempt.
void* openFile(const fs::path& path, bool& isThere) {
    std::error_code error;
    const fs::path native = nativeName(path);
    if (fs::exists(path, error)) {
        isThere = true;
        return openExisting(path);
    }
    isThere = !native.empty() && fs::exists(native, error);
    return isThere ? openExisting(native) : nullptr;
}

}  // namespace

DynamicLibrary DynamicLibrary::load(const std::string& name) {
    DynamicLibrary library;
    if (name.empty() || name.find('\0') != std::string::npos) return library;
    const fs::path path = name;
    bool isThere = false;
    if (path.has_parent_path()) {
        library.handle_ = openFile(path, isThere);
        return library;
    }
    if (!ownDirectory().empty()) library.handle_ = openFile(ownDirectory() / path, isThere);
    if (isThere) return library;
    library.handle_ = open(path);
    if (library.handle_ == nullptr) library.handle_ = open(nativeName(path));
    return library;
}

bool DynamicLibrary::release() {
    if (handle_ == nullptr) return false;
    const bool agreed = dlclose(handle_) == 0;
    handle_ = nullptr;
    return agreed;
}

void* DynamicLibrary::symbol(const char* name) const { return handle_ == nullptr ? nullptr : dlsym(handle_, name); }

}  // namespace tarq
