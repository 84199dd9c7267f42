// For C++ programs that like exceptions and names: models, sets, arrays and families as values that are indexed
// naturally.
//
//     tarq::client::Model model;
//     model.addColumn("tables", {.cost = 70});
//     model.addRow("boards", {.upper = 240});
//     model.NZ("boards", "tables") = 4;
//     model.Parameter("xminmx") = "max";
//     model.optimize();
//     double made = model.ColLPSol("tables");
//
// Members that have no function of their own here are called by `call`, `get` and `put` (tarq/client/object.h) or
// through
// `->`. Who wants no exceptions includes tarq/tarq.h and reads statuses.
#pragma once

#include <functional>

#include "tarq/client/object.h"

namespace tarq::client {

/// Without a bound; every model's INF.
inline constexpr double infinity = 1e25;

struct ColumnData {
    double lower = 0;
    double upper = infinity;
    double cost = 0;
    TARQColType type = TARQColType::Continuous;
};

struct RowData {
    double lower = -infinity;
    double upper = infinity;
};

class Model : public Object<ITARQModel> {
public:
    Model() : Object("TARQModel") {}

    void addColumn(const Value& name, const ColumnData& data = {}) const {
        call(&ITARQModel::AddCol, data.lower, data.upper, data.type, data.cost, name);
    }
    void addRow(const Value& name, const RowData& data) const {
        call(&ITARQModel::AddRow, data.lower, data.upper, name);
    }

    /// A column or row is a name, or a number from 1.
    auto NZ(const Value& row, const Value& column) const {
        return Property<ITARQModel, &ITARQModel::get_NZ, &ITARQModel::put_NZ>(*this, row, column);
    }
    auto ColLB(const Value& column) const {
        return Property<ITARQModel, &ITARQModel::get_ColLB, &ITARQModel::put_ColLB>(*this, column);
    }
    auto ColUB(const Value& column) const {
        return Property<ITARQModel, &ITARQModel::get_ColUB, &ITARQModel::put_ColUB>(*this, column);
    }
    auto ColCost(const Value& column) const {
        return Property<ITARQModel, &ITARQModel::get_ColCost, &ITARQModel::put_ColCost>(*this, column);
    }
    auto ColType(const Value& column) const {
        return Property<ITARQModel, &ITARQModel::get_ColType, &ITARQModel::put_ColType>(*this, column);
    }
    auto RowLHS(const Value& row) const {
        return Property<ITARQModel, &ITARQModel::get_RowLHS, &ITARQModel::put_RowLHS>(*this, row);
    }
    auto RowRHS(const Value& row) const {
        return Property<ITARQModel, &ITARQModel::get_RowRHS, &ITARQModel::put_RowRHS>(*this, row);
    }
    auto Parameter(const Value& name) const {
        return Property<ITARQModel, &ITARQModel::get_Parameter, &ITARQModel::put_Parameter>(*this, name);
    }

    /// Coefficients where the rows and columns of two lists or families of the same length meet, one for all or as
    /// many.
    void SetNZStair(const Value& rows, const Value& columns, const Value& coefficients) const {
        call(&ITARQModel::SetNZStair, rows, columns, coefficients);
    }

    /// Runs the engine and returns what there is of a solution; a run that ended at a limit throws nothing.
    TARQSolutionStatusTyp optimize() const {
        call(&ITARQModel::Optimize);
        return get(&ITARQModel::get_SolutionStatus);
    }
    /// The same for a model that must have an optimum: returns the objective. Error with noLpSolution where it has
    /// none.
    double optimum() const {
        const TARQSolutionStatusTyp status = optimize();
        if (status == TARQSolutionStatusTyp::IPOptimalSolution) return get(&ITARQModel::get_IPObjFunctValue);
        if (status == TARQSolutionStatusTyp::LPOptimalSolution) return get(&ITARQModel::get_LPObjFunctValue);
        throw Error(status::noLpSolution,
                    "no optimum, but the solution status " + std::to_string(static_cast<int>(status)));
    }

    /// Has `handler` called at the end of every run, on the thread of the run, until `forget` with the number returned.
    [[nodiscard]] std::uint32_t onFinished(std::function<void()> handler) const {
        std::uint32_t cookie = 0;
        check(adviseFinished(*reference().get(), std::move(handler), &cookie));
        return cookie;
    }
    void forget(std::uint32_t cookie) const { check(unadviseFinished(*reference().get(), cookie)); }

    double ColLPSol(const Value& column) const { return get(&ITARQModel::get_ColLPSol, column); }
    double ColIPSol(const Value& column) const { return get(&ITARQModel::get_ColIPSol, column); }
    double ColRedCost(const Value& column) const { return get(&ITARQModel::get_ColRedCost, column); }
    double RowLPSol(const Value& row) const { return get(&ITARQModel::get_RowLPSol, row); }
    double RowIPSol(const Value& row) const { return get(&ITARQModel::get_RowIPSol, row); }
    double RowDual(const Value& row) const { return get(&ITARQModel::get_RowDual, row); }
};

/// A row of a model as an object of its own.
class Row : public Object<ITARQRes> {
public:
    using Object::Object;
    /// A new row, which is 0 until it gets bounds.
    Row(const Model& model, const std::string& name) : Object("TARQRes") {
        put(&ITARQRes::put_Name, name);
        model.call(&ITARQModel::AddRes, *this);
    }

