// Objects for columns and rows on their own and attached, and every way from the one to the other.
#include "itemfixture.h"
#include "tests/support/valuewalks.h"

namespace tarq {
namespace {

ItemValues detached(ItemValues values) {
    values.isAttached = 0;
    return values;
}

template <class Kind>
class ItemStateTest : public ItemTest<Kind> {};
TYPED_TEST_SUITE(ItemStateTest, ItemKinds);

TYPED_TEST(ItemStateTest, NewObjectHasItsDefaultsAndNoModel) {
    const auto fresh = createObject<typename TypeParam::Object>(TypeParam::className);
    EXPECT_EQ(valuesOf(fresh), (ItemValues{0, TypeParam::upperBoundOfNew, "", 0}));
    double values[] = {9, 9, 9};
    EXPECT_THAT(fresh->get_LPSol(&values[0]), succeeds());
    EXPECT_THAT(fresh->get_IPSol(&values[1]), succeeds());
    EXPECT_THAT(TypeParam::price(*fresh, &values[2]), succeeds());
    EXPECT_THAT(values, testing::Each(0));
    auto state = TARQColRowStatusType::StatusBasic;
    EXPECT_THAT(fresh->get_Status(&state), succeeds());
    EXPECT_EQ(state, TARQColRowStatusType::UndefinedVarStatus);
    Ref<IUnknown> parent(this->model.get());
    EXPECT_THAT(fresh->get_Parent(&parent), succeeds());
    EXPECT_FALSE(parent);
}

TYPED_TEST(ItemStateTest, DetachedObjectChecksWhatItIsGiven) {
    auto& item = this->object;
    EXPECT_THAT(item->put_LB(5),
                raisesAs(TypeParam::classId, status::boundOrder, "Lower bound is greater than upper bound."));
    EXPECT_THAT(item->put_UB(2),
                raisesAs(TypeParam::classId, status::boundOrder, "Lower bound is greater than upper bound."));
    std::string longest;
    for (int i = 0; i < 64; ++i) longest += "\u00e9";
    EXPECT_THAT(item->put_Name(longest + "x"),
                raisesAs(TypeParam::classId, status::textTooLong, "Passed string is to long."));
    EXPECT_EQ(valuesOf(item), this->own);
    EXPECT_THAT(item->put_LB(-1e30), succeeds());
    EXPECT_THAT(item->put_UB(1e30), succeeds());
    EXPECT_THAT(item->put_Name(longest), succeeds());
    EXPECT_EQ(valuesOf(item), (ItemValues{-1e30, 1e30, longest, 0}));
}

TYPED_TEST(ItemStateTest, AttachAdoptsTheModelsValuesAndDetachTakesACopy) {
    auto& item = this->object;
    ASSERT_THAT(item->Attach(this->model.get(), Variant("second")), succeeds());
    EXPECT_EQ(valuesOf(item), this->second);
    EXPECT_EQ(this->inModel(2), this->second);
    EXPECT_EQ(this->numberInModel(item), 2);
    Ref<IUnknown> parent;
    ASSERT_THAT(item->get_Parent(&parent), succeeds());
    EXPECT_EQ(parent.template query<ITARQModel>(), this->model);

    for (int again = 0; again < 2; ++again) ASSERT_THAT(item->Detach(), succeeds());
    ASSERT_THAT((this->model.get()->*TypeParam::putUpperBound)(Variant(2), 99), succeeds());
    ASSERT_THAT(item->put_LB(7), succeeds());
    EXPECT_EQ(valuesOf(item), (ItemValues{7, 12, "second", 0}));
    EXPECT_EQ(this->inModel(2), (ItemValues{2, 99, "second", 1}));
}

TYPED_TEST(ItemStateTest, EveryAttachEndsAttachedOrDetached) {
    const auto other = createObject<ITARQModel>("TARQModel");
    ASSERT_THAT(TypeParam::addTo(*other, 5, 6, "of another"), succeeds());
    struct Case {
        const char* name;
        IUnknown* model;
        Variant address;
        Status status;
        const char* description;
        ItemValues values;
    };
    const Variant stranger = objectOf<Stranger>();
    constexpr const char* noModel = "First parameter is no TARQModel object.";
    const Case cases[] = {
        {"another of the model", this->model.get(), Variant(2), status::ok, "", this->second},
        {"the same", this->model.get(), Variant("first"), status::ok, "", this->first},
        {"one of another model", other.get(), Variant(1), status::ok, "", {5, 6, "of another", 1}},
        {"a stranger", stranger.object(), Variant(1), status::wrongClass, noModel, detached(this->first)},
        {"nothing", nullptr, Variant(1), status::wrongClass, noModel, detached(this->first)},
        {"itself", this->object.get(), Variant(1), status::wrongClass, noModel, detached(this->first)},
        {"an unknown name", this->model.get(), Variant("nowhere"), status::invalidArgument, TypeParam::notFound,
         detached(this->first)},
        {"a number too large", other.get(), Variant(2), status::invalidArgument, TypeParam::tooLarge,
         detached(this->first)},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        ASSERT_THAT(this->object->Attach(this->model.get(), Variant(1)), succeeds());
        const Status attached = this->object->Attach(each.model, each.address);
        EXPECT_EQ(attached, each.status);
        if (attached.failed()) {
            const bool isItsOwn = each.description == noModel;
            EXPECT_THAT(attached,
                        raisesAs(isItsOwn ? TypeParam::classId : classid::TARQModel, each.status, each.description));
        }
        EXPECT_EQ(valuesOf(this->object), each.values);
    }
    EXPECT_EQ(this->inModel(1), this->first);
}

TYPED_TEST(ItemStateTest, FailedAttachLeavesTheDetachedObjectItsOwnValues) {
    EXPECT_THAT(this->object->Attach(this->model.get(), Variant("nowhere")),
                raises(status::invalidArgument, TypeParam::notFound));
    EXPECT_EQ(valuesOf(this->object), this->own);
}

TYPED_TEST(ItemStateTest, ObjectsOfOneItemSeeEachOthersPutsAtOnce) {
    const auto one = this->objectOfModel(Variant("first"));
    const auto two = this->objectOfModel(Variant(1));
    EXPECT_NE(one, two);
    ASSERT_THAT(one->put_LB(-1e30), succeeds());
    ASSERT_THAT(two->put_UB(8), succeeds());
    ASSERT_THAT(one->put_Name("renamed"), succeeds());
    EXPECT_EQ(valuesOf(one), (ItemValues{-1e25, 8, "renamed", 1}));
    EXPECT_EQ(valuesOf(two), valuesOf(one));
    EXPECT_EQ(this->inModel(1), valuesOf(one));
}

TYPED_TEST(ItemStateTest, AttachedPutsAreTheModelsToRefuse) {
    const auto item = this->objectOfModel(Variant(1));
    EXPECT_THAT(item->put_LB(12), raises(status::boundOrder, "Lower bound is greater than upper bound."));
    EXPECT_THAT(item->put_UB(0), raises(status::boundOrder, "Lower bound is greater than upper bound."));
    EXPECT_EQ(this->inModel(1), this->first);
    EXPECT_THAT(item->put_Name("second"), raises(TypeParam::duplicateStatus, TypeParam::duplicate));
    EXPECT_EQ(valuesOf(item).name, "") << "a refused name leaves none";

    const std::string name = "member";
    ASSERT_THAT((this->model.get()->*TypeParam::addToFamily)(&name, this->object.get()), succeeds());
    const auto member = this->objectOfModel(Variant("member"));
    EXPECT_THAT(member->put_Name("free"), raises(status::invalidArgument, TypeParam::familyName));
    EXPECT_THAT(member->put_UB(4), succeeds());
    EXPECT_EQ(this->inModel(3), (ItemValues{0, 4, "member", 1}));
}

TYPED_TEST(ItemStateTest, UnsolvedModelsStatusesLeaveTheVariable) {
    const auto item = this->objectOfModel(Variant(1));
    double value = 17;
    EXPECT_EQ(item->get_LPSol(&value), status::noLpSolution);
    EXPECT_EQ(item->get_IPSol(&value), status::noIpSolution);
    EXPECT_EQ(TypeParam::price(*item, &value), status::noLpSolution);
    EXPECT_EQ(value, 17);
    auto state = TARQColRowStatusType::StatusFixed;
    EXPECT_EQ(item->get_Status(&state), status::noLpSolution);
    EXPECT_EQ(state, TARQColRowStatusType::StatusFixed);
}

TYPED_TEST(ItemStateTest, NumberIsPutWithinTheModelAlone) {
    std::int32_t number = 5;
    EXPECT_THAT(this->object->get_ModelIndex(&number),
                raisesAs(TypeParam::classId, status::wrongState, TypeParam::noNumber));
    EXPECT_EQ(number, 0);
    EXPECT_THAT(this->object->put_ModelIndex(1),
                raisesAs(TypeParam::classId, status::wrongState, TypeParam::noNewNumber));

    const auto item = this->objectOfModel(Variant(1));
    ASSERT_THAT(item->put_ModelIndex(2), succeeds());
    for (const std::int32_t wrong : {0, -1, std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_THAT(item->put_ModelIndex(wrong),
                    raisesAs(TypeParam::classId, status::indexOutOfRange, "Index may not be less than 1."));
    }
    EXPECT_THAT(item->put_ModelIndex(3),
                raisesAs(TypeParam::classId, status::indexOutOfRange, TypeParam::newNumberTooLarge));
    EXPECT_EQ(valuesOf(item), this->second);
    EXPECT_EQ(this->inModel(1), this->first);
}

TYPED_TEST(ItemStateTest, StaleNumberStandsForTheNextOneOrForNone) {
    const auto item = this->objectOfModel(Variant(1));
    ASSERT_THAT((this->model.get()->*TypeParam::remove)(Variant(1)), succeeds());
    EXPECT_EQ(valuesOf(item), this->second);

    ASSERT_THAT(this->model->DelModel(), succeeds());
    double value = 17;
    std::string name = "kept";
    EXPECT_THAT(item->get_LB(&value), raises(status::invalidArgument, TypeParam::tooLarge));
    EXPECT_THAT(item->get_UB(&value), raises(status::invalidArgument, TypeParam::tooLarge));
    EXPECT_THAT(item->put_LB(0), raises(status::invalidArgument, TypeParam::tooLarge));
    EXPECT_THAT(item->put_UB(0), raises(status::invalidArgument, TypeParam::tooLarge));
    EXPECT_THAT(item->get_Name(&name), raises(status::indexOutOfRange, "Index out of valid range."));
    EXPECT_THAT(item->put_Name("new"), raises(status::indexOutOfRange, "Index out of valid range."));
    EXPECT_EQ(value, 17);
    EXPECT_EQ(name, "kept");
    EXPECT_EQ(this->numberInModel(item), 1);
}

TYPED_TEST(ItemStateTest, DetachOfAStaleObjectKeepsTheBoundsItCannotReplace) {
    ASSERT_THAT(this->object->Attach(this->model.get(), Variant(1)), succeeds());
    ASSERT_THAT(this->model->DelModel(), succeeds());
    ASSERT_THAT(this->object->Detach(), succeeds());
    EXPECT_EQ(valuesOf(this->object), (ItemValues{3, 4, "", 0}));
}

TYPED_TEST(ItemStateTest, AnyNumberThatAModelSetsIsCheckedByTheModel) {
    const auto item = this->objectOfModel(Variant(1));
    for (const std::int32_t number :
         {0, std::numeric_limits<std::int32_t>::min(), 3, std::numeric_limits<std::int32_t>::max()}) {
        ASSERT_THAT(item->SetITARQModel(this->model.get(), number), succeeds());
        double value = 0;
        EXPECT_EQ(item->get_LB(&value), status::invalidArgument) << number;
        EXPECT_EQ(item->put_UB(5), status::invalidArgument) << number;
    }
    EXPECT_THAT(item->SetITARQModel(this->object.get(), 2),
                raisesAs(TypeParam::classId, status::wrongClass, "First parameter is no TARQModel object."));
    ASSERT_THAT(item->SetITARQModel(this->model.get(), 2), succeeds());
    EXPECT_EQ(valuesOf(item), this->second);
    ASSERT_THAT(item->SetITARQModel(nullptr, 2), succeeds());
    EXPECT_EQ(valuesOf(item).isAttached, 0);
}

TYPED_TEST(ItemStateTest, AttachedObjectKeepsItsModelAliveAndNothingElse) {
    const std::int64_t before = module::liveObjects();
    auto other = createObject<ITARQModel>("TARQModel");
    ITARQModel* const alone = other.get();
    ASSERT_THAT(TypeParam::addTo(*other, 5, 6, "of another"), succeeds());
    ASSERT_THAT(this->object->Attach(alone, Variant(1)), succeeds());
    other = nullptr;
    EXPECT_EQ(module::liveObjects(), before + 1);
    // Each lets go of the model before it takes it again.
    ASSERT_THAT(this->object->Attach(alone, Variant(1)), succeeds());
    ASSERT_THAT((alone->*TypeParam::attach)(this->object.get(), Variant(1)), succeeds());
    ASSERT_THAT((alone->*TypeParam::add)(this->newObject("new", 0, 0).get()), succeeds());
    EXPECT_EQ(valuesOf(this->object), (ItemValues{5, 6, "of another", 1}));
    this->object = nullptr;
    EXPECT_EQ(module::liveObjects(), before - 1);
}

TYPED_TEST(ItemStateTest, OutputsMayNotBeNull) {
    for (const auto& item : {this->object, this->objectOfModel(Variant(1))}) {
        EXPECT_EQ(item->get_LB(nullptr), status::nullPointer);
        EXPECT_EQ(item->get_UB(nullptr), status::nullPointer);
        EXPECT_EQ(item->get_Name(nullptr), status::nullPointer);
        EXPECT_EQ(item->get_LPSol(nullptr), status::nullPointer);
        EXPECT_EQ(item->get_IPSol(nullptr), status::nullPointer);
        EXPECT_EQ(item->get_Status(nullptr), status::nullPointer);
        EXPECT_EQ(TypeParam::price(*item, nullptr), status::nullPointer);
        EXPECT_EQ(item->get_ModelIndex(nullptr), status::nullPointer);
        EXPECT_EQ(item->get_IsAttached(nullptr), status::nullPointer);
        EXPECT_EQ(item->get_Parent(nullptr), status::nullPointer);
    }
}

}  // namespace
}  // namespace tarq
