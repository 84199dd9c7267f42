#include "limits.h"

#include <sys/resource.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace tarq::stub {
namespace {

namespace fs = std::filesystem;

// Far more than the library was ever seen to need: at most 110 bytes of memory for a byte of a stub without
// coefficients, and a second for 20 megabytes.
constexpr std::uintmax_t memoryBase = std::uintmax_t{256} << 20U;
constexpr std::uintmax_t memoryPerByte = 256;
constexpr std::uintmax_t secondsBase = 30;
constexpr std::uintmax_t bytesPerSecond = 1'000'000;

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
    return true;
}

}  // namespace tarq::stub
