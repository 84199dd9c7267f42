// What all sources of the extension need of Python: pybind11's owning references, and the border that C++ exceptions
// don't cross.
//
// While the interpreter shuts down it ends every other thread that asks for its lock, by unwinding the thread's stack.
// That would go through destructors that want the lock, and at the first function that lets nothing pass the process
// would be aborted. So where the unwinding reaches this code the thread stops for good; the end of the process takes it
// along.
#pragma once

#include <pybind11/pybind11.h>
#include <structmember.h>

#include <exception>
#include <new>
#include <utility>

namespace tarq::python {

namespace py = pybind11;

/// In a handler of everything: whether it holds the unwinding of a thread that is ended, which is no exception.
inline bool holdsThreadEnd() { return std::current_exception() == nullptr; }

/// Stops the calling thread for good. It must not hold the interpreter's lock.
[[noreturn]] void stopThisThread() noexcept;

/// Runs a body that calls the interpreter from where no unwinding may pass.
template <class Body>
auto withoutUnwinding(Body&& body) {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        if (holdsThreadEnd()) stopThisThread();
        throw;
    }
}

/// Runs a slot's body and turns what it throws into a Python exception. `failure` is what the slot returns then.
template <class Result, class Body>
Result guarded(Result failure, Body&& body) noexcept {
    try {
        return std::forward<Body>(body)();
    } catch (py::error_already_set& error) {
        error.restore();
    } catch (const std::bad_alloc&) {
        PyErr_NoMemory();
    } catch (const py::builtin_exception& error) {
        error.set_error();
    } catch (const std::exception& error) {
        PyErr_SetString(PyExc_SystemError, error.what());
    } catch (...) {
        if (holdsThreadEnd()) stopThisThread();
        PyErr_SetString(PyExc_SystemError, "an unknown exception");
    }
    return failure;
}

/// Throws the Python exception that a call of the interpreter has left.
template <class Object>
Object* checked(Object* result) {
    if (result == nullptr) throw py::error_already_set();
    return result;
}

inline int checked(int result) {
    if (result < 0) throw py::error_already_set();
    return result;
}

/// A new reference of the interpreter, taken over; throws what it has left instead.
inline py::object owned(PyObject* result) { return py::reinterpret_steal<py::object>(checked(result)); }

/// What a call of the interpreter gives that may run a client's code for as long as that likes; throws what it has left
/// instead. A thread that is ended meanwhile stops here, before the destructors up its stack want the lock.
template <class Call>
py::object clientResult(Call&& call) {
    return owned(withoutUnwinding(std::forward<Call>(call)));
}

/// The entry of a type's slot table.
template <class Entry>
PyType_Slot slot(int number, Entry entry) {
    return {number, reinterpret_cast<void*>(entry)};
}
inline PyType_Slot slot(int number, const char* text) { return {number, const_cast<char*>(text)}; }

}  // namespace tarq::python
