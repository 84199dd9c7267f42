#include "versioncommand.h"

#include <fmt/format.h>

#include "console.h"
#include "modelobject.h"

namespace tarq::command {

ExitCode showVersion(const std::string& engine) {
    const Ref<ITARQModel> model = makeModel(engine);
    if (!model) return ExitCode::WrongUsage;
    std::string version;
    if (!model->get_TARQDLLVersion(&version).isOk()) version = "unknown";
    return writeResult(fmt::format("tarq {}\nengine {}\n", TARQ_VERSION, version), ExitCode::Success);
}

}  // namespace tarq::command
