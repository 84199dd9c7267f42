// Ctrl-C while the component is in a call that may take long.
//
// When a signal comes Python only takes note of it. Its handler, which raises KeyboardInterrupt, runs between two steps
// of the main thread's program, and the main thread is in the call. So a call on the main thread that can be stopped is
// watched: Python's notes pass through a pipe here, and at an interrupt the object is asked to stop, again and again
// until the call has returned, because a run that has just begun forgets what it was asked before. Signals that are
// ignored, or that a host handles without Python, leave no note.
#pragma once

#include <cstdint>

#include "proxy.h"
#include "python.h"

namespace tarq::python {

class InterruptWatcher;

/// What is to be stopped, or, while it is watched itself, the call in whose sink it was made.
struct WatchedCall {
    IDispatch* object = nullptr;
    std::int32_t stop = 0;  ///< number of the member to call
    int formerDescriptor = -1;
};

/// One call of a member that may take long, on the thread that makes it. The thread holds the interpreter's lock when
/// the watch begins and ends.
class CallWatch {
public:
    CallWatch(const Proxy& proxy, const MemberInfo& member);
    CallWatch(const CallWatch&) = delete;
    CallWatch& operator=(const CallWatch&) = delete;
    ~CallWatch();

    /// Handles the signals that came during the call, and throws what a handler has raised.
    void throwInterrupt();

private:
    InterruptWatcher* watcher_ = nullptr;  // null for a call that nothing is to stop
    WatchedCall call_;
};

/// For a sink that is about to be called in such a call: handles the signals that have come so far. What their handlers
/// raise is kept for the end of the call, as it isn't the sink that it interrupts.
void settleSignals();

/// Keeps an interrupt that ended a sink in such a call for the end of the call. False for anything else.
[[nodiscard]] bool keepInterrupt(const py::error_already_set& error);

}  // namespace tarq::python
