// Memory of the reading program: how much it may take without harm to others, and how it takes it.
#pragma once

#include <cstdint>

namespace tarq::mathprog {

/// Bytes that are free now, on the machine and, where there is one, in the container; a guess where the system doesn't
/// tell.
[[nodiscard]] std::uint64_t availableMemory();

/// Has the heap grow in large steps of large pages, for a translator that takes very many small pieces and never gives
/// any back. Its thread is to take them there and not from a heap of its own, which would grow page by page. To be
/// called before there is a second thread; without effect where the system has no such heap or not enough room.
void prepareHeap();

}  // namespace tarq::mathprog
