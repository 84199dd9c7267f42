#include "platform/largepages.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>

namespace tarq {

void preferLargePages([[maybe_unused]] void* start, [[maybe_unused]] std::size_t length) {
#if defined(MADV_HUGEPAGE)
    // Below this the gain is less than what a partly used page wastes.
    constexpr std::size_t smallestLength = std::size_t{4} << 20U;
    if (length < smallestLength) return;
    const auto pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const std::uintptr_t skipped = (pageSize - reinterpret_cast<std::uintptr_t>(start) % pageSize) % pageSize;
    (void)madvise(static_cast<char*>(start) + skipped, length - skipped, MADV_HUGEPAGE);
#endif
}

}  // namespace tarq
