// The members of sets and of their enumerators in published order.
#include "tarq/frame/memberbinding.h"
#include "tarq/interfaces/itarqset.h"
#include "tarq/interfaces/itarqsetenum.h"

namespace tarq {
namespace {

std::vector<MemberInfo> setMembers() {
    return {
        numbered(1, method<&ITARQSet::Add>("Add", "Appends values, arrays of values and values of objects.",
                                           "ListOfElements")),
        numbered(4, method<&ITARQSet::Addition>(
                        "Addition",
                        "Adds a number, or a vector of Count numbers element by element. Texts stay as they "
                        "are; 0x0004200A tells of them.",
                        "Value")),
        numbered(5, method<&ITARQSet::Clear>("Clear", "Removes all elements.")),
        numbered(6, method<&ITARQSet::InsertAfter>("InsertAfter", "Inserts values behind a position from 1 to Count.",
                                                   "Index", "ListOfElements")),
        numbered(
            8, method<&ITARQSet::InsertBefore>("InsertBefore", "Inserts values in front of a position from 1 to Count.",
                                               "Index", "ListOfElements")),
        numbered(10, method<&ITARQSet::Multiplication>("Multiplication", "Multiplies as Addition adds.", "Value")),
        numbered(11, method<&ITARQSet::Del>("Del", "Removes every element that equals one of the values.", "varpar")),
        numbered(memberid::enumerator, get<&ITARQSet::get__NewEnum>("_NewEnum", "Enumerator over the elements.")),
        numbered(memberid::value, returning<ITARQSet>(get<&ITARQSet::get_Set>(
                                      "Set", "Replaces the elements and hands back the set itself.", "varpar"))),
        numbered(21, get<&ITARQSet::get_Count>("Count", "Number of elements.")),
        numbered(22, get<&ITARQSet::get_DotProduct>("DotProduct", "Sum of element times entry of a vector.", "Vector")),
        numbered(23, returning<ITARQSetEnum>(get<&ITARQSet::get_Enum>(
                         "Enum", "A TARQSetEnum from an item to an item, every Step positions.", optional("Start"),
                         optional("End"), optional("Step")))),
        numbered(
            24, get<&ITARQSet::get_Index>("Index", "First position of an item from 1; 0 when it isn't there.", "Item")),
        numbered(25, get<&ITARQSet::get_Item>("Item", "Element at a position from 1.", "Index")),
        numbered(25, put<&ITARQSet::put_Item>("Item", "Element at a position from 1.", "Index")),
        numbered(26, get<&ITARQSet::get_FindNextIndex>(
                         "FindNextIndex", "First position of an item from StartIndex on; 0 when it isn't there.",
                         "Item", "StartIndex")),
        numbered(27, get<&ITARQSet::get_Contains>("Contains", "1 if all values are elements, else 0.", "varpar")),
        numbered(29, get<&ITARQSet::get_IsIn>("IsIn", "1 if all elements are among the values, else 0.", "varpar")),
    };
}

std::vector<MemberInfo> enumeratorMembers() {
    return {
        numbered(1, method<&ITARQSetEnum::Init>(
                        "Init", "Walks a set from the first element Start to the first element End, every Step.",
                        "TARQSet", optional("Start"), optional("End"), optional("Step"))),
        numbered(2, method<&ITARQSetEnum::MoveFirst>("MoveFirst", "Goes to the start.")),
        numbered(3, method<&ITARQSetEnum::MoveNext>("MoveNext", "Goes one item on; status 1 at the end.")),
        numbered(memberid::enumerator,
                 get<&ITARQSetEnum::get__NewEnum>("_NewEnum", "The enumerator itself, started anew.")),
        numbered(21, get<&ITARQSetEnum::get_CurrentItem>("CurrentItem", "The current item.")),
        numbered(22, get<&ITARQSetEnum::get_CurrentIndex>("CurrentIndex", "Position of the current item from 1.")),
        numbered(23, get<&ITARQSetEnum::get_IsLast>("IsLast", "-1 if the current item is the last one, else 0.")),
        numbered(24, get<&ITARQSetEnum::get_IsBeyondLast>("IsBeyondLast", "-1 if all items are passed, else 0.")),
    };
}

}  // namespace

const InterfaceTable& ITARQSet::memberTable() {
    static const InterfaceTable table("ITARQSet", id, "An ordered list of texts and numbers.", setMembers());
    return table;
}

const InterfaceTable& ITARQSetEnum::memberTable() {
    static const InterfaceTable table("ITARQSetEnum", id, "Walks a part of a set.", enumeratorMembers());
    return table;
}

}  // namespace tarq
