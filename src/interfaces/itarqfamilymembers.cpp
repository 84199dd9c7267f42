// The members of families and of their enumerators in published order; what both kinds have is written once.
#include <iterator>
#include <utility>

#include "tarq/frame/memberbinding.h"
#include "tarq/interfaces/itarqmodel.h"
#include "tarq/interfaces/itarqres.h"
#include "tarq/interfaces/itarqresset.h"
#include "tarq/interfaces/itarqressetenum.h"
#include "tarq/interfaces/itarqvar.h"
#include "tarq/interfaces/itarqvarset.h"
#include "tarq/interfaces/itarqvarsetenum.h"

namespace tarq {
namespace {

constexpr MemberFlags restricted{.restricted = true};

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

template <auto function>
MemberInfo boundMethod(std::string_view name, std::string_view help) {
    return method<function>(name, help, "Bound", optional("Index1"), optional("Index2"), optional("Index3"),
                            optional("Index4"), optional("Index5"));
}

using Members = std::vector<MemberInfo>;

void append(Members& members, Members more) {
    members.insert(members.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

template <class Family>
Members firstMembers(std::int32_t clearId) {
    return {
        numbered(memberid::enumerator,
                 flagged(restricted, get<&Family::get__NewEnum>("_NewEnum", "Enumerator over all members."))),
        numbered(1, method<&Family::Init>("Init",
                                          "Adds the members to a model with one dimension an entry: a number n is the "
                                          "names 1 to n, an array or object gives its values as names.",
                                          "TARQModel", "Name", "Indexsets")),
        numbered(clearId, method<&Family::Clear>("Clear", "Removes the members from the model.")),
    };
}

/// Name and bounds, from number 10 on.
template <class Family>
Members nameAndBounds() {
    return {
        numbered(10, get<&Family::get_Name>("Name", "Name of the family, with which all members' names begin.")),
        numbered(10, put<&Family::put_Name>("Name", "Renames all members; at most 64 characters.")),
        numbered(11, indexedGet<&Family::get_LB>(
                         "LB", "Lower bounds; one number where all selected are equal, else an array.")),
        numbered(11, indexedPut<&Family::put_LB>("LB", "Lower bounds, one for all selected or one for each.")),
        numbered(12, indexedGet<&Family::get_UB>(
                         "UB", "Upper bounds; one number where all selected are equal, else an array.")),
        numbered(12, indexedPut<&Family::put_UB>("UB", "Upper bounds, one for all selected or one for each.")),
    };
}

template <class Family>
Members solutionValues(std::int32_t firstId) {
    return {
        numbered(firstId, indexedGet<&Family::get_Status>("Status", "States in the basis; 0x00042003 without any.")),
        numbered(firstId + 1, indexedGet<&Family::get_IPSol>(
                                  "IPSol", "Integer solution, as a number or an array; 0x00042004 without any.")),
        numbered(firstId + 2, indexedGet<&Family::get_LPSol>(
                                  "LPSol", "LP solution, as a number or an array; 0x00042003 without any.")),
    };
}

template <class Family, class Enumerator>
Members shape(std::int32_t firstId) {
    return {
        numbered(firstId, get<&Family::get_Count>("Count", "Number of members.")),
        numbered(firstId + 1, get<&Family::get_NumberOfIndexsets>("NumberOfIndexsets", "Number of dimensions.")),
        numbered(firstId + 2, get<&Family::get_SizeOfIndexset>(
                                  "SizeOfIndexset", "Number of elements of a dimension from 1.", "Indexset")),
        numbered(firstId + 3, get<&Family::get_IndexsetElement>("IndexsetElement", "Name of an element, both from 1.",
                                                                "Indexset", "Element")),
        numbered(firstId + 4, returning<Enumerator>(
                                  indexedGet<&Family::get_Enum>("Enum", "An enumerator over the selected members."))),
    };
}

template <class Family, class Item>
Members items(std::int32_t firstId) {
    constexpr std::string_view byNumber = "A member by its number from 1, or any other by its name in the model.";
    constexpr std::string_view byIndex = "The member that the indices select.";
    return {
        numbered(firstId, returning<ITARQModel>(get<&Family::get_Parent>("Parent", "The model."))),
        numbered(firstId + 1, returning<Item>(get<&Family::get_Item>("Item", byNumber, "Index"))),
        numbered(firstId + 1, put<&Family::put_Item>("Item", byNumber, "Index")),
        numbered(memberid::value, returning<Item>(indexedGet<&Family::get_ItemByIndex>("ItemByIndex", byIndex))),
        numbered(memberid::value, indexedPut<&Family::put_ItemByIndex>("ItemByIndex", byIndex)),
    };
}

Members columnFamilyMembers() {
    Members all = firstMembers<ITARQVarSet>(3);
    append(all, nameAndBounds<ITARQVarSet>());
    append(all,
           {
               numbered(13,
                        indexedGet<&ITARQVarSet::get_Cost>(
                            "Cost", "Objective coefficients; one number where all selected are equal, else an array.")),
               numbered(13, indexedPut<&ITARQVarSet::put_Cost>(
                                "Cost", "Objective coefficients, one for all selected or one for each.")),
               numbered(14, indexedGet<&ITARQVarSet::get_Type>("Type", "Types of the columns.")),
               numbered(14, indexedPut<&ITARQVarSet::put_Type>("Type", "Binary sets the bounds to 0 and 1.")),
           });
    append(all, solutionValues<ITARQVarSet>(15));
    append(all,
           {numbered(18, indexedGet<&ITARQVarSet::get_RedCost>("RedCost", "Reduced costs; 0x00042003 without any."))});
    append(all, shape<ITARQVarSet, ITARQVarSetEnum>(19));
    append(all, {numbered(24, get<&ITARQVarSet::get_VarName>("VarName", "Name of a member, from 1.", "Index"))});
    append(all, items<ITARQVarSet, ITARQVar>(25));
    return all;
}

Members rowFamilyMembers() {
    Members all = firstMembers<ITARQResSet>(2);
    append(all,
           {
               numbered(3, boundMethod<&ITARQResSet::SetLT>("SetLT", "Bounds -1e25 and Bound.")),
               numbered(4, boundMethod<&ITARQResSet::SetEQ>("SetEQ", "Both bounds Bound.")),
               numbered(5, boundMethod<&ITARQResSet::SetGT>("SetGT", "Bounds Bound and 1e25.")),
               numbered(6, method<&ITARQResSet::Sum>(
                               "Sum", "Adds coefficients and columns, given in turn, to every row.", "CoeffsAndCols")),
           });
    append(all, nameAndBounds<ITARQResSet>());
    append(all, solutionValues<ITARQResSet>(13));
    append(all, {numbered(16, indexedGet<&ITARQResSet::get_Dual>("Dual", "Shadow prices; 0x00042003 without any."))});
    append(all, shape<ITARQResSet, ITARQResSetEnum>(17));
    append(all, items<ITARQResSet, ITARQRes>(22));
    return all;
}

template <class Enumerator>
Members enumeratorMembers(std::string_view parent) {
    return {
        numbered(memberid::enumerator,
                 get<&Enumerator::get__NewEnum>("_NewEnum", "The enumerator itself, started anew.")),
        numbered(
            1, method<&Enumerator::Init>("Init", "Walks the selected members of a family.",
                                         binding::ParameterName(parent, false), optional("Index1"), optional("Index2"),
                                         optional("Index3"), optional("Index4"), optional("Index5"))),
        numbered(2, method<&Enumerator::VB_Reset>("VB_Reset", "Starts anew.")),
        numbered(3, method<&Enumerator::VB_Skip>(
                        "VB_Skip", "Passes over items; status 1, without a move, where that would reach the end.",
                        "ItemsToSkip")),
        numbered(4, method<&Enumerator::VB_Next>("VB_Next", "The next item; status 1 at the end.", "Items",
                                                 "NumberOfItemsFetched")),
        numbered(10, get<&Enumerator::get_Count>("Count", "Number of selected members.")),
        numbered(11, get<&Enumerator::get_ItemName>("ItemName", "Name of a selected member, from 1.", "ItemIndex")),
    };
}

}  // namespace

const InterfaceTable& ITARQVarSet::memberTable() {
    static const InterfaceTable table("ITARQVarSet", id, "An indexed block of columns.", columnFamilyMembers());
    return table;
}

const InterfaceTable& ITARQResSet::memberTable() {
    static const InterfaceTable table("ITARQResSet", id, "An indexed block of rows.", rowFamilyMembers());
    return table;
}

const InterfaceTable& ITARQVarSetEnum::memberTable() {
    static const InterfaceTable table("ITARQVarSetEnum", id, "Walks selected members of a family of columns.",
                                      enumeratorMembers<ITARQVarSetEnum>("TARQVarSet"));
    return table;
}

const InterfaceTable& ITARQResSetEnum::memberTable() {
    static const InterfaceTable table("ITARQResSetEnum", id, "Walks selected members of a family of rows.",
                                      enumeratorMembers<ITARQResSetEnum>("TARQResSet"));
    return table;
}

}  // namespace tarq
