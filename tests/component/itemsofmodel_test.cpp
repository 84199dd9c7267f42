// What a model does with objects for columns and rows: add, attach, hand out and copy them, and take them as indices.
#include <utility>
#include <vector>

#include "itemfixture.h"
#include "tests/support/valuewalks.h"

namespace tarq {
namespace {

template <class Kind>
class ItemsOfModelTest : public ItemTest<Kind> {
protected:
    Status add(IUnknown* given) { return (this->model.get()->*Kind::add)(given); }
    Status attach(IUnknown* given, const Variant& index) { return (this->model.get()->*Kind::attach)(given, index); }
    Status put(const Variant& index, IUnknown* given) { return (this->model.get()->*Kind::put)(index, given); }
};
TYPED_TEST_SUITE(ItemsOfModelTest, ItemKinds);

TYPED_TEST(ItemsOfModelTest, AddedObjectStandsForTheNewItem) {
    ASSERT_THAT(this->object->put_LB(-1e30), succeeds());
    ASSERT_THAT(this->add(this->object.get()), succeeds());
    const ItemValues unclamped{-1e30, 4, "own", 1};
    EXPECT_EQ(this->count(), 3);
    EXPECT_EQ(this->inModel(3), unclamped);
    EXPECT_EQ(valuesOf(this->object), unclamped);
    EXPECT_EQ(this->numberInModel(this->object), 3);
}

TYPED_TEST(ItemsOfModelTest, ObjectOfAnotherModelBringsItsValuesAlong) {
    const auto other = createObject<ITARQModel>("TARQModel");
    ASSERT_THAT(TypeParam::addTo(*other, 5, 6, "of another"), succeeds());
    ASSERT_THAT(this->object->Attach(other.get(), Variant(1)), succeeds());
    ASSERT_THAT(this->add(this->object.get()), succeeds());
    EXPECT_EQ(this->inModel(3), (ItemValues{5, 6, "of another", 1}));
    Ref<IUnknown> parent;
    ASSERT_THAT(this->object->get_Parent(&parent), succeeds());
    EXPECT_EQ(parent.template query<ITARQModel>(), this->model);
}

TYPED_TEST(ItemsOfModelTest, RefusedObjectIsNotAddedAndKeepsItsModel) {
    const auto attached = this->objectOfModel(Variant(2));
    EXPECT_THAT(this->add(attached.get()), raises(TypeParam::duplicateStatus, TypeParam::duplicate));
    EXPECT_EQ(valuesOf(attached), this->second);
    EXPECT_EQ(this->numberInModel(attached), 2);

    const auto other = createObject<ITARQModel>("TARQModel");
    ASSERT_THAT(TypeParam::addTo(*other, 5, 6, "gone"), succeeds());
    ASSERT_THAT(this->object->Attach(other.get(), Variant(1)), succeeds());
    ASSERT_THAT(other->DelModel(), succeeds());
    EXPECT_THAT(this->add(this->object.get()), raises(status::invalidArgument, TypeParam::tooLarge));

    const Variant stranger = objectOf<Stranger>();
    for (IUnknown* const wrong : {stranger.object(), static_cast<IUnknown*>(nullptr)}) {
        EXPECT_THAT(this->add(wrong), raises(status::wrongClass, TypeParam::noObjectToAdd));
    }
    EXPECT_EQ(this->count(), 2);
}

TYPED_TEST(ItemsOfModelTest, AttachingResolvesTheIndexBeforeItAsksTheObject) {
    const Variant stranger = objectOf<Stranger>();
    EXPECT_THAT(this->attach(stranger.object(), Variant("nowhere")),
                raises(status::invalidArgument, TypeParam::notFound));
    EXPECT_THAT(this->attach(stranger.object(), Variant(1)), raises(status::wrongClass, TypeParam::noObjectToAttach));
    EXPECT_THAT(this->attach(nullptr, Variant(1)), raises(status::wrongClass, TypeParam::noObjectToAttach));
    EXPECT_THAT(this->attach(this->object.get(), Variant("nowhere")),
                raises(status::invalidArgument, TypeParam::notFound));
    EXPECT_EQ(valuesOf(this->object), this->own);
    for (const auto& [address, values] : {std::pair{Variant("second"), this->second}, {Variant(1), this->first}}) {
        ASSERT_THAT(this->attach(this->object.get(), address), succeeds());
        EXPECT_EQ(valuesOf(this->object), values);
    }
}

TYPED_TEST(ItemsOfModelTest, GetHandsOutANewObjectOrNone) {
    EXPECT_EQ((this->model.get()->*TypeParam::get)(Variant(1), nullptr), status::nullPointer);
    Ref<IUnknown> none;
    EXPECT_THAT((this->model.get()->*TypeParam::get)(Variant("nowhere"), &none),
                raises(status::invalidArgument, TypeParam::notFound));
    EXPECT_FALSE(none);
    const auto given = this->template valueOf<Ref<IUnknown>>(TypeParam::get, Variant("second"));
    EXPECT_TRUE(given.template query<IDispatch>());
    EXPECT_EQ(valuesOf(given.template query<typename TypeParam::Object>()), this->second);
}

TYPED_TEST(ItemsOfModelTest, PutCopiesTheObjectAndLetsItGo) {
    ASSERT_THAT(this->put(Variant("first"), this->object.get()), succeeds());
    EXPECT_EQ(this->inModel(1), (ItemValues{3, 4, "own", 1}));
    EXPECT_EQ(valuesOf(this->object), this->own);
    EXPECT_THAT(this->put(Variant(1), this->objectOfModel(Variant(1)).get()), succeeds());
    EXPECT_EQ(this->inModel(1), (ItemValues{3, 4, "own", 1}));
}

TYPED_TEST(ItemsOfModelTest, RefusedPutChangesNothingButARefusedName) {
    const Variant stranger = objectOf<Stranger>();
    EXPECT_THAT(this->put(Variant("nowhere"), stranger.object()), raises(status::invalidArgument, TypeParam::notFound));
    EXPECT_THAT(this->put(Variant(1), stranger.object()), raises(status::wrongState, TypeParam::noObjectToCopy));
    EXPECT_THAT(this->put(Variant(1), nullptr), raises(status::wrongState, TypeParam::noObjectToCopy));

    const auto other = createObject<ITARQModel>("TARQModel");
    ASSERT_THAT(TypeParam::addTo(*other, 5, 6, "gone"), succeeds());
    ASSERT_THAT(this->object->Attach(other.get(), Variant(1)), succeeds());
    ASSERT_THAT(other->DelModel(), succeeds());
    EXPECT_THAT(this->put(Variant(1), this->object.get()),
                raises(status::indexOutOfRange, "Index out of valid range."));
    EXPECT_EQ(this->inModel(1), this->first);

    EXPECT_THAT(this->put(Variant(1), this->objectOfModel(Variant(2)).get()),
                raises(TypeParam::duplicateStatus, TypeParam::duplicate));
    EXPECT_EQ(this->inModel(1), (ItemValues{1, 11, "", 1}));
}

TYPED_TEST(ItemsOfModelTest, MemberOfAFamilyKeepsItsName) {
    const std::string name = "member";
    ASSERT_THAT((this->model.get()->*TypeParam::addToFamily)(&name, this->object.get()), succeeds());
    // The taken name isn't even looked at.
    EXPECT_THAT(this->put(Variant("member"), this->objectOfModel(Variant("second")).get()), succeeds());
    EXPECT_EQ(this->inModel(3), (ItemValues{2, 12, "member", 1}));
}

/// An object of the outside that deletes the model's columns while it is asked for its name.
class Intruder final : public CountedObject<Intruder, ITARQVar> {
public:
    explicit Intruder(ITARQModel& model) : model_(model) {}
    Status Attach(IUnknown* /*TARQModel*/, const Variant& /*Col*/) override { return status::notImplemented; }
    Status Detach() override { return model_.DelModel(); }
    Status SetITARQModel(IUnknown* /*ITARQModel*/, std::int32_t /*number*/) override { return status::wrongState; }
    Status get_LB(double* value) override { return tell(value); }
    Status put_LB(double /*value*/) override { return status::notImplemented; }
    Status get_UB(double* value) override { return tell(value); }
    Status put_UB(double /*value*/) override { return status::notImplemented; }
    Status get_Cost(double* value) override { return tell(value); }
    Status put_Cost(double /*value*/) override { return status::notImplemented; }
    Status get_Type(TARQColType* /*value*/) override { return status::ok; }
    Status put_Type(TARQColType /*value*/) override { return status::notImplemented; }
    Status get_Name(std::string* value) override {
        *value = "intruder";
        return model_.DelModel();
    }
    Status put_Name(const std::string& /*value*/) override { return status::notImplemented; }
    Status get_LPSol(double* /*value*/) override { return status::notImplemented; }
    Status get_IPSol(double* /*value*/) override { return status::notImplemented; }
    Status get_Status(TARQColRowStatusType* /*value*/) override { return status::notImplemented; }
    Status get_RedCost(double* /*value*/) override { return status::notImplemented; }
    Status get_ModelIndex(std::int32_t* value) override {
        *value = 1;
        return model_.DelModel();
    }
    Status put_ModelIndex(std::int32_t /*value*/) override { return status::notImplemented; }
    Status get_IsAttached(std::int32_t* /*value*/) override { return status::notImplemented; }
    Status get_Parent(Ref<IUnknown>* /*value*/) override { return status::notImplemented; }

private:
    static Status tell(double* value) {
        *value = 1;
        return status::ok;
    }

