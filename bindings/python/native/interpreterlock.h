// Entering the interpreter from C++, on whatever thread that is.
//
// A run calls its sinks on a thread that Python doesn't know, and the last reference to a Python object may be dropped
// there. While the interpreter shuts down a thread that asks for its lock is ended on the spot (see python.h); so from
// then on nobody gets in but the thread that ends the interpreter, and the shutdown waits for those who are.
#pragma once

#include <cstdint>

namespace tarq::python {

class InterpreterLock {
public:
    InterpreterLock();
    InterpreterLock(const InterpreterLock&) = delete;
    InterpreterLock& operator=(const InterpreterLock&) = delete;
    ~InterpreterLock();

    /// False when the interpreter is gone or about to go: then nothing of Python may be touched.
    explicit operator bool() const { return state_ != State::Refused; }

private:
    enum class State : std::uint8_t { Refused, AlreadyHeld, Entered };

    State state_ = State::Refused;
    int token_ = 0;
};

/// Keeps other threads out from now on, and waits a few seconds for those who are inside. The caller holds the lock.
void closeInterpreter();

}  // namespace tarq::python
