#include <fmt/format.h>

#include "commands/commands.h"
#include "model/modelobject.h"
#include "printing/console.h"
#include "tarq/interfaces/failuretexts.h"

namespace tarq::command {

ExitCode showVersion(const std::string& engine) {
    const Ref<ITARQModel> model = makeModel();
    useEngine(*model, engine);
    std::string version;
    if (const Status status = model->get_TARQDLLVersion(&version); !status.isOk()) {
        showMessage("the engine can't be asked: " + lastErrorText(status));
        version = unknownEngineVersion;
    }
    return writeResult(fmt::format("tarq {}\nengine {}\n", TARQ_VERSION, version));
}

}  // namespace tarq::command