    ITARQModel& model_;
};

using ColumnsOfModelTest = ItemTest<ColumnKind>;

TEST_F(ColumnsOfModelTest, ObjectThatClearsTheModelWhileItIsAskedIsSafe) {
    const Variant intruder = objectOf<Intruder>(*model);
    EXPECT_EQ(model->put_Var(Variant(2), intruder.object()), status::indexOutOfRange);
    EXPECT_EQ(count(), 0);
    EXPECT_EQ(model->AddVar(intruder.object()), status::wrongState);
    EXPECT_EQ(count(), 0);
    double value = 0;
    EXPECT_EQ(model->put_NZs(Variant(1), intruder, Variant(1.0)), status::invalidArgument);
    EXPECT_EQ(model->get_NZ(Variant(1), Variant(1), &value), status::invalidArgument);
}

TEST_F(ColumnsOfModelTest, CostAndTypeGoBothWays) {
    ASSERT_THAT(object->put_Cost(-1e30), succeeds());
    ASSERT_THAT(object->put_Type(TARQColType::Integer), succeeds());
    ASSERT_THAT(model->AddVar(object.get()), succeeds());
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_ColCost, Variant("own")), -1e30);
    EXPECT_EQ(valueOf<TARQColType>(&ITARQModel::get_ColType, Variant("own")), TARQColType::Integer);

