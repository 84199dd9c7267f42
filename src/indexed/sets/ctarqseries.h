// CTARQSeries: the object behind ITARQSeries. It holds three numbers; its enumerator makes the members.
#pragma once

#include <cstdint>

#include "indexed/sets/serieswalk.h"
#include "tarq/frame/countedobject.h"
#include "tarq/interfaces/itarqseries.h"

namespace tarq {

class CTARQSeries final : public CountedObject<CTARQSeries, ITARQSeries> {
public:
    Status Init(double Start, double End, const Variant& Step) override;
    Status get__NewEnum(Ref<IUnknown>* value) override;  // NOLINT(bugprone-reserved-identifier)
    Status get_Series(double Start, double End, const Variant& Step, Ref<IUnknown>* value) override;
    Status get_Count(std::int32_t* value) override;

private:
    SeriesRange range_;
    bool initialized_ = false;
};

}  // namespace tarq
