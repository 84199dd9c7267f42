// ITARQRes: one row as an object.
//
// Detached, the object holds the data of a row of its own. Attached, it is a handle of a model and the number of a row:
// every property is that row's, read from the model and written to it at once, with the model's statuses, among them
// noLpSolution and noIpSolution where there is no solution. It keeps its model alive, but the model knows nothing of
// it: when rows go away the number stays, and then stands for another row or for none. The order of the functions is
// the published one and is part of the binary interface.
#pragma once

#include <cstdint>
#include <string>

#include "tarq/frame/dispatch.h"
#include "tarq/frame/export.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

class ITARQRes : public IDispatch {
public:
    static constexpr Guid id{0x29F6BBDF, 0x8D01, 0x493B, {0x99, 0xF0, 0x21, 0xDF, 0xA3, 0x73, 0xB0, 0xDB}};

    /// The members as data.
    TARQ_API static const InterfaceTable& memberTable();

    /// Makes the object stand for a row of a model. What it held is hidden, not written to the row. An object that was
    /// attached is detached first, and stays so where this fails.
    virtual Status Attach(IUnknown* TARQModel, const Variant& Row) = 0;

    /// Takes a copy of the row and lets go of the model. The row stays. Values of a solution that isn't there become 0.
    /// Never fails; a detached object stays as it is.
    virtual Status Detach() = 0;

    /// Bounds -1e25 and Bound.
    virtual Status SetLT(double Bound) = 0;

    /// Both bounds Bound.
    virtual Status SetEQ(double Bound) = 0;

    /// Bounds Bound and 1e25.
    virtual Status SetGT(double Bound) = 0;

    /// For models: stands for the row with this number from 1 of the given model from now on, without a copy of the old
    /// one.
    virtual Status SetITARQModel(IUnknown* ITARQModel, std::int32_t lRowIndex1) = 0;

    /// Adds each coefficient that the list names to the row: coefficients and columns in turn, a number or several and
    /// then a name, several, or an object that has some. The coefficient 1 may be left out. A failure keeps the
    /// coefficients added before it. Detached, wrongState.
    virtual Status Sum(const ValueList& CoeffsAndCols) = 0;

    /// Lower bound; a put above the upper bound is refused.
    virtual Status get_LB(double* value) = 0;
    virtual Status put_LB(double value) = 0;

    /// Upper bound; a put below the lower bound is refused.
    virtual Status get_UB(double* value) = 0;
    virtual Status put_UB(double value) = 0;

    /// Name of at most 64 characters. Attached, one that is taken leaves the row without a name, and a row of a family
    /// keeps its name.
    virtual Status get_Name(std::string* value) = 0;
    virtual Status put_Name(const std::string& value) = 0;

    /// Activity in the LP solution.
    virtual Status get_LPSol(double* value) = 0;

    /// Activity in the integer solution.
    virtual Status get_IPSol(double* value) = 0;

    /// State in the basis.
    virtual Status get_Status(TARQColRowStatusType* value) = 0;

    /// Shadow price.
    virtual Status get_Dual(double* value) = 0;

    /// Number of the row in its model, from 1. Detached, wrongState, and a get gives 0. A put makes the object stand
    /// for another row; no data moves.
    virtual Status get_ModelIndex(std::int32_t* value) = 0;
    virtual Status put_ModelIndex(std::int32_t value) = 0;

    /// 1 while the object stands for a row of a model, else 0.
    virtual Status get_IsAttached(std::int32_t* value) = 0;

    /// The model, null when detached.
    virtual Status get_Parent(Ref<IUnknown>* value) = 0;

protected:
    ~ITARQRes() = default;
};

}  // namespace tarq
