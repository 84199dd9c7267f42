#include "platform/wholefile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <vector>

#include "platform/largepages.h"

namespace tarq {
namespace {

// Small enough to stay in the cache on its way into the text.
constexpr std::size_t longestPiece = 256 * 1024;

std::filesystem::path pathOf(const std::string& fileName) {
    return std::filesystem::path(std::u8string(fileName.begin(), fileName.end()));
}

/// Length of the file, 0 where it has none, as a pipe. Leaves the stream at its start.
std::size_t lengthOf(std::ifstream& file) {
    const std::streamoff length = file.seekg(0, std::ios::end).tellg();
    file.clear();
    file.seekg(0);
    file.clear();
    return length > 0 ? static_cast<std::size_t>(length) : 0;
}

}  // namespace

std::optional<std::string> readWholeFile(const std::string& fileName) {
    // The system would take the name as ended at a zero byte, and open another file.
    if (fileName.find('\0') != std::string::npos) return std::nullopt;
    const std::filesystem::path path = pathOf(fileName);
    std::error_code unknown;
    if (std::filesystem::is_directory(path, unknown)) return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    const std::size_t length = lengthOf(file);
    if (length > largestWholeFile) return std::nullopt;

    std::string text;
    text.reserve(length + 1);
    preferLargePages(text.data(), text.capacity());
    // A small file isn't worth a large buffer; what tells no length is read in full pieces.
    std::vector<char> piece(length > 0 ? std::min(length + 1, longestPiece) : longestPiece);
    while (file.read(piece.data(), static_cast<std::streamsize>(piece.size())) || file.gcount() > 0) {
        text.append(piece.data(), static_cast<std::size_t>(file.gcount()));
        if (text.size() > largestWholeFile) return std::nullopt;
    }
    if (file.bad()) return std::nullopt;
    return text;
}

std::string readStartOfFile(const std::string& fileName, std::size_t limit) {
    std::ifstream file(pathOf(fileName), std::ios::binary);
    std::string text;
    std::vector<char> piece(std::min(limit, longestPiece));
    while (file && text.size() < limit) {
        file.read(piece.data(), static_cast<std::streamsize>(std::min(piece.size(), limit - text.size())));
        text.append(piece.data(), static_cast<std::size_t>(file.gcount()));
    }
    return text;
}

}  // namespace tarq
