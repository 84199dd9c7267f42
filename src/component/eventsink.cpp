#include "tarq/component/eventsink.h"

#include <memory>
#include <utility>

#include "tarq/frame/connectionpoint.h"
#include "tarq/frame/contained.h"
#include "tarq/frame/countedobject.h"
#include "tarq/interfaces/itarqmodelevents.h"

namespace tarq {
namespace {

class FunctionSink final : public CountedObject<FunctionSink, _ITARQModelEvents> {
public:
    explicit FunctionSink(std::function<void()> handler) : handler_(std::move(handler)) {}

    Status Invoke(std::int32_t member, std::uint16_t /*kinds*/, const InvokeArguments& /*arguments*/,
                  Variant* /*result*/, std::uint32_t* /*argument*/) override {
        if (member != _ITARQModelEvents::optimizationFinished) return status::unknownMember;
        handler_();
        return status::ok;
    }

private:
    friend std::default_delete<FunctionSink>;
    ~FunctionSink() = default;

    std::function<void()> handler_;
};

/// Calls `act` with the point that a model's events come from.
template <class Act>
Status atPointOf(IUnknown& model, const Act& act) {
    const auto container = Ref<IUnknown>(&model).query<IConnectionPointContainer>();
    if (!container) return status::noConnection;
    IConnectionPoint* found = nullptr;
    const Status answer = container->FindConnectionPoint(_ITARQModelEvents::id, &found);
    const auto point = Ref<IConnectionPoint>::adopt(found);
    return answer.isOk() ? act(*point) : answer;
}

}  // namespace

Status adviseFinished(IUnknown& model, std::function<void()> handler, std::uint32_t* cookie) {
    return atPointOf(model, [&](IConnectionPoint& point) {
        return contained([&] {
            const Ref<_ITARQModelEvents> sink(std::make_unique<FunctionSink>(std::move(handler)).release());
            return point.Advise(sink.get(), cookie);
        });
    });
}

Status unadviseFinished(IUnknown& model, std::uint32_t cookie) {
    return atPointOf(model, [&](IConnectionPoint& point) { return point.Unadvise(cookie); });
}

}  // namespace tarq
