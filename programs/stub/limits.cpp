#include "limits.h"

#include <sys/resource.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include "platform/heapgrowth.h"

namespace tarq::stub {
namespace {

namespace fs = std::filesystem;

// Several times what the library was ever seen to need for a byte: 95 bytes and a microsecond, where a stub has nothing
// but columns.
[[maybe_unused]] constexpr std::uintmax_t memoryBase = std::uintmax_t{256} << 20U;
[[maybe_unused]] constexpr std::uintmax_t memoryPerByte = 256;
constexpr std::uintmax_t secondsBase = 20;
constexpr std::uintmax_t bytesPerSecond = 100'000;

bool addSize(const std::string& file, std::uintmax_t& total) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (!fs::exists(status)) return true;
    if (!fs::is_regular_file(status)) return false;
    total += fs::file_size(file, error);
    return !error;
}

void lower(int resource, std::uintmax_t wanted) {
    rlimit limit{};
    if (::getrlimit(static_cast<__rlimit_resource>(resource), &limit) != 0) return;
    // No way to raise it again.
    limit.rlim_max = std::min<std::uintmax_t>(limit.rlim_max, wanted);
    limit.rlim_cur = std::min(limit.rlim_cur, limit.rlim_max);
    (void)::setrlimit(static_cast<__rlimit_resource>(resource), &limit);
}

/// Has the library, which takes its memory piece by piece and gives none back, take it in few steps.
void prepareHeap(std::uintmax_t size) {
    // Six bytes of memory for one of a usual stub.
    constexpr std::uintmax_t worthwhile = 1U << 20U;
    constexpr std::uintmax_t largest = 1U << 30U;
    if (size < worthwhile) return;
#if defined(__GLIBC__)
    (void)::mallopt(M_MMAP_THRESHOLD, static_cast<int>(largest));
#endif
    (void)growHeapBy(static_cast<std::size_t>(std::min(6 * size, largest)));
}

}  // namespace

bool limitCosts(const std::string& stub) {
    constexpr std::string_view ownExtension = ".nl";
    std::string base = stub;
    // The library takes a name with the extension too.
    if (std::error_code error; stub.ends_with(ownExtension) && !fs::exists(stub + ".nl", error)) {
        base.resize(base.size() - ownExtension.size());
    }
    std::uintmax_t size = 0;
    for (const char* extension : {".nl", ".row", ".col"}) {
        if (!addSize(base + extension, size)) return false;
    }
    lower(RLIMIT_CORE, 0);
    lower(RLIMIT_CPU, secondsBase + size / bytesPerSecond);
#ifndef TARQ_STUB_WITHOUT_MEMORY_LIMIT
    lower(RLIMIT_AS, memoryBase + memoryPerByte * size);
#endif
    prepareHeap(size);
    return true;
}

}  // namespace tarq::stub
