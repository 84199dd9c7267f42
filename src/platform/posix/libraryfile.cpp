#include "platform/posix/libraryfile.h"

#include <dlfcn.h>
#include <elf.h>
#include <link.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <ios>
#include <span>
#include <string_view>
#include <system_error>
#include <vector>

namespace tarq {
namespace {

namespace fs = std::filesystem;

template <class Record>
bool readAt(std::ifstream& file, std::uint64_t offset, Record& record) {
    file.seekg(static_cast<std::streamoff>(offset));
    return static_cast<bool>(file.read(reinterpret_cast<char*>(&record), sizeof(record)));
}

bool isOfThisMachine(const ElfW(Ehdr) & header) {
    constexpr unsigned char wordClass = sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32;
    const std::string_view magic(reinterpret_cast<const char*>(header.e_ident), SELFMAG);
    return magic == ELFMAG && header.e_ident[EI_CLASS] == wordClass && header.e_phentsize == sizeof(ElfW(Phdr));
}

}  // namespace

bool isCutShort(const fs::path& path) {
    std::error_code error;
    const std::uint64_t size = fs::file_size(path, error);
    std::ifstream file(path, std::ios::binary);
    ElfW(Ehdr) header;
    if (error || !readAt(file, 0, header) || !isOfThisMachine(header)) return false;
    for (std::uint64_t i = 0; i < header.e_phnum; ++i) {
        ElfW(Phdr) segment;
        if (!readAt(file, header.e_phoff + i * sizeof(segment), segment)) return true;
        if (segment.p_type != PT_LOAD) continue;
        if (segment.p_offset > size || segment.p_filesz > size - segment.p_offset) return true;
    }
    return false;
}

bool findsCutShort(const fs::path& name) {
    Dl_info own{};
    link_map* map = nullptr;
    void** const found = reinterpret_cast<void**>(&map);
    if (dladdr1(reinterpret_cast<const void*>(&findsCutShort), &own, found, RTLD_DL_LINKMAP) == 0) return false;
    Dl_serinfo length{};
    if (dlinfo(map, RTLD_DI_SERINFOSIZE, &length) != 0) return false;
    std::vector<std::max_align_t> room(length.dls_size / sizeof(std::max_align_t) + 1);
    auto& folders = *reinterpret_cast<Dl_serinfo*>(room.data());
    folders = length;
    if (dlinfo(map, RTLD_DI_SERINFO, &folders) != 0) return false;
    for (const Dl_serpath& folder : std::span(folders.dls_serpath, folders.dls_cnt)) {
        std::error_code error;
        const fs::path file = fs::path(folder.dls_name) / name;
        if (fs::is_regular_file(file, error)) return isCutShort(file);
    }
    return false;
}

}  // namespace tarq
