#include "model/modelobject.h"

#include <fmt/format.h>

#include <tarq/interfaces/limits.h>
#include "printing/text.h"
#include "tarq/interfaces/failuretexts.h"

namespace tarq::command {

Failure cannotRead(std::string_view shown, std::string_view reason, Status status) {
    return {ExitCode::InputRejected, fmt::format("{} can't be read: {}.", shown, reason), status};
}

Failure cannotWrite(std::string_view shown, std::string_view reason) {
    return {ExitCode::InputRejected, fmt::format("{} can't be written: {}.", shown, reason)};
}

Ref<ITARQModel> makeModel() {
    Ref<ITARQModel> model = createObject<ITARQModel>("TARQModel");
    if (model) return model;
    throw Failure(ExitCode::EngineFailed,
                  "the component can't make a model: " + lastErrorText(status::classNotAvailable));
}

void useEngine(ITARQModel& model, const std::string& engine) {
    if (engine.empty()) return;
    const Status status = model.put_LocationOfTARQDLL(engine);
    if (!status.failed()) return;
    throw Failure(ExitCode::WrongUsage, fmt::format("--engine {}: {}", printable(engine), fileErrorText(status)),
                  status);
}

std::string lastErrorText(Status status) {
    const std::optional<ObjectError> error = takeLastError();
    if (error && error->status == status && !error->description.empty()) return error->description;
    return fmt::format("{} (0x{:08X})", status::meaning(status), status.value());
}

std::string fileErrorText(Status status) {
    return fmt::format("{} A file's name may have {} characters.", lastErrorText(status), longestPath);
}

}  // namespace tarq::command
