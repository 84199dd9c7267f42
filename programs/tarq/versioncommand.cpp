#include "versioncommand.h"

#include <fmt/format.h>

#include "console.h"
#include "lasterror.h"
#include "modelobject.h"

namespace tarq::command {

ExitCode showVersion(const std::string& engine) {
    const Ref<ITARQModel> model = makeModel();
    if (!model) return ExitCode::EngineFailed;
    if (const auto failure = useEngine(*model, engine)) return show(*failure);
    std::string version;
    if (const Status status = model->get_TARQDLLVersion(&version); !status.isOk()) {
        showMessage("the engine can't be asked: " + lastErrorText(status));
        version = "unknown";
    }
    return writeResult(fmt::format("tarq {}\nengine {}\n", TARQ_VERSION, version), ExitCode::Success);
}

}  // namespace tarq::command
