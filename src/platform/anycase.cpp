#include "platform/anycase.h"

#include <string>
#include <system_error>

#include "platform/extension.h"

namespace tarq {

namespace fs = std::filesystem;

fs::path findInAnyCase(const fs::path& path, bool (*counts)(const fs::path&)) {
    if (counts(path)) return path;
    const std::string name = path.filename().string();
    std::error_code error;
    fs::path found;
    const fs::directory_iterator end;
    for (fs::directory_iterator entry(path.parent_path(), error); !error && entry != end; entry.increment(error)) {
        const fs::path& present = entry->path();
        if (!isSameInAnyCase(present.filename().string(), name) || !counts(present)) continue;
        if (found.empty() || present < found) found = present;
    }
    return found;
}

}  // namespace tarq
