#include "platform/dynamiclibrary.h"

#include <dlfcn.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>

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

/// The file of this name, or else the one of this name in other case, the first of several; empty where there is none.
fs::path findInAnyCase(const fs::path& path) {
    std::error_code error;
    if (path.empty() || fs::exists(path, error)) return path;
    const std::string name = path.filename().string();
    fs::path found;
    const fs::directory_iterator end;
    for (fs::directory_iterator entry(path.parent_path(), error); !error && entry != end; entry.increment(error)) {
        const fs::path& present = entry->path();
        if (!isSameInAnyCase(present.filename().string(), name)) continue;
        if (found.empty() || present < found) found = present;
    }
    return found;
}

/// The same for the loader's own search, which can be asked for whole names only.
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
void* openFile(const fs::path& path, bool& isThere) {
    std::error_code error;
    const fs::path file = fs::exists(path, error) ? path : findInAnyCase(nativeName(path));
    isThere = !file.empty();
    return isThere ? openExisting(file) : nullptr;
}

/// Opens a plain name by the loader's search.
void* openSearched(const fs::path& name) { return findsCutShort(name) ? nullptr : open(name); }

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
