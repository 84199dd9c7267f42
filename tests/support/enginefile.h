// Engine libraries that lack operations: copies of one in which these bear other names.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace tarq {

/// Path of a copy without the operations; one for each list of them, kept until the process ends.
inline std::string engineWithout(const std::vector<std::string_view>& missing, const std::string& library) {
    static const struct Folder {
        std::filesystem::path path =
            std::filesystem::temp_directory_path() / ("tarq-engines-" + std::to_string(getpid()));
        Folder() { std::filesystem::create_directory(path); }
        ~Folder() { std::filesystem::remove_all(path); }
    } folder;
    std::string name = library;
    for (const std::string_view operation : missing) name += operation;
    const std::filesystem::path copy = folder.path / (std::to_string(std::hash<std::string>{}(name)) + ".so");
    if (exists(copy)) return copy;
    std::ifstream original(library, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(original), {}};
    for (const std::string_view operation : missing) {
        const std::string symbol = '\0' + std::string(operation) + '\0';
        for (std::size_t place = 0; (place = bytes.find(symbol, place)) != std::string::npos;) bytes[++place] = '_';
    }
    std::ofstream(copy, std::ios::binary) << bytes;
    return copy;
}

}  // namespace tarq
