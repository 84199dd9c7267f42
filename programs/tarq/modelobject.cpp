#include "modelobject.h"

#include <fmt/format.h>

#include "console.h"
#include "lasterror.h"

namespace tarq::command {

Ref<ITARQModel> makeModel(const std::string& engine) {
    Ref<ITARQModel> model = createObject<ITARQModel>("TARQModel");
    if (!model) {
        showMessage("the component can't make a model: " + lastErrorText(status::classNotAvailable));
        return {};
    }
    if (engine.empty()) return model;
    if (const Status status = model->put_LocationOfTARQDLL(engine); status.failed()) {
        showMessage(fmt::format("--engine {}: {} A file's name may have 255 bytes.", engine, lastErrorText(status)));
        return {};
    }
    return model;
}

}  // namespace tarq::command
