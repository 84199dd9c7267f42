#include "engine/enginecallback.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <new>
#include <string>
#include <string_view>

#include "engine/enginetext.h"
#include "engine/run.h"
#include "parameters/parameterrows.h"
#include "platform/threadslot.h"

namespace tarq {
namespace {

constexpr std::array<std::string_view, 3> minimizationForm{"xzlbnd", "xzubnd", "xzbest"};

const ThreadSlot& slotOfRun() {
    static const ThreadSlot slot(nullptr);
    return slot;
}

RunnableModel* runOfThisThread() { return static_cast<RunnableModel*>(slotOfRun().get()); }

// Of all runs in progress the one that began last, null when that has ended. An engine may call back on a thread of its
// own making, hence release and acquire.
constinit std::atomic<RunnableModel*> latestRun{nullptr};

}  // namespace

NotedRun::NotedRun(RunnableModel& model) : model_(model), outer_(runOfThisThread()) {
    if (!slotOfRun().set(&model)) throw std::bad_alloc();
    latestRun.store(&model, std::memory_order_release);
}

NotedRun::~NotedRun() {
    static_cast<void>(slotOfRun().set(outer_));  // has its memory since the first time
    forget(model_);
}

void NotedRun::forget(RunnableModel& model) noexcept {
    RunnableModel* noted = &model;
    latestRun.compare_exchange_strong(noted, nullptr, std::memory_order_acq_rel);
}

void tarqEngineCallback() {
    RunnableModel* const own = runOfThisThread();
    RunnableModel* const model = own != nullptr ? own : latestRun.load(std::memory_order_acquire);
    if (model == nullptr || !model->engine) return;
    EngineInterface& engine = *model->engine;
    if (model->stopRequested.load(std::memory_order_relaxed)) engine.requestStop();
    readResultValues(*model);
    if (model->breakPoint) model->breakPoint(engine);
}

void readResultValues(RunnableModel& model) {
    const bool maximizing = readShared(model.maximizing);
    const auto slots = resultSlots();
    EngineText text;
    for (int slot = 0; slot < resultCount; ++slot) {
        const std::string_view name = slots[static_cast<std::size_t>(slot)].name;
        if (!text.read(*model.engine, std::string(name).c_str())) continue;
        const bool negated = maximizing && std::ranges::find(minimizationForm, name) != minimizationForm.end();
        // The difference gives 0 for 0, where the sign alone would give a negative zero.
        model.parameters.setResult(slot, negated ? 0.0 - text.number() : text.number());
    }
}

}  // namespace tarq
