// Doing work in a process of its own, so that whatever happens to it is told and leaves nothing behind.
#pragma once

#include <functional>
#include <string>

namespace tarq::translator {

/// Does the work in another process with a folder of its own among the temporary files, and takes the folder away
/// afterwards. Returns the work's exit code; 1, with a line on standard output, when there can be no folder or process,
/// or the process broke down; 128 and a signal's number when it was ended from outside. Signals that ask this process
/// to end are passed on.
[[nodiscard]] int supervise(const std::function<int(const std::string& folder)>& work);

}  // namespace tarq::translator
