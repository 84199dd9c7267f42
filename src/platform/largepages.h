// Advice to the system about memory that is about to be filled.
#pragma once

#include <cstddef>
#include <memory>

namespace tarq {

/// Asks for large pages behind `length` bytes from `start` on, so that filling them for the first time takes fewer page
/// faults. Only advice: where the system has no large pages nothing happens.
void preferLargePages(void* start, std::size_t length);

/// The usual allocator with this advice, for containers that are entered all over.
template <class T>
struct LargePageAllocator {
    using value_type = T;

    LargePageAllocator() = default;
    template <class Other>
    LargePageAllocator(const LargePageAllocator<Other>& /*other*/) noexcept {}

    [[nodiscard]] T* allocate(std::size_t count) {
        T* const start = std::allocator<T>().allocate(count);
        preferLargePages(start, count * sizeof(T));
        return start;
    }
    void deallocate(T* start, std::size_t count) noexcept { std::allocator<T>().deallocate(start, count); }

    friend bool operator==(const LargePageAllocator& /*left*/, const LargePageAllocator& /*right*/) { return true; }
};

}  // namespace tarq
