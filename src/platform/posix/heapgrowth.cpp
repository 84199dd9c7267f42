#include "platform/heapgrowth.h"

#include <unistd.h>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include <cstdlib>
#include <limits>

#include "platform/largepages.h"

namespace tarq {

bool growHeapBy([[maybe_unused]] std::size_t step) {
#if defined(__GLIBC__)
    constexpr int usualStep = 128 * 1024;
    if (step > static_cast<std::size_t>(std::numeric_limits<int>::max())) return false;
    (void)::mallopt(M_TRIM_THRESHOLD, -1);
    (void)::mallopt(M_TOP_PAD, static_cast<int>(step));
    auto* const endBefore = static_cast<char*>(::sbrk(0));
    // More than the heap has at first, but not so much that it would lie elsewhere. Volatile, or the compiler takes it
    // for nothing.
    constexpr std::size_t piece = 120 * 1024;
    void* const volatile pieces[] = {std::malloc(piece), std::malloc(piece)};
    for (void* const taken : pieces) std::free(taken);
    const auto grown = static_cast<std::size_t>(static_cast<char*>(::sbrk(0)) - endBefore);
    if (grown >= step) {
        preferLargePages(endBefore, grown);
        return true;
    }
    (void)::mallopt(M_TOP_PAD, usualStep);
#endif
    return false;
}

}  // namespace tarq
