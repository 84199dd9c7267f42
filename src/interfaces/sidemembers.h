// SideMembers: the members by which a model offers its columns or its rows, for rooms that know a model by its
// interface alone and treat both sides alike.
#pragma once

#include <cstdint>
#include <string>

#include "interfaces/sides.h"
#include "tarq/frame/object.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"
#include "tarq/interfaces/enumerations.h"
#include "tarq/interfaces/itarqmodel.h"

namespace tarq {

/// A property of the column or row at an address.
template <class Value>
using MemberGet = Status (ITARQModel::*)(const Variant& address, Value* value);

struct SideMembers {
    Status (ITARQModel::*count)(std::int32_t* value);
    MemberGet<std::int32_t> number;
    Status (ITARQModel::*name)(std::int32_t number, std::string* value);
    Status (ITARQModel::*rename)(std::int32_t number, const std::string& value);
    MemberGet<double> lowerBound;
    MemberGet<double> upperBound;
    MemberGet<double> lpValue;
    MemberGet<double> ipValue;
    MemberGet<double> price;  ///< reduced cost or dual
    MemberGet<TARQColRowStatusType> status;
    MemberGet<Ref<IUnknown>> object;

    Status (ITARQModel::*addToFamily)(const std::string* name, IUnknown* family);
    Status (ITARQModel::*familyStart)(IUnknown* family, std::int32_t* number);
    Status (ITARQModel::*clearFamily)(IUnknown* family);

    /// Changes the fields, but those whose pointer is null, at a 0-based position; members of families may be renamed.
    Status (*change)(ITARQModel& model, std::int32_t position, const double* lowerBound, const double* upperBound,
                     const std::string* name);
};

inline constexpr SideMembers columnMembers{
    .count = &ITARQModel::get_NumberOfCols,
    .number = &ITARQModel::get_ColIndex,
    .name = &ITARQModel::get_ColName,
    .rename = &ITARQModel::put_ColName,
    .lowerBound = &ITARQModel::get_ColLB,
    .upperBound = &ITARQModel::get_ColUB,
    .lpValue = &ITARQModel::get_ColLPSol,
    .ipValue = &ITARQModel::get_ColIPSol,
    .price = &ITARQModel::get_ColRedCost,
    .status = &ITARQModel::get_ColStatus,
    .object = &ITARQModel::get_Var,
    .addToFamily = &ITARQModel::_AddVarSetElement,
    .familyStart = &ITARQModel::get_VarSetStartIndex,
    .clearFamily = &ITARQModel::_ClearTARQVarSet,
    .change =
        [](ITARQModel& model, std::int32_t position, const double* lowerBound, const double* upperBound,
           const std::string* name) {
            return model._ChangeCol(position, lowerBound, upperBound, nullptr, nullptr, name);
        },
};

inline constexpr SideMembers rowMembers{
    .count = &ITARQModel::get_NumberOfRows,
    .number = &ITARQModel::get_RowIndex,
    .name = &ITARQModel::get_RowName,
    .rename = &ITARQModel::put_RowName,
    .lowerBound = &ITARQModel::get_RowLHS,
    .upperBound = &ITARQModel::get_RowRHS,
    .lpValue = &ITARQModel::get_RowLPSol,
    .ipValue = &ITARQModel::get_RowIPSol,
    .price = &ITARQModel::get_RowDual,
    .status = &ITARQModel::get_RowStatus,
    .object = &ITARQModel::get_Res,
    .addToFamily = &ITARQModel::_AddResSetElement,
    .familyStart = &ITARQModel::get_ResSetStartIndex,
    .clearFamily = &ITARQModel::_ClearTARQResSet,
    .change = [](ITARQModel& model, std::int32_t position, const double* lowerBound, const double* upperBound,
                 const std::string* name) { return model._ChangeRow(position, lowerBound, upperBound, name); },
};

constexpr const SideMembers& membersOf(ModelSide side) {
    return side == ModelSide::Column ? columnMembers : rowMembers;
}

}  // namespace tarq
