#include "platform/programsearch.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <system_error>

#include "platform/anycase.h"
#include "platform/extension.h"
#include "platform/owndirectory.h"

namespace tarq {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view programExtension = ".exe";
constexpr const char* componentFolders[] = {"", "../bin", "../libexec/tarq"};

bool isFile(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

constexpr ProgramSearch componentSearch{&isFile, componentFolders};

using Counts = decltype(ProgramSearch::counts);
/// Looks at one place. An empty path where there is no program.
using LookAt = fs::path (*)(const fs::path& path, Counts counts);

/// The native name that a conventional one stands for; empty for other names.
fs::path nativeName(const fs::path& path) {
    std::string name = path.string();
    if (!hasExtension(path.filename().string(), programExtension)) return {};
    name.resize(name.size() - programExtension.size());
    return name;
}

/// The path, or the native one that it stands for.
fs::path exactly(const fs::path& path, Counts counts) {
    if (counts(path)) return path;
    const fs::path native = nativeName(path);
    return !native.empty() && counts(native) ? native : fs::path();
}

/// The native one alone, in any case.
fs::path inAnyCase(const fs::path& path, Counts counts) {
    const fs::path native = nativeName(path);
    return native.empty() ? native : findInAnyCase(native, counts);
}

fs::path findInPath(const fs::path& name, LookAt lookAt, Counts counts) {
    const char* const path = std::getenv("PATH");
    std::string_view left = path != nullptr ? path : "";
    while (!left.empty()) {
        const std::string_view folder = left.substr(0, left.find(':'));
        left.remove_prefix(std::min(folder.size() + 1, left.size()));
        if (folder.empty()) continue;
        if (fs::path found = lookAt(fs::path(folder) / name, counts); !found.empty()) return found;
    }
    return {};
}

fs::path findInOwnFolders(const fs::path& name, LookAt lookAt, const ProgramSearch& search) {
    if (ownDirectory().empty()) return {};
    for (const char* const folder : search.ownFolders) {
        if (fs::path found = lookAt(ownDirectory() / folder / name, search.counts); !found.empty()) return found;
    }
    return {};
}

}  // namespace

std::optional<std::string> findProgram(const std::string& location, const ProgramSearch& search) {
    // The system would take a name as ended at a zero byte.
    if (location.empty() || location.find('\0') != std::string::npos) return std::nullopt;
    for (const LookAt lookAt : {&exactly, &inAnyCase}) {
        fs::path found;
        if (location.find('/') != std::string::npos) {
            found = lookAt(location, search.counts);
        } else {
            found = findInPath(location, lookAt, search.counts);
            if (found.empty()) found = findInOwnFolders(location, lookAt, search);
        }
        if (!found.empty()) return found.string();
    }
    return std::nullopt;
}

std::string findProgram(const std::string& location) {
    return findProgram(location, componentSearch).value_or(location);
}

std::string findOwnProgram(const std::string& name) {
    const fs::path found = findInOwnFolders(name, &exactly, componentSearch);
    return found.empty() ? name : found.string();
}

}  // namespace tarq
