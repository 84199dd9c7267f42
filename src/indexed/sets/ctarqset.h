// CTARQSet: the object behind ITARQSet.
//
// It owns its elements; what it does with them is in setelements.h and setarithmetic.h.
#pragma once

#include <cstdint>

#include "indexed/sets/elementlist.h"
#include "tarq/frame/countedobject.h"
#include "tarq/interfaces/itarqset.h"

namespace tarq {

class CTARQSet final : public CountedObject<CTARQSet, ITARQSet> {
public:
    Status Add(const ValueList& ListOfElements) override;
    Status Addition(const Variant& Value) override;
    Status Clear() override;
    Status InsertAfter(std::int32_t Index, const ValueList& ListOfElements) override;
    Status InsertBefore(std::int32_t Index, const ValueList& ListOfElements) override;
    Status Multiplication(const Variant& Value) override;
    Status Del(const ValueList& varpar) override;
    Status get__NewEnum(Ref<IUnknown>* value) override;  // NOLINT(bugprone-reserved-identifier)
    Status get_Set(const ValueList& varpar, Ref<IUnknown>* value) override;
    Status get_Count(std::int32_t* value) override;
    Status get_DotProduct(const Variant& Vector, double* value) override;
    Status get_Enum(const Variant& Start, const Variant& End, const Variant& Step, Ref<IUnknown>* value) override;
    Status get_Index(const Variant& Item, std::int32_t* value) override;
    Status get_Item(std::int32_t Index, Variant* value) override;
    Status put_Item(std::int32_t Index, const Variant& value) override;
    Status get_FindNextIndex(const Variant& Item, std::int32_t StartIndex, std::int32_t* value) override;
    Status get_Contains(const ValueList& varpar, std::int32_t* value) override;
    Status get_IsIn(const ValueList& varpar, std::int32_t* value) override;

private:
    ElementList elements_;
};

}  // namespace tarq
