#include "memory.h"

#include <cstdlib>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <limits>
#include <string>

#include "platform/heapgrowth.h"

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
    constexpr std::uint64_t largestStep = std::uint64_t{1} << 30U;
#if defined(__GLIBC__)
    (void)::mallopt(M_ARENA_MAX, 1);
#endif
    (void)growHeapBy(static_cast<std::size_t>(std::min(largestStep, availableMemory() / 8)));
}

}  // namespace tarq::mathprog
