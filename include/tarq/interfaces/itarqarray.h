// ITARQArray: a table of values with any number of dimensions, each indexed by names.
//
// An index argument is a name, a number (which is the name that it reads as, not a position), an array of them, an
// object that has values, or missing, which is the whole dimension. A cell holds a text, a number or Empty. One
// selected cell reads as its value, more as an array of Variants with as many dimensions as the table has. The order of
// the functions is the published one and is part of the binary interface.
#pragma once

#include <cstdint>
#include <string>

#include "tarq/frame/dispatch.h"
#include "tarq/frame/export.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"

namespace tarq {

class ITARQArray : public IDispatch {
public:
    static constexpr Guid id{0x74D0E56B, 0x43B2, 0x42C3, {0xBD, 0x55, 0x89, 0x6A, 0x79, 0xF9, 0x5E, 0x5A}};

    /// The members as data.
    TARQ_API static const InterfaceTable& memberTable();

    /// Adds a matrix of the same sizes cell by cell.
    virtual Status AddMatrix(const Variant& Matrix) = 0;

    /// Adds a number to every numeric cell; arrayCondition when there are others.
    virtual Status AddScalar(double Value) = 0;

    /// Removes all cells and dimensions.
    virtual Status Clear() = 0;

    /// Takes over the dimensions and values of an array, set, series, spreadsheet range or array of values.
    virtual Status CloneFrom(const Variant& Array) = 0;

    /// Makes the table anew with one dimension an entry: a number n is the names 1 to n, an array by reference or an
    /// object gives its values as names. All cells are Empty.
    virtual Status Init(const ValueList& ListOfIndexsets) = 0;

    /// Multiplies every numeric cell by a number; arrayCondition when there are others.
    virtual Status MultiplyScalar(double Value) = 0;

    /// Becomes the product of two matrices, indexed from 1.
    virtual Status MultiplyMatrices(const Variant& Matrix1, const Variant& Matrix2) = 0;

    /// Stores the values of the list in the cells, the last dimension fastest. Cells without a value stay as they are.
    virtual Status SetValues(const ValueList& ListOfValues) = 0;

    /// Exchanges the two dimensions.
    virtual Status TransposeMatrix() = 0;

    /// A new enumerator (ITARQArrayEnum, IEnumVARIANT) over all cells.
    virtual Status get__NewEnum(Ref<IUnknown>* value) = 0;  // NOLINT(bugprone-reserved-identifier)

    /// The selected cells. A put repeats a single value for all of them.
    virtual Status get_Value(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, Variant* value) = 0;
    virtual Status put_Value(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, const Variant& value) = 0;

    /// The same by positions from 1.
    virtual Status get_ValueByNumIndex(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                                       const Variant& Index4, const Variant& Index5, Variant* value) = 0;
    virtual Status put_ValueByNumIndex(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                                       const Variant& Index4, const Variant& Index5, const Variant& value) = 0;

    /// Number of dimensions; 0 before Init.
    virtual Status get_NumberOfIndexsets(std::int32_t* value) = 0;

    /// Number of elements of a dimension, which is numbered from 1.
    virtual Status get_SizeOfIndexset(std::int32_t Indexset, std::int32_t* value) = 0;

    /// Name of an element; dimensions and elements are numbered from 1. A put renames it with all its cells.
    virtual Status get_IndexsetElement(std::int32_t Indexset, std::int32_t Element, std::string* value) = 0;
    virtual Status put_IndexsetElement(std::int32_t Indexset, std::int32_t Element, const std::string& value) = 0;

    /// One cell by its full name: for each dimension a point and the element's name, as ".a.3".
    virtual Status get_ValueByFullIndexName(const std::string& Indexname, Variant* value) = 0;

    /// A new ITARQArrayEnum over the selected cells.
    virtual Status get_Enum(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                            const Variant& Index5, Ref<IUnknown>* value) = 0;

    /// Number of cells.
    virtual Status get_Count(std::int32_t* value) = 0;

protected:
    ~ITARQArray() = default;
};

}  // namespace tarq
