// CTARQSetEnum: the object behind ITARQSetEnum, an enumerator too.
//
// It reads its set through the set's interface and sees what the set holds at the time; a position that the set has
// lost meanwhile fails as the set's Item does.
#pragma once

#include <cstdint>

#include "indexed/sets/positionwalk.h"
#include "tarq/frame/countedobject.h"
#include "tarq/frame/ienumvariant.h"
#include "tarq/interfaces/itarqset.h"
#include "tarq/interfaces/itarqsetenum.h"

namespace tarq {

class CTARQSetEnum final : public CountedObject<CTARQSetEnum, ITARQSetEnum, IEnumVARIANT> {
public:
    Status Init(IUnknown* TARQSet, const Variant& Start, const Variant& End, const Variant& Step) override;
    Status MoveFirst() override;
    Status MoveNext() override;
    Status get__NewEnum(Ref<IUnknown>* value) override;  // NOLINT(bugprone-reserved-identifier)
    Status get_CurrentItem(Variant* value) override;
    Status get_CurrentIndex(std::int32_t* value) override;
    Status get_IsLast(std::int32_t* value) override;
    Status get_IsBeyondLast(std::int32_t* value) override;

    Status Next(std::uint32_t count, Variant* values, std::uint32_t* fetched) override;
    Status Skip(std::uint32_t count) override;
    Status Reset() override;
    Status Clone(IEnumVARIANT** copy) override;

private:
    Ref<ITARQSet> parent_;  ///< set by a successful Init
    PositionWalk walk_;
};

}  // namespace tarq
