#include "indexed/families/familyside.h"

#include "frame/result.h"
#include "tarq/interfaces/classids.h"
#include "tarq/interfaces/itarqres.h"
#include "tarq/interfaces/itarqvar.h"

namespace tarq {
namespace {

Status changeColumnLower(ITARQModel& model, std::int32_t position, const Variant& value) {
    const double bound = value.real();
    return model._ChangeCol(position, &bound, nullptr, nullptr, nullptr, nullptr);
}

Status changeColumnUpper(ITARQModel& model, std::int32_t position, const Variant& value) {
    const double bound = value.real();
    return model._ChangeCol(position, nullptr, &bound, nullptr, nullptr, nullptr);
}

Status changeRowLower(ITARQModel& model, std::int32_t position, const Variant& value) {
    const double bound = value.real();
    return model._ChangeRow(position, &bound, nullptr, nullptr);
}

Status changeRowUpper(ITARQModel& model, std::int32_t position, const Variant& value) {
    const double bound = value.real();
    return model._ChangeRow(position, nullptr, &bound, nullptr);
}

Status renameColumn(ITARQModel& model, std::int32_t position, const std::string& name) {
    return model._ChangeCol(position, nullptr, nullptr, nullptr, nullptr, &name);
}

Status renameRow(ITARQModel& model, std::int32_t position, const std::string& name) {
    return model._ChangeRow(position, nullptr, nullptr, &name);
}

Status copyColumn(ITARQModel& model, std::int32_t position, ITARQVar& column) {
    double lower = 0;
    double upper = 0;
    double cost = 0;
    auto type = TARQColType::Continuous;
    TARQ_TRY(column.get_LB(&lower));
    TARQ_TRY(column.get_UB(&upper));
    TARQ_TRY(column.get_Cost(&cost));
    TARQ_TRY(column.get_Type(&type));
    return model._ChangeCol(position, &lower, &upper, &type, &cost, nullptr);
}

Status copyRow(ITARQModel& model, std::int32_t position, ITARQRes& row) {
    double lower = 0;
    double upper = 0;
    TARQ_TRY(row.get_LB(&lower));
    TARQ_TRY(row.get_UB(&upper));
    return model._ChangeRow(position, &lower, &upper, nullptr);
}

template <class Member, Status (*copy)(ITARQModel&, std::int32_t, Member&)>
bool copyFrom(ITARQModel& model, std::int32_t position, const Ref<IUnknown>& object, Status& copied) {
    const Ref<Member> member = object.query<Member>();
    if (!member) return false;
    copied = copy(model, position, *member);
    return true;
}

}  // namespace

constinit const FamilySide columnFamilies{
    .classId = classid::TARQVarSet,
    .className = "TARQVarSet",
    .onlyObjects = "Only TARQVar objects allowed as argument.",
    .onlyOne = "Indices must specify one single col, not severals.",
    .add = &ITARQModel::_AddVarSetElement,
    .start = &ITARQModel::get_VarSetStartIndex,
    .clear = &ITARQModel::_ClearTARQVarSet,
    .numberOf = &ITARQModel::get_ColIndex,
    .object = &ITARQModel::get_Var,
    .lowerBound = &ITARQModel::get_ColLB,
    .upperBound = &ITARQModel::get_ColUB,
    .status = &ITARQModel::get_ColStatus,
    .ipValue = &ITARQModel::get_ColIPSol,
    .lpValue = &ITARQModel::get_ColLPSol,
    .changeLower = &changeColumnLower,
    .changeUpper = &changeColumnUpper,
    .rename = &renameColumn,
    .copyFrom = &copyFrom<ITARQVar, &copyColumn>,
};

constinit const FamilySide rowFamilies{
    .classId = classid::TARQResSet,
    .className = "TARQResSet",
    .onlyObjects = "Only TARQRes objects allowed as argument.",
    .onlyOne = "Indices must specify one single row, not severals.",
    .add = &ITARQModel::_AddResSetElement,
    .start = &ITARQModel::get_ResSetStartIndex,
    .clear = &ITARQModel::_ClearTARQResSet,
    .numberOf = &ITARQModel::get_RowIndex,
    .object = &ITARQModel::get_Res,
    .lowerBound = &ITARQModel::get_RowLHS,
    .upperBound = &ITARQModel::get_RowRHS,
    .status = &ITARQModel::get_RowStatus,
    .ipValue = &ITARQModel::get_RowIPSol,
    .lpValue = &ITARQModel::get_RowLPSol,
    .changeLower = &changeRowLower,
    .changeUpper = &changeRowUpper,
    .rename = &renameRow,
    .copyFrom = &copyFrom<ITARQRes, &copyRow>,
};

}  // namespace tarq
