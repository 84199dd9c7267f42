// ITARQResSet: an indexed block of rows of a model, with one member for each combination of index elements.
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

class ITARQResSet : public IDispatch {
public:
    static constexpr Guid id{0xBEC3B05C, 0x8543, 0x4477, {0xA7, 0xA4, 0x45, 0x7C, 0x4F, 0x0F, 0xF7, 0xF6}};

    /// The members as data.
    TARQ_API static const InterfaceTable& memberTable();

    /// A new enumerator (ITARQResSetEnum, IEnumVARIANT) over all members.
    virtual Status get__NewEnum(Ref<IUnknown>* value) = 0;  // NOLINT(bugprone-reserved-identifier)

    /// Adds the members to a model, with one dimension an entry of `Indexsets`: a number n is the names 1 to n, an
    /// array by reference or an object gives its values as names. The name has at most 64 characters. A failure keeps
    /// the dimensions and the members that it got to; Clear undoes them.
    virtual Status Init(IUnknown* TARQModel, const std::string& Name, const ValueList& Indexsets) = 0;

    /// Removes the members from the model, and the family's name and dimensions. It can be initialized again.
    virtual Status Clear() = 0;

    /// Lower bound -1e25 and upper bound `Bound` for the selected rows, as two puts.
    virtual Status SetLT(const Variant& Bound, const Variant& Index1 = Variant::missing(),
                         const Variant& Index2 = Variant::missing(), const Variant& Index3 = Variant::missing(),
                         const Variant& Index4 = Variant::missing(), const Variant& Index5 = Variant::missing()) = 0;

    /// Both bounds `Bound`.
    virtual Status SetEQ(const Variant& Bound, const Variant& Index1 = Variant::missing(),
                         const Variant& Index2 = Variant::missing(), const Variant& Index3 = Variant::missing(),
                         const Variant& Index4 = Variant::missing(), const Variant& Index5 = Variant::missing()) = 0;

    /// Upper bound 1e25 and lower bound `Bound`, as two puts.
    virtual Status SetGT(const Variant& Bound, const Variant& Index1 = Variant::missing(),
                         const Variant& Index2 = Variant::missing(), const Variant& Index3 = Variant::missing(),
                         const Variant& Index4 = Variant::missing(), const Variant& Index5 = Variant::missing()) = 0;

    /// Adds each coefficient that the list names to every row: coefficients and columns in turn, a number or several
    /// and then a name, several, or an object that has some. The coefficient 1 may be left out. A failure keeps the
    /// coefficients added before it.
    virtual Status Sum(const ValueList& CoeffsAndCols) = 0;

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

    /// States in the basis (TARQColRowStatusType) as Longs.
    virtual Status get_Status(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                              const Variant& Index4, const Variant& Index5, Variant* value) = 0;

    /// Activities in the integer solution.
    virtual Status get_IPSol(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, Variant* value) = 0;

    /// Activities in the LP solution.
    virtual Status get_LPSol(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, Variant* value) = 0;

    /// Shadow prices.
    virtual Status get_Dual(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                            const Variant& Index5, Variant* value) = 0;

    /// Number of members; 0 before Init.
    virtual Status get_Count(std::int32_t* value) = 0;

    /// Number of dimensions; 0 before Init.
    virtual Status get_NumberOfIndexsets(std::int32_t* value) = 0;

    /// Number of elements of a dimension, which is numbered from 1.
    virtual Status get_SizeOfIndexset(std::int32_t Indexset, std::int32_t* value) = 0;

    /// Name of an element; dimensions and elements are numbered from 1.
    virtual Status get_IndexsetElement(std::int32_t Indexset, std::int32_t Element, std::string* value) = 0;

    /// A new ITARQResSetEnum over the selected members.
    virtual Status get_Enum(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                            const Variant& Index5, Ref<IUnknown>* value) = 0;

    /// The model, null before Init.
    virtual Status get_Parent(Ref<IUnknown>* value) = 0;

    /// A new row object (ITARQRes) attached to a member by its number, from 1, or to any row of the model by its
    /// name. A put copies the object's bounds and leaves the name.
    virtual Status get_Item(const Variant& Index, Ref<IUnknown>* value) = 0;
    virtual Status put_Item(const Variant& Index, IUnknown* value) = 0;

    /// The same for the one member that the indices select.
    virtual Status get_ItemByIndex(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                                   const Variant& Index4, const Variant& Index5, Ref<IUnknown>* value) = 0;
    virtual Status put_ItemByIndex(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                                   const Variant& Index4, const Variant& Index5, IUnknown* value) = 0;

protected:
    ~ITARQResSet() = default;
};

}  // namespace tarq
