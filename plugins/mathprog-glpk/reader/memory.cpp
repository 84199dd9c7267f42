#include "memory.h"

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <string>

#include "platform/largepages.h"

namespace tarq::mathprog {
namespace {

constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

/// The number in a file that holds one; `unlimited` for a word in its place, or no file.
std::uint64_t numberIn(const char* fileName) {
    std::uint64_t number = 0;
    return std::ifstream(fileName) >> number ? number : unlimited;
}

std::uint64_t availableOnMachine() {
    std::ifstream file("/proc/meminfo");
    std::string label;
    std::uint64_t kilobytes = 0;
    std::string rest;
    while (file >> label >> kilobytes) {
        if (label == "MemAvailable:") return kilobytes * 1024;
        std::getline(file, rest);
    }
    constexpr std::uint64_t guess = std::uint64_t{4} << 30U;
    return guess;
}

std::uint64_t availableInContainer() {
    const std::uint64_t limit = numberIn("/sys/fs/cgroup/memory.max");
    const std::uint64_t used = numberIn("/sys/fs/cgroup/memory.current");
    return limit == unlimited || used == unlimited ? unlimited : limit - std::min(limit, used);
}

}  // namespace

std::uint64_t availableMemory() { return std::min(availableOnMachine(), availableInContainer()); }

void prepareHeap() {
#if defined(__GLIBC__)
    constexpr std::uint64_t largestStep = std::uint64_t{1} << 30U;
    constexpr int usualStep = 128 * 1024;
    const int step = static_cast<int>(std::min(largestStep, availableMemory() / 8));
    (void)::mallopt(M_ARENA_MAX, 1);
    (void)::mallopt(M_TRIM_THRESHOLD, -1);
    (void)::mallopt(M_TOP_PAD, step);
    auto* const endBefore = static_cast<char*>(::sbrk(0));
    // More than the heap has at first, but not so much that it would lie elsewhere. Volatile, or the compiler takes it
    // for nothing.
    constexpr std::size_t piece = 120 * 1024;
    void* const volatile pieces[] = {std::malloc(piece), std::malloc(piece)};
    for (void* const taken : pieces) std::free(taken);
    const auto grown = static_cast<char*>(::sbrk(0)) - endBefore;
    if (grown >= step) {
        preferLargePages(endBefore, static_cast<std::size_t>(grown));
    } else {
        (void)::mallopt(M_TOP_PAD, usualStep);
    }
#endif
}

}  // namespace tarq::mathprog