    ASSERT_THAT(model->put_Var(Variant(1), newObject("copied", 0, 1).get()), succeeds());
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_ColCost, Variant(1)), 0);
    ASSERT_THAT(object->put_ModelIndex(1), succeeds());
    ASSERT_THAT(object->put_Cost(8), succeeds());
    ASSERT_THAT(object->put_Type(TARQColType::Binary), succeeds());
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_ColCost, Variant("copied")), 8);
    EXPECT_EQ(valueOf<TARQColType>(&ITARQModel::get_ColType, Variant("copied")), TARQColType::Binary);

    ASSERT_THAT(object->Detach(), succeeds());
    double cost = 0;
    auto type = TARQColType::Continuous;
    EXPECT_THAT(object->get_Cost(&cost), succeeds());
    EXPECT_THAT(object->get_Type(&type), succeeds());
    EXPECT_EQ(cost, 8);
    EXPECT_EQ(type, TARQColType::Binary);
}

TEST_F(ColumnsOfModelTest, BinaryColumnKeepsItsBoundsInBothStates) {
    const auto inModel = objectOfModel(Variant(1));
    for (const auto& [each, classId] : {std::pair{object, classid::TARQVar}, {inModel, classid::TARQModel}}) {
        ASSERT_THAT(each->put_Type(TARQColType::Binary), succeeds());
        EXPECT_THAT(each->put_LB(1),
                    raisesAs(classId, status::invalidArgument, "Columns of type 'Binary' must have LB=0."));
        EXPECT_THAT(each->put_UB(2),
                    raisesAs(classId, status::invalidArgument, "Columns of type 'Binary' must have UB=1."));
        EXPECT_THAT(each->put_LB(0), succeeds());
        EXPECT_THAT(each->put_UB(1), succeeds());
        const ItemValues values = valuesOf(each);
        EXPECT_EQ(values.lowerBound, 0);
        EXPECT_EQ(values.upperBound, 1);
    }
    const auto wrong = static_cast<TARQColType>(3);
    EXPECT_THAT(object->put_Type(wrong), raisesAs(classid::TARQVar, status::invalidArgument, "Bad column type."));
    EXPECT_THAT(inModel->put_Type(wrong), raises(status::invalidArgument, "Invalid type. Column index: 1"));
    ASSERT_THAT(object->put_Type(TARQColType::Continuous), succeeds());
    EXPECT_THAT(object->put_UB(5), succeeds());
}

TEST_F(ColumnsOfModelTest, ObjectsStandForTheirColumnsAndRowsInLists) {
    ASSERT_THAT(model->AddRow(0, 1, Variant("r")), succeeds());
    const Variant column = Variant(valueOf<Ref<IUnknown>>(&ITARQModel::get_Var, Variant(2)));
    const Variant row = Variant(valueOf<Ref<IUnknown>>(&ITARQModel::get_Res, Variant("r")));
    ASSERT_THAT(model->put_NZs(row, column, Variant(7)), succeeds());
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_NZ, Variant("r"), Variant("second")), 7);
    ASSERT_THAT(model->AddObjSum(ValueList({Variant(3), column})), succeeds());
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_ColCost, Variant("second")), 3);

    const Variant detachedOne = Variant(object.query<IUnknown>());
    EXPECT_THAT(model->put_NZs(row, detachedOne, Variant(7)),
                raisesAs(classid::TARQVar, status::wrongState, "TARQVar object is not attached to a model."));
    EXPECT_THAT(model->put_NZs(column, column, Variant(7)),
                raises(status::invalidArgument, "Bad type of object for row indices."));
    EXPECT_THAT(model->put_NZs(row, row, Variant(7)),
                raises(status::invalidArgument, "Bad type of object for col indices."));
    ASSERT_THAT(model->DelCol(Variant(1)), succeeds());
    EXPECT_THAT(model->put_NZs(row, column, Variant(7)),
                raises(status::invalidArgument, "Column index is greater than number of columns."));
    EXPECT_THAT(model->AddObjSum(ValueList({column})), raises(status::invalidArgument, "Index out of valid range."));
    EXPECT_THAT(model->AddObjSum(ValueList({detachedOne})),
                raises(status::badColumnName, "Col name 'own' does not exist."));
}

}  // namespace
}  // namespace tarq
