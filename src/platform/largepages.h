// Advice to the system about memory that is about to be filled.
#pragma once

#include <cstddef>

namespace tarq {

/// Asks for large pages behind `length` bytes from `start` on, so that filling them for the first time takes fewer page
/// faults. Only advice: where the system has no large pages nothing happens.
void preferLargePages(void* start, std::size_t length);

}  // namespace tarq
