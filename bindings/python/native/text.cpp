#include "text.h"

namespace tarq::python {
namespace {

constexpr const char* strayBytes = "surrogateescape";

}  // namespace

py::object textToPython(std::string_view text) {
    return owned(PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), strayBytes));
}

TextBytes::TextBytes(py::handle text) {
    Py_ssize_t size = 0;
    if (const char* bytes = PyUnicode_AsUTF8AndSize(text.ptr(), &size); bytes != nullptr) {
        view_ = {bytes, static_cast<std::size_t>(size)};
        return;
    }
    if (PyErr_ExceptionMatches(PyExc_UnicodeEncodeError) == 0) throw py::error_already_set();
    PyErr_Clear();
    encoded_ = owned(PyUnicode_AsEncodedString(text.ptr(), "utf-8", strayBytes));
    view_ = {PyBytes_AS_STRING(encoded_.ptr()), static_cast<std::size_t>(PyBytes_GET_SIZE(encoded_.ptr()))};
}

}  // namespace tarq::python
