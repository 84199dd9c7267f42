#include "failures.h"

#include <optional>
#include <utility>

#include "tarq/component/classtable.h"
#include "tarq/frame/objecterror.h"
#include "text.h"

namespace tarq::python {
namespace {

thread_local Status latest;
// The exception that a Python object has raised while the component called it, as a counted reference.
thread_local PyObject* cause = nullptr;

py::module_ errors() { return py::module_::import("tarq._errors"); }

py::object makeError(const char* function, Status status, const std::string& description, const std::string& source) {
    return errors().attr(function)(status.value(), textToPython(description), source);
}

[[noreturn]] void throwException(const py::object& exception) {
    PyErr_SetObject(py::type::handle_of(exception).ptr(), exception.ptr());
    throw py::error_already_set();
}

void addCause(const py::object& error) {
    throwEnding();
    if (cause != nullptr) PyException_SetCause(error.ptr(), std::exchange(cause, nullptr));
}

}  // namespace

Status lastStatus() { return latest; }
void setLastStatus(Status status) { latest = status; }

void throwFailure(Status status, const std::string& source, const std::string& fallback, py::handle run) {
    const std::optional<ObjectError> record = takeLastError();
    std::string description = fallback.empty() ? std::string(status::meaning(status)) : fallback;
    std::string raiser = source;
    if (record && record->status == status) {
        if (!record->description.empty()) description = record->description;
        if (const ClassEntry* entry = findClass(record->classId); entry != nullptr) raiser = entry->versionedProgId();
    }
    const py::object error = makeError("error_of", status, description, raiser);
    addCause(error);
    if (run) {
        errors().attr("explain")(error, run);
        setLastStatus(status);  // the look at the object was no call of the client's
    }
    throwException(error);
}

void throwUnknownName(const std::string& description, const std::string& source) {
    setLastStatus(status::unknownName);
    const py::object error = makeError("member_error", status::unknownName, description, source);
    addCause(error);
    throwException(error);
}

Status recordException(py::error_already_set& error) {
    forgetException();
    try {
        const py::object exception = error.value();
        const py::tuple record(errors().attr("record_of")(exception));
        const std::string text = TextBytes(record[1]).copy();
        const auto code = record[0].cast<std::uint32_t>();
        cause = py::object(exception).release().ptr();
        return raise(Guid{}, text, Status(code));
    } catch (py::error_already_set&) {
        return raise(Guid{}, "A Python object failed.", status::generalFailure);
    }
}

void throwEnding() {
    if (cause == nullptr || PyErr_GivenExceptionMatches(cause, PyExc_Exception) != 0) return;
    throwException(py::reinterpret_steal<py::object>(std::exchange(cause, nullptr)));
}

void forgetException() { Py_CLEAR(cause); }

}  // namespace tarq::python
