#include "platform/programsearch.h"

#include <cstdlib>
#include <optional>
#include <string_view>
#include <system_error>

#include "platform/extension.h"
#include "platform/owndirectory.h"

namespace tarq {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view programExtension = ".exe";

bool isFile(const std::string& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

/// The path, or the native one that it stands for; nothing where neither is a file.
std::optional<std::string> fileAt(std::string path) {
    if (isFile(path)) return path;
    if (!hasExtension(path, programExtension)) return std::nullopt;
    path.resize(path.size() - programExtension.size());
    return isFile(path) ? std::optional(std::move(path)) : std::nullopt;
}

std::optional<std::string> findInPath(const std::string& name) {
    const char* const path = std::getenv("PATH");
    std::string_view left = path != nullptr ? path : "";
    while (!left.empty()) {
        const std::string_view folder = left.substr(0, left.find(':'));
        left.remove_prefix(std::min(folder.size() + 1, left.size()));
        if (folder.empty()) continue;
        if (auto found = fileAt(std::string(folder) + '/' + name)) return found;
    }
    return std::nullopt;
}

std::optional<std::string> findBesideLibrary(const std::string& name) {
    if (ownDirectory().empty()) return std::nullopt;
    for (const char* folder : {"", "../bin", "../libexec/tarq"}) {
        if (auto found = fileAt((ownDirectory() / folder / name).string())) return found;
    }
    return std::nullopt;
}

}  // namespace

std::string findProgram(const std::string& location) {
    // The system would take a name as ended at a zero byte.
    if (location.empty() || location.find('\0') != std::string::npos) return location;
    std::optional<std::string> found;
    if (location.find('/') != std::string::npos) {
        found = fileAt(location);
    } else {
        found = findInPath(location);
        if (!found) found = findBesideLibrary(location);
    }
    return found.value_or(location);
}

std::string findOwnProgram(const std::string& name) { return findBesideLibrary(name).value_or(name); }

}  // namespace tarq
