// CTARQSeriesEnum: the object behind ITARQSeriesEnum, an enumerator too.
#pragma once

#include <cstdint>

#include "indexed/sets/serieswalk.h"
#include "indexed/values/iserieslength.h"
#include "tarq/frame/countedobject.h"
#include "tarq/frame/ienumvariant.h"
#include "tarq/interfaces/itarqseriesenum.h"

namespace tarq {

class CTARQSeriesEnum final : public CountedObject<CTARQSeriesEnum, ITARQSeriesEnum, IEnumVARIANT, ISeriesLength> {
public:
    Status Init(double Start, double End, double Step) override;

    /// Clients know *fetched as one more than the number of members handed out.
    Status Next(std::uint32_t count, Variant* values, std::uint32_t* fetched) override;
    /// `fewerLeft` also where the end itself is the member that comes next.
    Status Skip(std::uint32_t count) override;
    Status Reset() override;
    Status Clone(IEnumVARIANT** copy) override;

    const IUnknown* published() const override { return static_cast<const ITARQSeriesEnum*>(this); }
    std::int32_t memberCount() const override { return walk_.range.count(); }

private:
    SeriesWalk walk_;
    bool initialized_ = false;
};

}  // namespace tarq
