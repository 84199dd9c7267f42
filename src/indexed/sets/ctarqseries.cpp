#include "indexed/sets/ctarqseries.h"

#include "frame/memberguard.h"
#include "frame/result.h"
#include "indexed/sets/ctarqseriesenum.h"
#include "tarq/interfaces/classids.h"

namespace tarq {

Status CTARQSeries::Init(double Start, double End, const Variant& Step) {
    return guarded(classid::TARQSeries, [&] {
        Outcome outcome = makeSeriesRange(Start, End, Step, range_);
        if (outcome.isOk()) initialized_ = true;
        return outcome;
    });
}

Status CTARQSeries::get__NewEnum(Ref<IUnknown>* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQSeries, [&]() -> Outcome {
        if (!initialized_) return {status::wrongState, "TARQSeries has not been initialized"};
        void* made = nullptr;
        if (const Status created = createInstance<CTARQSeriesEnum>(nullptr, ITARQSeriesEnum::id, &made);
            !created.isOk()) {
            return created;
        }
        const auto enumerator = Ref<ITARQSeriesEnum>::adopt(static_cast<ITARQSeriesEnum*>(made));
        TARQ_TRY(enumerator->Init(range_.start, range_.end, range_.step));
        *value = Ref<IUnknown>(enumerator.get());
        return {};
    });
}

Status CTARQSeries::get_Series(double Start, double End, const Variant& Step, Ref<IUnknown>* value) {
    if (value == nullptr) return status::nullPointer;
    TARQ_TRY(Init(Start, End, Step));
    *value = Ref<IUnknown>(static_cast<ITARQSeries*>(this));
    return status::ok;
}

Status CTARQSeries::get_Count(std::int32_t* value) {
    return guardedGet(value, [&] { return range_.count(); });
}

}  // namespace tarq
