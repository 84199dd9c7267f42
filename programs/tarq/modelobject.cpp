#include "modelobject.h"

#include <fmt/format.h>

#include "lasterror.h"

namespace tarq::command {

Ref<ITARQModel> makeModel() {
    Ref<ITARQModel> model = createObject<ITARQModel>("TARQModel");
    if (!model) showMessage("the component can't make a model: " + lastErrorText(status::classNotAvailable));
    return model;
}

std::optional<Failure> useEngine(ITARQModel& model, const std::string& engine) {
    if (engine.empty()) return std::nullopt;
    const Status status = model.put_LocationOfTARQDLL(engine);
    if (!status.failed()) return std::nullopt;
    return Failure{
        ExitCode::WrongUsage,
        fmt::format("--engine {}: {} A file's name may have 255 characters.", printable(engine), lastErrorText(status)),
        status};
}

}  // namespace tarq::command
