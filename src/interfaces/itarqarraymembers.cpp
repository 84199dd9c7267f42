// The members of arrays and of their enumerators in published order.
#include "tarq/frame/memberbinding.h"
#include "tarq/interfaces/itarqarray.h"
#include "tarq/interfaces/itarqarrayenum.h"

namespace tarq {
namespace {

template <auto function>
MemberInfo indexedGet(std::string_view name, std::string_view help) {
    return get<function>(name, help, optional("Index1"), optional("Index2"), optional("Index3"), optional("Index4"),
                         optional("Index5"));
}

template <auto function>
MemberInfo indexedPut(std::string_view name, std::string_view help) {
    return put<function>(name, help, optional("Index1"), optional("Index2"), optional("Index3"), optional("Index4"),
                         optional("Index5"));
}

std::vector<MemberInfo> arrayMembers() {
    return {
        numbered(1, method<&ITARQArray::AddMatrix>("AddMatrix", "Adds a matrix of the same sizes.", "Matrix")),
        numbered(2,
                 method<&ITARQArray::AddScalar>(
                     "AddScalar", "Adds a number to every numeric cell; 0x0004200A when there are others.", "Value")),
        numbered(3, method<&ITARQArray::Clear>("Clear", "Removes all cells and dimensions.")),
        numbered(4,
                 method<&ITARQArray::CloneFrom>(
                     "CloneFrom",
                     "Takes over dimensions and values of an array, set, series, spreadsheet range or array of values.",
                     "Array")),
        numbered(5, method<&ITARQArray::Init>("Init",
                                              "Makes the array anew with one dimension an entry: a number n is the "
                                              "names 1 to n, an array or object gives its values as names.",
                                              "ListOfIndexsets")),
        numbered(6, method<&ITARQArray::MultiplyScalar>(
                        "MultiplyScalar", "Multiplies every numeric cell; 0x0004200A when there are others.", "Value")),
        numbered(7, method<&ITARQArray::MultiplyMatrices>("MultiplyMatrices", "Becomes the product of two matrices.",
                                                          "Matrix1", "Matrix2")),
        numbered(8, method<&ITARQArray::SetValues>("SetValues",
                                                   "Stores values in the cells, the last dimension fastest; cells "
                                                   "without a value stay as they are.",
                                                   "ListOfValues")),
        numbered(9, method<&ITARQArray::TransposeMatrix>("TransposeMatrix", "Exchanges the two dimensions.")),
        numbered(memberid::enumerator, get<&ITARQArray::get__NewEnum>("_NewEnum", "Enumerator over all cells.")),
        numbered(memberid::value, indexedGet<&ITARQArray::get_Value>("Value", "The selected cells, by names.")),
        numbered(memberid::value, indexedPut<&ITARQArray::put_Value>("Value", "The selected cells, by names.")),
        numbered(10, indexedGet<&ITARQArray::get_ValueByNumIndex>("ValueByNumIndex",
                                                                  "The selected cells, by positions from 1.")),
        numbered(10, indexedPut<&ITARQArray::put_ValueByNumIndex>("ValueByNumIndex",
                                                                  "The selected cells, by positions from 1.")),
        numbered(11, get<&ITARQArray::get_NumberOfIndexsets>("NumberOfIndexsets", "Number of dimensions.")),
        numbered(12, get<&ITARQArray::get_SizeOfIndexset>("SizeOfIndexset", "Number of elements of a dimension from 1.",
                                                          "Indexset")),
        numbered(13, get<&ITARQArray::get_IndexsetElement>("IndexsetElement", "Name of an element, both from 1.",
                                                           "Indexset", "Element")),
        numbered(13, put<&ITARQArray::put_IndexsetElement>("IndexsetElement", "Renames an element with all its cells.",
                                                           "Indexset", "Element")),
        numbered(14, get<&ITARQArray::get_ValueByFullIndexName>(
                         "ValueByFullIndexName", "One cell by its full name, as \".a.3\".", "Indexname")),
        numbered(15, returning<ITARQArrayEnum>(
                         indexedGet<&ITARQArray::get_Enum>("Enum", "A TARQArrayEnum over the selected cells."))),
        numbered(16, get<&ITARQArray::get_Count>("Count", "Number of cells.")),
    };
}

std::vector<MemberInfo> enumeratorMembers() {
    return {
        numbered(memberid::enumerator,
                 get<&ITARQArrayEnum::get__NewEnum>("_NewEnum", "The enumerator itself, started anew.")),
        numbered(1, method<&ITARQArrayEnum::Init>("Init", "Walks the selected cells of an array.", "TARQArray",
                                                  optional("Index1"), optional("Index2"), optional("Index3"),
                                                  optional("Index4"), optional("Index5"))),
        numbered(2, method<&ITARQArrayEnum::MoveFirst>("MoveFirst", "Goes to the first cell.")),
        numbered(3, method<&ITARQArrayEnum::MoveNext>("MoveNext", "Goes one cell on; status 1 at the end.")),
        numbered(21, get<&ITARQArrayEnum::get_CurrentItem>("CurrentItem", "Value of the current cell.")),
        numbered(22, get<&ITARQArrayEnum::get_CurrentIndexName>("CurrentIndexName",
                                                                "Full name of the current cell, as \".a.3\".")),
        numbered(23, get<&ITARQArrayEnum::get_IsLast>("IsLast", "-1 if the current cell is the last one, else 0.")),
        numbered(24, get<&ITARQArrayEnum::get_IsBeyondLast>("IsBeyondLast", "-1 if all cells are passed, else 0.")),
    };
}

}  // namespace

const InterfaceTable& ITARQArray::memberTable() {
    static const InterfaceTable table("ITARQArray", id, "A table of values indexed by names.", arrayMembers());
    return table;
}

const InterfaceTable& ITARQArrayEnum::memberTable() {
    static const InterfaceTable table("ITARQArrayEnum", id, "Walks selected cells of an array.", enumeratorMembers());
    return table;
}

}  // namespace tarq
