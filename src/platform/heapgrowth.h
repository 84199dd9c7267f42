// How the heap of a process takes its memory from the system.
#pragma once

#include <cstddef>

namespace tarq {

/// Has the heap grow now and from now on by at least `step` bytes at once, with large pages behind them, and give none
/// back, for programs that take very many small pieces: page faults are a third of what reading a large model costs
/// them. False, and the heap grows as it always does, where there isn't so much room or the system has no such heap. To
/// be called before there is a second thread.
bool growHeapBy(std::size_t step);

}  // namespace tarq
