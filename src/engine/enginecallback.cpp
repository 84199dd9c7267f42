#include "engine/enginecallback.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "engine/enginetext.h"
#include "engine/run.h"
#include "parameters/parameterrows.h"

namespace tarq {
namespace {

constexpr std::array<std::string_view, 3> minimizationForm{"xzlbnd", "xzubnd", "xzbest"};

}  // namespace

ProcessRunState& processRunState() {
    static ProcessRunState state;
    return state;
}

void tarqEngineCallback() {
    RunModel* model = processRunState().currentRunModel.load(std::memory_order_acquire);
    if (model == nullptr || !model->engine) return;
    EngineInterface& engine = *model->engine;
    if (model->stopRequested.load(std::memory_order_relaxed)) engine.SetParameter("XCBSTP=1");
    readResultValues(engine, model->parameters);
    if (model->breakPoint) model->breakPoint(engine);
}

void readResultValues(EngineInterface& engine, ParameterTable& parameters) {
    const bool maximizing = processRunState().maximizing.load(std::memory_order_relaxed);
    const auto slots = resultSlots();
    EngineText text;
    for (int slot = 0; slot < resultCount; ++slot) {
        const std::string_view name = slots[static_cast<std::size_t>(slot)].name;
        if (!text.read(engine, std::string(name).c_str())) continue;
        const bool negated = maximizing && std::ranges::find(minimizationForm, name) != minimizationForm.end();
        // The difference gives 0 for 0, where the sign alone would give a negative zero.
        parameters.setResult(slot, negated ? 0.0 - text.number() : text.number());
    }
}

}  // namespace tarq
