// Column and row objects to test, as two sides of one thing.
#pragma once

#include <string>
#include <utility>

#include "modelfixture.h"

namespace tarq {

/// Everything about columns that a test of both sides has to know.
struct ColumnKind {
    using Object = ITARQVar;
    static constexpr const char* className = "TARQVar";
    static constexpr const Guid& classId = classid::TARQVar;
    static constexpr double upperBoundOfNew = 1e25;

    static constexpr auto add = &ITARQModel::AddVar;
    static constexpr auto attach = &ITARQModel::AttachVar;
    static constexpr auto get = &ITARQModel::get_Var;
    static constexpr auto put = &ITARQModel::put_Var;
    static constexpr auto remove = &ITARQModel::DelCol;
    static constexpr auto count = &ITARQModel::get_NumberOfCols;
    static constexpr auto lowerBound = &ITARQModel::get_ColLB;
    static constexpr auto upperBound = &ITARQModel::get_ColUB;
    static constexpr auto putUpperBound = &ITARQModel::put_ColUB;
    static constexpr auto name = &ITARQModel::get_ColName;
    static constexpr auto addToFamily = &ITARQModel::_AddVarSetElement;

    static constexpr const char* notFound = "Column name 'nowhere' could not be found.";
    static constexpr const char* tooLarge = "Column index is greater than number of columns.";
    static constexpr const char* duplicate = "Duplicate col name: second";
    static constexpr Status duplicateStatus = status::badColumnName;
    static constexpr const char* noObjectToAdd = "Passed object is no TARQVar.";
    static constexpr const char* noObjectToAttach = "Passed object is no TARQVar.";
    static constexpr const char* noObjectToCopy = "Only TARQVar objects allowed as argument.";
    static constexpr const char* noNumber = "TARQVar object is not attached to a model.";
    static constexpr const char* noNewNumber = "TARQVar is not attached to a model.";
    static constexpr const char* newNumberTooLarge = "Index is greater than number of columns in model.";
    static constexpr const char* familyName =
        "Name could not be changed, because specified column is part of a TARQVarSet.";

    static Status addTo(ITARQModel& model, double lower, double upper, const char* name) {
        return model.AddCol(lower, upper, TARQColType::Continuous, Variant::missing(), Variant(name));
    }
    static Status price(ITARQVar& object, double* value) { return object.get_RedCost(value); }
};

struct RowKind {
    using Object = ITARQRes;
    static constexpr const char* className = "TARQRes";
    static constexpr const Guid& classId = classid::TARQRes;
    static constexpr double upperBoundOfNew = 0;

    static constexpr auto add = &ITARQModel::AddRes;
    static constexpr auto attach = &ITARQModel::AttachRes;
    static constexpr auto get = &ITARQModel::get_Res;
    static constexpr auto put = &ITARQModel::put_Res;
    static constexpr auto remove = &ITARQModel::DelRow;
    static constexpr auto count = &ITARQModel::get_NumberOfRows;
    static constexpr auto lowerBound = &ITARQModel::get_RowLHS;
    static constexpr auto upperBound = &ITARQModel::get_RowRHS;
    static constexpr auto putUpperBound = &ITARQModel::put_RowRHS;
    static constexpr auto name = &ITARQModel::get_RowName;
    static constexpr auto addToFamily = &ITARQModel::_AddResSetElement;

    static constexpr const char* notFound = "Row name 'nowhere' could not be found.";
    static constexpr const char* tooLarge = "Row index is greater than number of rows.";
    static constexpr const char* duplicate = "Duplicate row name: second";
    static constexpr Status duplicateStatus = status::badRowName;
    static constexpr const char* noObjectToAdd = "Passed object is no TARQRes.";
    static constexpr const char* noObjectToAttach = "Passed object is no TARQRes";
    static constexpr const char* noObjectToCopy = "Only TARQRes objects allowed as argument.";
    static constexpr const char* noNumber = "No model attached.";
    static constexpr const char* noNewNumber = "TARQRes is not attached to a model.";
    static constexpr const char* newNumberTooLarge = "Index is greater than number of rows in model.";
    static constexpr const char* familyName =
        "Name could not be changed, because specified row is part of a TARQResSet.";

    static Status addTo(ITARQModel& model, double lower, double upper, const char* name) {
        return model.AddRow(lower, upper, Variant(name));
    }
    static Status price(ITARQRes& object, double* value) { return object.get_Dual(value); }
};

/// What an object says of itself.
struct ItemValues {
    double lowerBound = -1;
    double upperBound = -1;
    std::string name = "not read";
    std::int32_t isAttached = -1;

    friend bool operator==(const ItemValues&, const ItemValues&) = default;
    friend void PrintTo(const ItemValues& values, std::ostream* out) {
        *out << '\'' << values.name << "' from " << values.lowerBound << " to " << values.upperBound
             << (values.isAttached != 0 ? ", attached" : ", detached");
    }
};

template <class Object>
ItemValues valuesOf(const Ref<Object>& object) {
    ItemValues values;
    EXPECT_THAT(object->get_LB(&values.lowerBound), succeeds());
    EXPECT_THAT(object->get_UB(&values.upperBound), succeeds());
    EXPECT_THAT(object->get_Name(&values.name), succeeds());
    EXPECT_THAT(object->get_IsAttached(&values.isAttached), succeeds());
    return values;
}

/// Columns or rows "first" from 1 to 11 and "second" from 2 to 12 in a model, and a detached object "own" from 3 to 4.
template <class Kind>
class ItemTest : public ModelTest {
protected:
    using Object = typename Kind::Object;

    ItemTest() : object(newObject("own", 3, 4)) {
        EXPECT_THAT(Kind::addTo(*model, 1, 11, "first"), succeeds());
        EXPECT_THAT(Kind::addTo(*model, 2, 12, "second"), succeeds());
    }

    static Ref<Object> newObject(const char* name, double lower, double upper) {
        auto made = createObject<Object>(Kind::className);
        EXPECT_THAT(made->put_UB(upper), succeeds());
        EXPECT_THAT(made->put_LB(lower), succeeds());
        EXPECT_THAT(made->put_Name(name), succeeds());
        return made;
    }
    /// What the model holds for a number.
    ItemValues inModel(std::int32_t number) {
        return {this->template valueOf<double>(Kind::lowerBound, Variant(number)),
                this->template valueOf<double>(Kind::upperBound, Variant(number)),
                this->template valueOf<std::string>(Kind::name, number), 1};
    }
    std::int32_t numberInModel(const Ref<Object>& item) {
        std::int32_t number = -1;
        EXPECT_THAT(item->get_ModelIndex(&number), succeeds());
        return number;
    }
    std::int32_t count() { return this->template valueOf<std::int32_t>(Kind::count); }
    Ref<Object> objectOfModel(const Variant& address) {
        const auto made = this->template valueOf<Ref<IUnknown>>(Kind::get, address);
        return made.template query<Object>();
    }

    Ref<Object> object;
    static inline const ItemValues own{3, 4, "own", 0};
    static inline const ItemValues first{1, 11, "first", 1};
    static inline const ItemValues second{2, 12, "second", 1};
};

using ItemKinds = testing::Types<ColumnKind, RowKind>;

}  // namespace tarq