    void atMost(double bound) const { call(&ITARQRes::SetLT, bound); }
    void atLeast(double bound) const { call(&ITARQRes::SetGT, bound); }
    void exactly(double bound) const { call(&ITARQRes::SetEQ, bound); }
    /// Adds terms: coefficients and columns in turn, names, families or slices of them; the coefficient 1 may be left
    /// out.
    template <class... Terms>
    void sum(const Terms&... terms) const {
        call(&ITARQRes::Sum, terms...);
    }
    double LPSol() const { return get(&ITARQRes::get_LPSol); }
    double IPSol() const { return get(&ITARQRes::get_IPSol); }
    double Dual() const { return get(&ITARQRes::get_Dual); }
};

/// What families and arrays have in common. An index is a name, a number, several of them or `all`; those left out at
/// the end are `all`. A read of several members is one value where they are equal, else an array; an assignment takes
/// one value for all of them, or as many as there are.
template <class Interface>
class Indexed : public Object<Interface> {
public:
    using Object<Interface>::Object;

    /// The selected members as an object, for lists such as those of `sum`.
    template <class... Index>
    Value slice(const Index&... indices) const {
        return this->get(&Interface::get_Enum, indices...);
    }
    std::int32_t Count() const { return this->get(&Interface::get_Count); }

protected:
    template <auto get, auto put = nullptr, class... Index>
    auto property(const Index&... indices) const {
        return Property<Interface, get, put>(*this, indices...);
    }
};

/// A table of values, each indexed by names: `cost("Ulm", "Erfurt") = 11;`.
class Array : public Indexed<ITARQArray> {
public:
    /// A dimension for each argument: names, or a number of elements.
    template <class... Indexsets>
    explicit Array(const Indexsets&... indexsets) : Indexed("TARQArray") {
        call(&ITARQArray::Init, indexsets...);
    }
    template <class... Index>
    auto operator()(const Index&... indices) const {
        return property<&ITARQArray::get_Value, &ITARQArray::put_Value>(indices...);
    }
};

/// A family of columns or rows, with a dimension for each argument behind the name.
template <class Interface>
class Family : public Indexed<Interface> {
public:
    template <class... Index>
    auto LB(const Index&... indices) const {
        return this->template property<&Interface::get_LB, &Interface::put_LB>(indices...);
    }
    template <class... Index>
    auto UB(const Index&... indices) const {
        return this->template property<&Interface::get_UB, &Interface::put_UB>(indices...);
    }
    template <class... Index>
    auto LPSol(const Index&... indices) const {
        return this->template property<&Interface::get_LPSol>(indices...);
    }
    template <class... Index>
    auto IPSol(const Index&... indices) const {
        return this->template property<&Interface::get_IPSol>(indices...);
    }

protected:
    template <class... Indexsets>
    Family(std::string_view className, const Model& model, const std::string& name, const Indexsets&... indexsets)
        : Indexed<Interface>(className) {
        this->call(&Interface::Init, model, name, indexsets...);
    }
};

class Columns : public Family<ITARQVarSet> {
public:
    template <class... Indexsets>
    Columns(const Model& model, const std::string& name, const Indexsets&... indexsets)
        : Family("TARQVarSet", model, name, indexsets...) {}

    template <class... Index>
    auto Cost(const Index&... indices) const {
        return property<&ITARQVarSet::get_Cost, &ITARQVarSet::put_Cost>(indices...);
    }
    template <class... Index>
    auto Type(const Index&... indices) const {
        return property<&ITARQVarSet::get_Type, &ITARQVarSet::put_Type>(indices...);
    }
    template <class... Index>
    auto RedCost(const Index&... indices) const {
        return property<&ITARQVarSet::get_RedCost>(indices...);
    }
};

class Rows : public Family<ITARQResSet> {
public:
    template <class... Indexsets>
    Rows(const Model& model, const std::string& name, const Indexsets&... indexsets)
        : Family("TARQResSet", model, name, indexsets...) {}

    template <class... Index>
    auto Dual(const Index&... indices) const {
        return property<&ITARQResSet::get_Dual>(indices...);
    }
    /// The only row that the indices select.
    template <class... Index>
    Row row(const Index&... indices) const {
        return Row(get(&ITARQResSet::get_ItemByIndex, indices...));
    }
    /// Bounds of the selected rows; the other side becomes open.
    template <class... Index>
    void atMost(const Value& bound, const Index&... indices) const {
        call(&ITARQResSet::SetLT, bound, indices...);
    }
    template <class... Index>
    void atLeast(const Value& bound, const Index&... indices) const {
        call(&ITARQResSet::SetGT, bound, indices...);
    }
    template <class... Index>
    void exactly(const Value& bound, const Index&... indices) const {
        call(&ITARQResSet::SetEQ, bound, indices...);
    }
};

}  // namespace tarq::client
