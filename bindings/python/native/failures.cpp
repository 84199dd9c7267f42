#include "failures.h"

#include <optional>
#include <utility>

#include "component/classtable.h"
#include "frame/objecterror.h"

namespace tarq::python {
namespace {

thread_local Status latest;
// The exception that a Python object has raised while the component called it, as a counted reference.
thread_local PyObject* cause = nullptr;

py::object makeError(const char* function, Status status, const std::string& description, const std::string& source) {
    return py::module_::import("tarq._errors").attr(function)(status.value(), description, source);
}

[[noreturn]] void throwError(const py::object& error) {
    if (cause != nullptr) PyException_SetCause(error.ptr(), std::exchange(cause, nullptr));
    PyErr_SetObject(py::type::handle_of(error).ptr(), error.ptr());
    throw py::error_already_set();
}

}  // namespace

Status lastStatus() { return latest; }
void setLastStatus(Status status) { latest = status; }

void throwFailure(Status status, const std::string& source, const std::string& fallback) {
    const std::optional<ObjectError> record = takeLastError();
    std::string description = fallback.empty() ? std::string(status::meaning(status)) : fallback;
    std::string raiser = source;
    if (record && record->status == status) {
        if (!record->description.empty()) description = record->description;
        if (const ClassEntry* entry = findClass(record->classId); entry != nullptr) raiser = entry->versionedProgId();
    }
    throwError(makeError("error_of", status, description, raiser));
}

void throwUnknownName(const std::string& description, const std::string& source) {
    setLastStatus(status::unknownName);
    throwError(makeError("member_error", status::unknownName, description, source));
}

Status recordException(py::error_already_set& error) {
    forgetException();
    try {
        const py::object exception = error.value();
        const py::object record = py::module_::import("tarq._errors").attr("record_of")(exception);
        const auto [code, text] = record.cast<std::pair<std::uint32_t, std::string>>();
        cause = py::object(exception).release().ptr();
        return raise(Guid{}, text, Status(code));
    } catch (py::error_already_set&) {
        return raise(Guid{}, "A Python object failed.", status::generalFailure);
    }
}

void forgetException() { Py_CLEAR(cause); }

}  // namespace tarq::python
