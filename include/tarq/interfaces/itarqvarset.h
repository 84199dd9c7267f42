// ITARQVarSet: an indexed block of columns of a model, with one member for each combination of index elements.
//
// A member's name, under which the model knows it too, is the family's name and for each dimension a point and the
// element: "x.a.3". An index argument is a name, a number (which is the name that it reads as, not a position), an
// array of them, an object that has values, or missing, which is the whole dimension. Selected values read as one
// scalar where all are equal, however many they are, else as an array with as many dimensions as the family has and
// lower bounds 0. A put takes one value for all selected members, or as many as there are. The data is the model's: its
// failures, and its successes with a message, are passed on. The order of the functions is the published one and is
// part of the binary interface.
#pragma once

#include <cstdint>
#include <string>

#include "tarq/frame/dispatch.h"
#include "tarq/frame/export.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"

namespace tarq {

class ITARQVarSet : public IDispatch {
public:
    static constexpr Guid id{0xE0E5C7F2, 0xECD0, 0x4158, {0xBB, 0xD5, 0x8B, 0xC3, 0x2F, 0x79, 0x87, 0x96}};

    /// The members as data.
    TARQ_API static const InterfaceTable& memberTable();

    /// A new enumerator (ITARQVarSetEnum, IEnumVARIANT) over all members.
    virtual Status get__NewEnum(Ref<IUnknown>* value) = 0;  // NOLINT(bugprone-reserved-identifier)

    /// Adds the members to a model, with one dimension an entry of `Indexsets`: a number n is the names 1 to n, an
    /// array by reference or an object gives its values as names. The name has at most 64 characters. A failure keeps
    /// the dimensions and the members that it got to; Clear undoes them.
    virtual Status Init(IUnknown* TARQModel, const std::string& Name, const ValueList& Indexsets) = 0;

    /// Removes the members from the model, and the family's name and dimensions. It can be initialized again.
    virtual Status Clear() = 0;

    /// Name of the family. A put renames all its members.
    virtual Status get_Name(std::string* value) = 0;
    virtual Status put_Name(const std::string& value) = 0;

    /// Lower bounds.
    virtual Status get_LB(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                          const Variant& Index5, Variant* value) = 0;
    virtual Status put_LB(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                          const Variant& Index5, const Variant& value) = 0;

    /// Upper bounds.
    virtual Status get_UB(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                          const Variant& Index5, Variant* value) = 0;
    virtual Status put_UB(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                          const Variant& Index5, const Variant& value) = 0;

    /// Objective coefficients.
    virtual Status get_Cost(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                            const Variant& Index5, Variant* value) = 0;
    virtual Status put_Cost(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                            const Variant& Index5, const Variant& value) = 0;

    /// Types (TARQColType) as Longs. Binary sets the bounds to 0 and 1.
    virtual Status get_Type(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                            const Variant& Index5, Variant* value) = 0;
    virtual Status put_Type(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                            const Variant& Index5, const Variant& value) = 0;

    /// States in the basis (TARQColRowStatusType) as Longs.
    virtual Status get_Status(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                              const Variant& Index4, const Variant& Index5, Variant* value) = 0;

    /// Values in the integer solution.
    virtual Status get_IPSol(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, Variant* value) = 0;

    /// Values in the LP solution.
    virtual Status get_LPSol(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, Variant* value) = 0;

    /// Reduced costs.
    virtual Status get_RedCost(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                               const Variant& Index4, const Variant& Index5, Variant* value) = 0;

    /// Number of members; 0 before Init.
    virtual Status get_Count(std::int32_t* value) = 0;

    /// Number of dimensions; 0 before Init.
    virtual Status get_NumberOfIndexsets(std::int32_t* value) = 0;

    /// Number of elements of a dimension, which is numbered from 1.
    virtual Status get_SizeOfIndexset(std::int32_t Indexset, std::int32_t* value) = 0;

    /// Name of an element; dimensions and elements are numbered from 1.
    virtual Status get_IndexsetElement(std::int32_t Indexset, std::int32_t Element, std::string* value) = 0;

    /// A new ITARQVarSetEnum over the selected members.
    virtual Status get_Enum(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                            const Variant& Index5, Ref<IUnknown>* value) = 0;

    /// Name of the member with this number, from 1.
    virtual Status get_VarName(std::int32_t Index, std::string* value) = 0;

    /// The model, null before Init.
    virtual Status get_Parent(Ref<IUnknown>* value) = 0;

    /// A new column object (ITARQVar) attached to a member by its number, from 1, or to any column of the model by its
    /// name. A put copies the object's bounds, cost and type and leaves the name.
    virtual Status get_Item(const Variant& Index, Ref<IUnknown>* value) = 0;
    virtual Status put_Item(const Variant& Index, IUnknown* value) = 0;

    /// The same for the one member that the indices select.
    virtual Status get_ItemByIndex(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                                   const Variant& Index4, const Variant& Index5, Ref<IUnknown>* value) = 0;
    virtual Status put_ItemByIndex(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                                   const Variant& Index4, const Variant& Index5, IUnknown* value) = 0;

protected:
    ~ITARQVarSet() = default;
};

}  // namespace tarq
