#include "interpreterlock.h"

#include <chrono>
#include <condition_variable>
#include <mutex>

#include "python.h"

namespace tarq::python {
namespace {

/// Who is inside, apart from threads that came from Python. Never destroyed: threads may come after the end of main.
struct Gate {
    std::mutex mutex;
    std::condition_variable left;
    int inside = 0;
    bool closed = false;
};

Gate& gate() {
    static auto* const all = new Gate;  // NOLINT(cppcoreguidelines-owning-memory)
    return *all;
}

bool pass() {
    const std::lock_guard lock(gate().mutex);
    if (gate().closed) return false;
    ++gate().inside;
    return true;
}

void leave() {
    const std::lock_guard lock(gate().mutex);
    --gate().inside;
    gate().left.notify_all();
}

}  // namespace

InterpreterLock::InterpreterLock() {
    if (Py_IsInitialized() == 0) return;
    if (PyGILState_Check() != 0) {
        state_ = State::AlreadyHeld;
    } else if (pass()) {
        token_ = PyGILState_Ensure();
        state_ = State::Entered;
    }
}

InterpreterLock::~InterpreterLock() {
    if (state_ != State::Entered) return;
    PyGILState_Release(static_cast<PyGILState_STATE>(token_));
    leave();
}

void closeInterpreter() {
    // A sink that never returns mustn't keep the process from ending.
    constexpr std::chrono::seconds longest(5);
    const py::gil_scoped_release released;
    std::unique_lock lock(gate().mutex);
    gate().closed = true;
    gate().left.wait_for(lock, longest, [] { return gate().inside == 0; });
}

}  // namespace tarq::python
