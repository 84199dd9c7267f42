// The members of column and row objects in published order.
#include "tarq/frame/memberbinding.h"
#include "tarq/interfaces/enumerationtables.h"
#include "tarq/interfaces/itarqmodel.h"
#include "tarq/interfaces/itarqres.h"
#include "tarq/interfaces/itarqvar.h"

namespace tarq {
namespace {

constexpr MemberFlags hidden{.hidden = true};

std::vector<MemberInfo> columnMembers() {
    return {
        method<&ITARQVar::Attach>("Attach", "Makes the object stand for a column of a model, which keeps its data.",
                                  "TARQModel", "Col"),
        method<&ITARQVar::Detach>("Detach", "Takes a copy of the column and lets go of the model."),
        flagged(hidden, method<&ITARQVar::SetITARQModel>(
                            "SetITARQModel", "For models: stands for a column of the model without a copy of the old.",
                            "ITARQModel", "lColIndex1")),
        get<&ITARQVar::get_LB>("LB", "Lower bound."),
        put<&ITARQVar::put_LB>("LB", "Refused above the upper bound; 0 alone for a Binary column."),
        get<&ITARQVar::get_UB>("UB", "Upper bound."),
        put<&ITARQVar::put_UB>("UB", "Refused below the lower bound; 1 alone for a Binary column."),
        get<&ITARQVar::get_Cost>("Cost", "Objective coefficient."),
        put<&ITARQVar::put_Cost>("Cost", "Objective coefficient."),
        get<&ITARQVar::get_Type>("Type", "Type of the column."),
        put<&ITARQVar::put_Type>("Type", "Binary sets the bounds to 0 and 1."),
        get<&ITARQVar::get_Name>("Name", "Name of the column."),
        put<&ITARQVar::put_Name>("Name",
                                 "At most 64 characters. Attached, a name that is taken leaves the column without a "
                                 "name, and a column of a family keeps its name."),
        get<&ITARQVar::get_LPSol>("LPSol", "Value in the LP solution; 0x00042003 when there is none."),
        get<&ITARQVar::get_IPSol>("IPSol", "Value in the integer solution; 0x00042004 when there is none."),
        get<&ITARQVar::get_Status>("Status", "State in the basis; 0x00042003 when there is none."),
        get<&ITARQVar::get_RedCost>("RedCost", "Reduced cost; 0x00042003 when there is none."),
        get<&ITARQVar::get_ModelIndex>("ModelIndex", "Number of the column in its model, from 1."),
        put<&ITARQVar::put_ModelIndex>("ModelIndex", "Makes the object stand for another column; no data moves."),
        get<&ITARQVar::get_IsAttached>("IsAttached", "1 while the object stands for a column of a model, else 0."),
        returning<ITARQModel>(get<&ITARQVar::get_Parent>("Parent", "The model, null when detached.")),
    };
}

std::vector<MemberInfo> rowMembers() {
    return {
        method<&ITARQRes::Attach>("Attach", "Makes the object stand for a row of a model, which keeps its data.",
                                  "TARQModel", "Row"),
        method<&ITARQRes::Detach>("Detach", "Takes a copy of the row and lets go of the model."),
        method<&ITARQRes::SetLT>("SetLT", "Bounds -1e25 and Bound.", "Bound"),
        method<&ITARQRes::SetEQ>("SetEQ", "Both bounds Bound.", "Bound"),
        method<&ITARQRes::SetGT>("SetGT", "Bounds Bound and 1e25.", "Bound"),
        flagged(hidden, method<&ITARQRes::SetITARQModel>(
                            "SetITARQModel", "For models: stands for a row of the model without a copy of the old.",
                            "ITARQModel", "lRowIndex1")),
        method<&ITARQRes::Sum>("Sum", "Adds coefficients and columns, given in turn, to the row.", "CoeffsAndCols"),
        get<&ITARQRes::get_LB>("LB", "Lower bound."),
        put<&ITARQRes::put_LB>("LB", "Refused above the upper bound."),
        get<&ITARQRes::get_UB>("UB", "Upper bound."),
        put<&ITARQRes::put_UB>("UB", "Refused below the lower bound."),
        get<&ITARQRes::get_Name>("Name", "Name of the row."),
        put<&ITARQRes::put_Name>("Name",
                                 "At most 64 characters. Attached, a name that is taken leaves the row without a name, "
                                 "and a row of a family keeps its name."),
        get<&ITARQRes::get_LPSol>("LPSol", "Activity in the LP solution; 0x00042003 when there is none."),
        get<&ITARQRes::get_IPSol>("IPSol", "Activity in the integer solution; 0x00042004 when there is none."),
        get<&ITARQRes::get_Status>("Status", "State in the basis; 0x00042003 when there is none."),
        get<&ITARQRes::get_Dual>("Dual", "Shadow price; 0x00042003 when there is none."),
        get<&ITARQRes::get_ModelIndex>("ModelIndex", "Number of the row in its model, from 1."),
        put<&ITARQRes::put_ModelIndex>("ModelIndex", "Makes the object stand for another row; no data moves."),
        get<&ITARQRes::get_IsAttached>("IsAttached", "1 while the object stands for a row of a model, else 0."),
        returning<ITARQModel>(get<&ITARQRes::get_Parent>("Parent", "The model, null when detached.")),
    };
}

}  // namespace

const InterfaceTable& ITARQVar::memberTable() {
    static const InterfaceTable table("ITARQVar", id, "One column, of a model or on its own.", columnMembers());
    return table;
}

const InterfaceTable& ITARQRes::memberTable() {
    static const InterfaceTable table("ITARQRes", id, "One row, of a model or on its own.", rowMembers());
    return table;
}

}  // namespace tarq
