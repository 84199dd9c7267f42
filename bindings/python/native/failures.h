// Statuses on their way to Python: the thread's latest one, and tarq.Error.
#pragma once

#include <cstdint>
#include <string>

#include "python.h"
#include "tarq/frame/status.h"

namespace tarq::python {

/// The status of the calling thread's latest call into the component.
[[nodiscard]] Status lastStatus();
void setLastStatus(Status status);

/// Throws tarq.Error, or its subclass that fits the status, with the thread's ObjectError as its description. Without
/// one the description is `fallback`, or the status's own meaning when that is empty; `source` is the versioned ProgID
/// of the object that was called. What the engine told `run`, an object whose run has failed, becomes a note of the
/// error.
[[noreturn]] void throwFailure(Status status, const std::string& source, const std::string& fallback = {},
                               py::handle run = {});

/// Throws tarq.MemberError for a name that an object doesn't have.
[[noreturn]] void throwUnknownName(const std::string& description, const std::string& source);

/// Turns the Python exception that has just been caught into a status with an ObjectError: what the component gets from
/// a Python object that it has called. A failure that this leads to on the same thread bears it as its cause; what is
/// no failure but wants to end the program, such as KeyboardInterrupt, is thrown in its place.
[[nodiscard]] Status recordException(py::error_already_set& error);

/// Throws what a Python object that the component has called has raised to end the program, such as KeyboardInterrupt,
/// whatever became of the call.
void throwEnding();

/// Forgets an exception that led to no failure.
void forgetException();

}  // namespace tarq::python
