// Families of columns and rows with names, numbers and slices as C++ values.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "../check.h"

using Names = std::vector<std::string>;
using Numbers = std::vector<double>;
using Table = std::vector<Numbers>;  ///< rows of equal length

/// In place of an index: the whole dimension.
inline const tarq::Variant all = tarq::Variant::missing();

/// C++ values as those of the object interface.
inline const tarq::Variant& toVariant(const tarq::Variant& value) { return value; }
inline tarq::Variant toVariant(double value) { return tarq::Variant(value); }
inline tarq::Variant toVariant(tarq::TARQColType type) { return tarq::Variant(static_cast<std::int32_t>(type)); }
inline tarq::Variant toVariant(const char* name) { return tarq::Variant(name); }
inline tarq::Variant toVariant(const std::string& name) { return tarq::Variant(name); }
inline tarq::Variant toVariant(const Names& names) { return tarq::Variant(tarq::SafeArray::of(names)); }
inline tarq::Variant toVariant(const Numbers& numbers) { return tarq::Variant(tarq::SafeArray::of(numbers)); }
inline tarq::Variant toVariant(const Table& table) {
    const std::size_t columns = table.empty() ? 0 : table.front().size();
    const std::array dimensions{tarq::Dimension{0, static_cast<std::uint32_t>(table.size())},
                                tarq::Dimension{0, static_cast<std::uint32_t>(columns)}};
    tarq::SafeArray array;
    check(tarq::SafeArray::create(tarq::Kind::Double, dimensions, array));
    auto element = array.elements<double>().begin();
    for (const Numbers& row : table) {
        if (row.size() != columns) throw std::invalid_argument("the rows of a table are of different lengths");
        element = std::copy(row.begin(), row.end(), element);
    }
    return tarq::Variant(std::move(array));
}

/// A list for Sum: coefficients and columns in turn. The coefficient 1 may be left out.
template <class... Values>
tarq::ValueList terms(const Values&... values) {
    return tarq::ValueList({toVariant(values)...});
}

/// A family of columns or rows. An index is a name, several or `all`; those left out are `all`.
template <class Family>
class Block {
public:
    Block(tarq::ITARQModel& model, const char* className, const char* name, std::initializer_list<Names> indexsets)
        : family_(tarq::createObject<Family>(className)) {
        if (!family_) throw std::runtime_error(std::string("the component can't create a ") + className);
        std::vector<tarq::SafeArray> arrays;
        for (const Names& names : indexsets) arrays.push_back(tarq::SafeArray::of(names));
        std::vector<tarq::Variant> references;
        for (tarq::SafeArray& array : arrays) references.push_back(tarq::Variant::byReference(array));
        check(family_->Init(&model, name, tarq::ValueList(std::move(references))));
    }

    Family* operator->() const { return family_.get(); }

    /// All members, where a call takes an object.
    operator tarq::Variant() const { return tarq::Variant(tarq::Ref<tarq::IUnknown>(family_.get())); }

    /// The selected members as such an object.
    template <class... Index>
    tarq::Variant slice(const Index&... index) const {
        return tarq::Variant(valueOf<tarq::Ref<tarq::IUnknown>>(
            [&](auto* members) { return call(&Family::get_Enum, members, index...); }));
    }

    /// A number of the selected members, which must have the same: x.get(&ITARQVarSet::get_LPSol, "a").
    template <class Get, class... Index>
    double get(Get member, const Index&... index) const {
        auto value = valueOf<tarq::Variant>([&](auto* result) { return call(member, result, index...); });
        if (value.isArray()) throw std::runtime_error("the members have different values");
        if (!value.toReal()) throw std::runtime_error("the value is no number");
        return value.real();
    }

    /// One number for all the selected members, or as many as there are: x.put(&ITARQVarSet::put_Cost, 5, "a").
    template <class Put, class Value, class... Index>
    void put(Put member, const Value& value, const Index&... index) const {
        check(call(member, toVariant(value), index...));
    }

    /// The only member that the indices select, as an object of its own.
    template <class Item, class... Index>
    tarq::Ref<Item> item(const Index&... index) const {
        return valueOf<tarq::Ref<tarq::IUnknown>>(
                   [&](auto* member) { return call(&Family::get_ItemByIndex, member, index...); })
            .template query<Item>();
    }

private:
    template <class Member, class Argument, class... Index>
    tarq::Status call(Member member, Argument&& argument, const Index&... index) const {
        static_assert(sizeof...(Index) <= 5, "a member takes five indices at most");
        std::array<tarq::Variant, 5> indices;
        indices.fill(all);
        std::size_t i = 0;
        ((indices[i++] = toVariant(index)), ...);
        return (family_.get()->*member)(indices[0], indices[1], indices[2], indices[3], indices[4],
                                        std::forward<Argument>(argument));
    }

    tarq::Ref<Family> family_;
};

struct Columns : Block<tarq::ITARQVarSet> {
    Columns(tarq::ITARQModel& model, const char* name, std::initializer_list<Names> indexsets)
        : Block(model, "TARQVarSet", name, indexsets) {}
};

struct Rows : Block<tarq::ITARQResSet> {
    Rows(tarq::ITARQModel& model, const char* name, std::initializer_list<Names> indexsets)
        : Block(model, "TARQResSet", name, indexsets) {}

    template <class... Index>
    tarq::Ref<tarq::ITARQRes> row(const Index&... index) const {
        return item<tarq::ITARQRes>(index...);
    }

    /// Bounds of the selected rows: one for all of them, or as many as there are. The other side becomes open.
    template <class Value, class... Index>
    void atMost(const Value& bound, const Index&... index) const {
        check((*this)->SetLT(toVariant(bound), toVariant(index)...));
    }
    template <class Value, class... Index>
    void atLeast(const Value& bound, const Index&... index) const {
        check((*this)->SetGT(toVariant(bound), toVariant(index)...));
    }
    template <class Value, class... Index>
    void exactly(const Value& bound, const Index&... index) const {
        check((*this)->SetEQ(toVariant(bound), toVariant(index)...));
    }
};

/// A new row of a model, which is 0 until it gets bounds.
inline tarq::Ref<tarq::ITARQRes> newRow(tarq::ITARQModel& model, const char* name) {
    auto row = tarq::createObject<tarq::ITARQRes>("TARQRes");
    if (!row) throw std::runtime_error("the component can't create a TARQRes");
    check(row->put_Name(name));
    check(model.AddRes(row.get()));
    return row;
}

/// Runs a model and gives its objective. It must have the wanted outcome.
inline double solve(tarq::ITARQModel& model, tarq::TARQSolutionStatusTyp wanted) {
    check(model.Optimize());
    const auto status = valueOf<tarq::TARQSolutionStatusTyp>(
        [&](tarq::TARQSolutionStatusTyp* value) { return model.get_SolutionStatus(value); });
    if (status != wanted) {
        throw std::runtime_error("no solution, but the status " + std::to_string(static_cast<int>(status)));
    }
    const bool isWhole = wanted == tarq::TARQSolutionStatusTyp::IPOptimalSolution;
    return valueOf<double>(
        [&](double* value) { return isWhole ? model.get_IPObjFunctValue(value) : model.get_LPObjFunctValue(value); });
}
