// The frame around the parameter page: the window of a page library, loaded by name when it is wanted.
#pragma once

#include <string>

#include "tarq/frame/status.h"
#include "tarq/interfaces/itarqmodel.h"

namespace tarq {

inline constexpr const char* pageLibraryName = "libtarqpage.so";

/// Shows the parameters of a model and returns when the person has closed the page; `applied` is then whether an apply
/// took place. The model's mark that parameters are to be saved is taken away before and set by each apply. The library
/// stays loaded for good, as toolkits of windows ask for.
/// One page at a time in a process: wrongState while another is open, on whatever thread; nothing has changed then.
/// libraryNotFound for a library that can't be loaded, entryPointsMissing for one that shows no pages, propertyPage
/// when the library couldn't show the page or broke off.
[[nodiscard]] Status showParameterPage(ITARQModel& model, bool& applied, const std::string& library = pageLibraryName);

}  // namespace tarq
