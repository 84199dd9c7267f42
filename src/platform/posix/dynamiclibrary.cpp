#include "platform/dynamiclibrary.h"

#include <dlfcn.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>

#include "platform/anycase.h"
#include "platform/extension.h"
#include "platform/owndirectory.h"
#include "platform/posix/libraryfile.h"

namespace tarq {
namespace {

namespace fs = std::filesystem;

/// The name that a conventional one stands for here, libNAME.so for NAME.dll; empty for other names.
fs::path nativeName(const fs::path& path) {
    const std::string file = path.filename().string();
    if (!hasExtension(file, ".dll")) return {};
    return path.parent_path() / ("lib" + file.substr(0, file.size() - 4) + ".so");
}

bool isThere(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

/// The native file that a conventional name stands for; empty where there is none.
fs::path nativeFile(const fs::path& path) {
    const fs::path native = nativeName(path);
    return native.empty() ? native : findInAnyCase(native, &isThere);
}

/// For the loader's own search, which can be asked for whole names only.
fs::path inLowerCase(const fs::path& path) {
    std::string name = path.string();
    std::ranges::transform(name, name.begin(), &lowerCase);
    return name;
}

void* open(const fs::path& path) { return path.empty() ? nullptr : dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL); }

/// Opens a file that is known to be there. The loader would wait for ever at a pipe that nobody writes to.
void* openExisting(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error) && !isCutShort(path) ? open(path) : nullptr;
}

/// Opens a path with a directory; a file that is there but no library ends the attempt.
void* openFile(const fs::path& path, bool& isFound) {
    const fs::path file = isThere(path) ? path : nativeFile(path);
    isFound = !file.empty();
    return isFound ? openExisting(file) : nullptr;
}

/// Opens a plain name by the loader's search.
void* openSearched(const fs::path& name) { return findsCutShort(name) ? nullptr : open(name); }

}  // namespace

DynamicLibrary DynamicLibrary::load(const std::string& name) {
    DynamicLibrary library;
    if (name.empty() || name.find('\0') != std::string::npos) return library;
    const fs::path path = name;
    bool isFound = false;
    if (path.has_parent_path()) {
        library.handle_ = openFile(path, isFound);
        return library;
    }
    if (!ownDirectory().empty()) library.handle_ = openFile(ownDirectory() / path, isFound);
    if (isFound) return library;
    for (const fs::path& searched : {path, nativeName(path), inLowerCase(nativeName(path))}) {
        if (library.handle_ == nullptr && !searched.empty()) library.handle_ = openSearched(searched);
    }
    return library;
}

DynamicLibrary DynamicLibrary::alreadyLoaded(const char* name) {
    DynamicLibrary library;
    library.handle_ = dlopen(name, RTLD_NOW | RTLD_LOCAL | RTLD_NOLOAD);
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
