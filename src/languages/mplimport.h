// Reading a model in the language MPL through an automation server that knows it.
//
// The server is somebody else's object, called by the numbers of its members alone; it may fail, answer nonsense or
// call back into the model at any time. Every object that it hands out is let go on every path.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "languages/languagetarget.h"
#include "tarq/frame/dispatch.h"
#include "tarq/frame/status.h"

namespace tarq {

/// The name under which a server is looked for.
inline constexpr const char* mplServerProgId = "MPLLib.OptiMax.1";

/// Creates the server anew; null when it can't be created.
using CreateMplServer = std::function<Ref<IDispatch>()>;

/// What the server said of the latest reading.
struct MplError {
    std::string message;
    std::int32_t line = 0;
};

/// Has a server read the file `fileName`, as seen from `workingDirectory`, and copies the model into `target` element
/// by element: as many calls as there are places in the matrix. `error` gets the server's words. languageInterface with
/// a description for what is told in words: no server, a file that it refuses, a nonlinear model, a record that can't
/// be added. A call that the server fails ends the reading with its status and description. A failure leaves the old
/// model up to the point at which the server had read a linear one, and a part of the new model after it.
[[nodiscard]] Outcome readMplModel(const std::string& fileName, const std::string& workingDirectory,
                                   const CreateMplServer& createServer, MplError& error, LanguageTarget& target);

}  // namespace tarq
