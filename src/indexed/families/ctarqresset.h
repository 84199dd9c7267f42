// CTARQResSet: a family of rows.
#pragma once

#include "indexed/families/ctarqfamily.h"
#include "indexed/families/ctarqressetenum.h"
#include "tarq/interfaces/itarqresset.h"

namespace tarq {

class CTARQResSet final : public CTARQFamily<CTARQResSet, ITARQResSet, CTARQResSetEnum, ITARQResSetEnum, rowFamilies> {
public:
    Status SetLT(const Variant& Bound, const Variant& Index1, const Variant& Index2, const Variant& Index3,
                 const Variant& Index4, const Variant& Index5) override;
    Status SetEQ(const Variant& Bound, const Variant& Index1, const Variant& Index2, const Variant& Index3,
                 const Variant& Index4, const Variant& Index5) override;
    Status SetGT(const Variant& Bound, const Variant& Index1, const Variant& Index2, const Variant& Index3,
                 const Variant& Index4, const Variant& Index5) override;
    Status Sum(const ValueList& CoeffsAndCols) override;
    Status get_Dual(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                    const Variant& Index5, Variant* value) override;

private:
    Outcome addTerms(const ValueList& coeffsAndCols);
};

}  // namespace tarq
