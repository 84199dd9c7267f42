// ITARQVar: one column as an object.
//
// Detached, the object holds the data of a column of its own. Attached, it is a handle of a model and the number of a
// column: every property is that column's, read from the model and written to it at once, with the model's statuses,
// among them noLpSolution and noIpSolution where there is no solution. It keeps its model alive, but the model knows
// nothing of it: when columns go away the number stays, and then stands for another column or for none. The order of
// the functions is the published one and is part of the binary interface.
#pragma once

#include <cstdint>
#include <string>

#include "tarq/frame/dispatch.h"
#include "tarq/frame/export.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

class ITARQVar : public IDispatch {
public:
    static constexpr Guid id{0xC13B950B, 0x1EB7, 0x4ED4, {0xA5, 0x67, 0x83, 0xC3, 0x48, 0xAE, 0x28, 0xC8}};

    /// The members as data.
    TARQ_API static const InterfaceTable& memberTable();

    /// Makes the object stand for a column of a model. What it held is hidden, not written to the column. An object
    /// that was attached is detached first, and stays so where this fails.
    virtual Status Attach(IUnknown* TARQModel, const Variant& Col) = 0;

    /// Takes a copy of the column and lets go of the model. The column stays. Values of a solution that isn't there
    /// become 0. Never fails; a detached object stays as it is.
    virtual Status Detach() = 0;

    /// For models: stands for the column with this number from 1 of the given model from now on, without a copy of the
    /// old one.
    virtual Status SetITARQModel(IUnknown* ITARQModel, std::int32_t lColIndex1) = 0;

    /// Lower bound; a put above the upper bound is refused, as is one other than 0 for a Binary column.
    virtual Status get_LB(double* value) = 0;
    virtual Status put_LB(double value) = 0;

    /// Upper bound; a put below the lower bound is refused, as is one other than 1 for a Binary column.
    virtual Status get_UB(double* value) = 0;
    virtual Status put_UB(double value) = 0;

    /// Objective coefficient.
    virtual Status get_Cost(double* value) = 0;
    virtual Status put_Cost(double value) = 0;

    /// Type of the column. Binary sets the bounds to 0 and 1.
    virtual Status get_Type(TARQColType* value) = 0;
    virtual Status put_Type(TARQColType value) = 0;

    /// Name of at most 64 characters. Attached, one that is taken leaves the column without a name, and a column of a
    /// family keeps its name.
    virtual Status get_Name(std::string* value) = 0;
    virtual Status put_Name(const std::string& value) = 0;

    /// Value in the LP solution.
    virtual Status get_LPSol(double* value) = 0;

    /// Value in the integer solution.
    virtual Status get_IPSol(double* value) = 0;

    /// State in the basis.
    virtual Status get_Status(TARQColRowStatusType* value) = 0;

    /// Reduced cost.
    virtual Status get_RedCost(double* value) = 0;

    /// Number of the column in its model, from 1. Detached, wrongState, and a get gives 0. A put makes the object stand
    /// for another column; no data moves.
    virtual Status get_ModelIndex(std::int32_t* value) = 0;
    virtual Status put_ModelIndex(std::int32_t value) = 0;

    /// 1 while the object stands for a column of a model, else 0.
    virtual Status get_IsAttached(std::int32_t* value) = 0;

    /// The model, null when detached.
    virtual Status get_Parent(Ref<IUnknown>* value) = 0;

protected:
    ~ITARQVar() = default;
};

}  // namespace tarq
