// CTARQVarSet: a family of columns.
#pragma once

#include "indexed/families/ctarqfamily.h"
#include "indexed/families/ctarqvarsetenum.h"
#include "tarq/interfaces/itarqvarset.h"

namespace tarq {

class CTARQVarSet final
    : public CTARQFamily<CTARQVarSet, ITARQVarSet, CTARQVarSetEnum, ITARQVarSetEnum, columnFamilies> {
public:
    Status get_Cost(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                    const Variant& Index5, Variant* value) override;
    Status put_Cost(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                    const Variant& Index5, const Variant& value) override;
    Status get_Type(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                    const Variant& Index5, Variant* value) override;
    Status put_Type(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                    const Variant& Index5, const Variant& value) override;
    Status get_RedCost(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                       const Variant& Index5, Variant* value) override;
    Status get_VarName(std::int32_t Index, std::string* value) override;
};

}  // namespace tarq
