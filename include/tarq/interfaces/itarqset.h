// ITARQSet: an ordered list of texts and numbers.
//
// Order is kept and duplicates are allowed; positions count from 1. A whole number that fits 32 bits is kept as an
// integer, any other as a double; a text is never taken for a number, so "3" and 3 are different elements. A list
// argument takes single values, arrays by reference and objects that have values. The order of the functions is the
// published one and is part of the binary interface.
#pragma once

#include <cstdint>
#include <string>

#include "tarq/frame/dispatch.h"
#include "tarq/frame/export.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"

namespace tarq {

class ITARQSet : public IDispatch {
public:
    static constexpr Guid id{0x77EA8057, 0x44AB, 0x4FCC, {0x9F, 0xE4, 0x60, 0xB4, 0xBC, 0x79, 0x37, 0x3E}};

    /// The members as data.
    TARQ_API static const InterfaceTable& memberTable();

    /// Appends all values of the list. What stands before a value that is refused stays added.
    virtual Status Add(const ValueList& ListOfElements) = 0;

    /// Adds a number, or a vector of Count numbers element by element, to the numeric elements. Texts stay as they are;
    /// arrayCondition tells of them.
    virtual Status Addition(const Variant& Value) = 0;

    /// Removes all elements.
    virtual Status Clear() = 0;

    /// Inserts all values of the list behind position Index, from 1 to Count.
    virtual Status InsertAfter(std::int32_t Index, const ValueList& ListOfElements) = 0;

    /// Inserts all values of the list in front of position Index, from 1 to Count.
    virtual Status InsertBefore(std::int32_t Index, const ValueList& ListOfElements) = 0;

    /// Multiplies as Addition adds.
    virtual Status Multiplication(const Variant& Value) = 0;

    /// Removes every element that equals one of the values.
    virtual Status Del(const ValueList& varpar) = 0;

    /// An enumerator (IEnumVARIANT) over the elements as they are now.
    virtual Status get__NewEnum(Ref<IUnknown>* value) = 0;  // NOLINT(bugprone-reserved-identifier)

    /// Replaces the elements by the values of the list and hands back the set itself.
    virtual Status get_Set(const ValueList& varpar, Ref<IUnknown>* value) = 0;

    /// Number of elements.
    virtual Status get_Count(std::int32_t* value) = 0;

    /// Sum over all positions of element times entry of a vector of Count numbers.
    virtual Status get_DotProduct(const Variant& Vector, double* value) = 0;

    /// A new ITARQSetEnum from the item Start to the item End, every Step positions.
    virtual Status get_Enum(const Variant& Start, const Variant& End, const Variant& Step, Ref<IUnknown>* value) = 0;

    /// First position of an element that equals Item; 0 when there is none.
    virtual Status get_Index(const Variant& Item, std::int32_t* value) = 0;

    /// Element at position Index. Below 1 badArgument, above Count generalFailure.
    virtual Status get_Item(std::int32_t Index, Variant* value) = 0;
    virtual Status put_Item(std::int32_t Index, const Variant& value) = 0;

    /// First position from StartIndex on of an element that equals Item; 0 when there is none.
    virtual Status get_FindNextIndex(const Variant& Item, std::int32_t StartIndex, std::int32_t* value) = 0;

    /// 1 if every value of the list is an element, else 0.
    virtual Status get_Contains(const ValueList& varpar, std::int32_t* value) = 0;

    /// 1 if every element is a value of the list, else 0.
    virtual Status get_IsIn(const ValueList& varpar, std::int32_t* value) = 0;

protected:
    ~ITARQSet() = default;
};

}  // namespace tarq
