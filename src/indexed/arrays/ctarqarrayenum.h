// CTARQArrayEnum: walks selected cells of an array, in every language's for-each and by named steps.
#pragma once

#include "indexed/dimensions/ctarqenumbase.h"
#include "tarq/frame/countedobject.h"
#include "tarq/frame/ienumvariant.h"
#include "tarq/interfaces/classids.h"
#include "tarq/interfaces/itarqarray.h"
#include "tarq/interfaces/itarqarrayenum.h"

namespace tarq {

class CTARQArrayEnum final : public CTARQEnumBase<CTARQArrayEnum, ITARQArrayEnum, ITARQArray, classid::TARQArrayEnum> {
public:
    Status Next(std::uint32_t count, Variant* values, std::uint32_t* fetched) override;

    Status get__NewEnum(Ref<IUnknown>* value) override;  // NOLINT(bugprone-reserved-identifier)
    Status Init(IUnknown* TARQArray, const Variant& Index1, const Variant& Index2, const Variant& Index3,
                const Variant& Index4, const Variant& Index5) override;
    Status MoveFirst() override { return Reset(); }
    Status MoveNext() override;
    Status get_CurrentItem(Variant* value) override;
    Status get_CurrentIndexName(std::string* value) override;
    Status get_IsLast(std::int32_t* value) override;
    Status get_IsBeyondLast(std::int32_t* value) override;

private:
    Outcome requireItem() const;
};

}  // namespace tarq
