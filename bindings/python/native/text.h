// Texts on their way between Python and the component.
//
// The component's texts are bytes: UTF-8, unless a name comes from a file in another encoding. A byte that is no UTF-8
// is a lone surrogate in Python, as in its own file names, and becomes the same byte again on the way back.
#pragma once

#include <string>
#include <string_view>

#include "python.h"

namespace tarq::python {

[[nodiscard]] py::object textToPython(std::string_view text);

/// The bytes of a Python text, for as long as both live. Throws UnicodeEncodeError for surrogates that stand for no
/// byte.
class TextBytes {
public:
    explicit TextBytes(py::handle text);
    [[nodiscard]] std::string_view view() const { return view_; }
    [[nodiscard]] std::string copy() const { return std::string(view_); }

private:
    py::object encoded_;  // where the text itself can't lend its bytes
    std::string_view view_;
};

}  // namespace tarq::python
