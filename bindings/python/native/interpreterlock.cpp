#include "interpreterlock.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "python.h"

namespace tarq::python {
namespace {

/// Who is inside. Never destroyed: threads may come after the end of main.
struct Gate {
    std::mutex mutex;
    std::condition_variable left;
    int inside = 0;
    bool closed = false;
    std::thread::id closer;
};

Gate& gate() {
    static auto* const all = new Gate;  // NOLINT(cppcoreguidelines-owning-memory)
    return *all;
}

bool pass() {
    const std::lock_guard lock(gate().mutex);
    if (gate().closed && gate().closer != std::this_thread::get_id()) return false;
    ++gate().inside;
    return true;
}

void leave() {
    const std::lock_guard lock(gate().mutex);
    --gate().inside;
    gate().left.notify_all();
}

}  // namespace

void stopThisThread() noexcept {
    for (;;) std::this_thread::sleep_for(std::chrono::hours(1));
}

InterpreterLock::InterpreterLock() {
    if (Py_IsInitialized() == 0 || !pass()) return;
    state_ = PyGILState_Check() != 0 ? State::AlreadyHeld : State::Entered;
    if (state_ == State::Entered) token_ = withoutUnwinding(PyGILState_Ensure);
}

InterpreterLock::~InterpreterLock() {
    if (state_ == State::Refused) return;
    if (state_ == State::Entered) {
        withoutUnwinding([this] { PyGILState_Release(static_cast<PyGILState_STATE>(token_)); });
    }
    leave();
}

void closeInterpreter() {
    // A sink that never returns mustn't keep the process from ending.
    constexpr std::chrono::seconds longest(5);
    const py::gil_scoped_release released;
    std::unique_lock lock(gate().mutex);
    gate().closed = true;
    gate().closer = std::this_thread::get_id();
    gate().left.wait_for(lock, longest, [] { return gate().inside == 0; });
}

}  // namespace tarq::python
