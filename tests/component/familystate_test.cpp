// Families: what Init makes, what renames and clears it, and what is left when the model has moved on.
#include <functional>
#include <utility>

#include "familyfixture.h"
#include "tests/support/valuewalks.h"

namespace tarq {
namespace {

template <class Kind>
class FamilyStateTest : public FamilyTest<Kind> {
protected:
    /// What every member that asks for members answers, and that nothing is written.
    void expectUninitialized(const Ref<typename Kind::Family>& empty) {
        const std::string text = std::string(Kind::familyClass).append(" has not been initialized.");
        const auto refused = raisedBy(Kind::familyId, status::notInitialized, text);
        const std::array<Variant, 5> i = indices();
        Variant value;
        Ref<IUnknown> item;
        std::int32_t number = 9;
        std::string name;
        EXPECT_THAT(empty->get_LB(i[0], i[1], i[2], i[3], i[4], nullptr), refused);
        EXPECT_THAT(empty->get_LPSol(i[0], i[1], i[2], i[3], i[4], &value), refused);
        EXPECT_THAT(empty->put_UB(i[0], i[1], i[2], i[3], i[4], Variant(1)), refused);
        EXPECT_THAT(empty->get_Item(Variant("first"), &item), refused);
        EXPECT_THAT(empty->put_Item(Variant(1), this->object.get()), refused);
        EXPECT_THAT(empty->get_ItemByIndex(i[0], i[1], i[2], i[3], i[4], &item), refused);
        EXPECT_THAT(empty->get__NewEnum(&item), refused);
        EXPECT_THAT(empty->get_SizeOfIndexset(1, &number), refused);
        EXPECT_THAT(empty->get_IndexsetElement(1, 1, &name), refused);
        EXPECT_THAT(empty->get_Count(&number), succeeds());
        EXPECT_EQ(number, 0);
        EXPECT_THAT(empty->get_NumberOfIndexsets(&number), succeeds());
        EXPECT_EQ(number, 0);
        EXPECT_THAT(empty->get_Name(&name), succeeds());
        EXPECT_THAT(empty->Clear(), succeeds());
    }
};
TYPED_TEST_SUITE(FamilyStateTest, FamilyKinds);

TYPED_TEST(FamilyStateTest, InitAddsAMemberForEachCombinationBehindTheModel) {
    EXPECT_EQ(this->modelNames(), "first second x.1.1 x.1.2 x.1.3 x.2.1 x.2.2 x.2.3");
    EXPECT_EQ(this->memberCount(), 6);
    EXPECT_EQ(this->start(), 3);
    EXPECT_EQ(this->read(&TypeParam::Family::get_LB), "0");
    EXPECT_EQ(this->upper(), "1E+25");
    std::int32_t number = 0;
    std::string name;
    EXPECT_THAT(this->family->get_NumberOfIndexsets(&number), succeeds());
    EXPECT_EQ(number, 2);
    EXPECT_THAT(this->family->get_SizeOfIndexset(2, &number), succeeds());
    EXPECT_EQ(number, 3);
    EXPECT_THAT(this->family->get_IndexsetElement(2, 3, &name), succeeds());
    EXPECT_EQ(name, "3");
    EXPECT_THAT(this->family->get_Name(&name), succeeds());
    EXPECT_EQ(name, "x");
    Ref<IUnknown> parent;
    EXPECT_THAT(this->family->get_Parent(&parent), succeeds());
    EXPECT_EQ(parent.query<ITARQModel>(), this->model);
}

TYPED_TEST(FamilyStateTest, DimensionsComeFromArraysAndObjectsToo) {
    SafeArray letters = SafeArray::of(std::vector<std::string>{"b", "a"});
    const Variant series = objectOf<WalkedSeries>(WalkedValues{{Variant(7.0), Variant(9.0)}});
    const auto other = this->newFamily();
    ASSERT_THAT(other->Init(this->model.get(), "", ValueList({Variant::byReference(letters), series, Variant("1")})),
                succeeds());
    EXPECT_TRUE(this->modelNames().ends_with(" .b.7.1 .b.9.1 .a.7.1 .a.9.1")) << this->modelNames();
}

TYPED_TEST(FamilyStateTest, RefusedInitLeavesWhatItGotTo) {
    using Objects = std::vector<Ref<IUnknown>>;
    SafeArray doubled = SafeArray::of(std::vector<std::string>{"a", "a"});
    SafeArray objects = SafeArray::of(Objects{nullptr});
    const Ref<IUnknown> aModel = this->model.template query<IUnknown>();
    const std::string longName(65, 'n');
    struct Case {
        const char* situation;
        Ref<IUnknown> model;
        std::string name;
        ValueList indexsets;
        Status status;
        const char* description;
        std::int32_t dimensions;
    };
    const Case cases[] = {
        {"no model", this->family.template query<IUnknown>(), "y", listOf(1), status::wrongState,
         "First parameter is no TARQModel.", 0},
        {"null", nullptr, "y", listOf(1), status::wrongState, "First parameter is no TARQModel.", 0},
        {"long name", aModel, longName, listOf(1), status::invalidArgument, "Name is too long.", 0},
        {"no dimensions", aModel, "y", {}, status::invalidArgument, "Empty index set.", 0},
        {"a name as a dimension", aModel, "y", listOf("a"), status::invalidArgument, "Unsupported argument type.", 0},
        {"an array twice the same", aModel, "y", ValueList({Variant(2), Variant::byReference(doubled)}),
         status::invalidArgument, "Duplicate element 'a' in index.", 1},
        {"objects", aModel, "y", ValueList({Variant(2), Variant(2), Variant::byReference(objects)}),
         status::invalidArgument, "Array contains elements of wrong type.", 2},
        {"zero", aModel, "y", listOf(0), status::invalidArgument,
         "Single value as upper limit of index series may not be smaller than 1.", 0},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.situation);
        const auto other = this->newFamily();
        EXPECT_THAT(other->Init(each.model.get(), each.name, each.indexsets),
                    raisedBy(TypeParam::familyId, each.status, each.description));
        std::int32_t number = -1;
        EXPECT_THAT(other->get_Count(&number), succeeds());
        EXPECT_EQ(number, 0);
        EXPECT_THAT(other->get_NumberOfIndexsets(&number), succeeds());
        EXPECT_EQ(number, each.dimensions);
        // With a dimension it counts as initialized, and its members get names though they aren't in the model.
        EXPECT_EQ(other->put_Name("z"), each.dimensions > 0 ? TypeParam::gone : status::ok);
        EXPECT_THAT(other->get_Count(&number), succeeds());
        EXPECT_EQ(number, each.dimensions * 2);
        if (each.dimensions > 0) {
            EXPECT_EQ(other->Init(aModel.get(), "y", listOf(1)), status::wrongState);
            const std::array<Variant, 5> i = indices();
            Variant value;
            EXPECT_EQ(other->get_UB(i[0], i[1], i[2], i[3], i[4], &value), status::invalidArgument);
            EXPECT_EQ(other->put_UB(i[0], i[1], i[2], i[3], i[4], Variant(1)), TypeParam::gone);
            EXPECT_THAT(
                other->put_UB(i[0], i[1], i[2], i[3], i[4], Variant("many")),
                raisedBy(TypeParam::familyId, status::invalidArgument, "Parameter for value is of wrong type."));
            EXPECT_THAT(other->Clear(), succeeds());
        }
        this->expectUninitialized(other);
        EXPECT_EQ(this->count(), 8);
    }
}

TYPED_TEST(FamilyStateTest, NameThatIsTakenEndsInitAndKeepsTheMembersBefore) {
    ASSERT_THAT(this->family->Clear(), succeeds());
    ASSERT_THAT(TypeParam::addTo(*this->model, 0, 5, "x.1.3"), succeeds());
    EXPECT_THAT(this->family->Init(this->model.get(), "x", listOf(2, 3)),
                raisedBy(classid::TARQModel, TypeParam::duplicateStatus, TypeParam::duplicateMember));
    ASSERT_THAT(TypeParam::addTo(*this->model, 0, 5, "own"), succeeds());
    EXPECT_EQ(this->modelNames(), "first second x.1.3 x.1.1 x.1.2 own");
    EXPECT_EQ(this->memberCount(), 6);

    // Behind the members that are there stands a column or row of its own, which no write reaches.
    EXPECT_THAT(this->putUpper(3), raisedBy(TypeParam::familyId, status::indexOutOfRange, "Index out of valid range."));
    EXPECT_EQ(this->upper(1, 1), "3");
    EXPECT_EQ(this->inModel(6).upperBound, 5);
    EXPECT_EQ(this->family->put_Item(Variant(3), this->object.get()), status::indexOutOfRange);
    EXPECT_EQ(this->family->put_Name("y"), status::indexOutOfRange);
    EXPECT_EQ(this->modelNames(), "first second x.1.3 y.1.1 y.1.2 own");
    ASSERT_THAT(this->family->Clear(), succeeds());
    EXPECT_EQ(this->modelNames(), "first second x.1.3 own");
}

TYPED_TEST(FamilyStateTest, SecondInitIsRefusedUntilClear) {
    EXPECT_THAT(this->family->Init(this->model.get(), "y", listOf(1)),
                raisedBy(TypeParam::familyId, status::wrongState,
                         "TARQVarSet has already been initialized. Eventually clear first."));
    ASSERT_THAT(this->family->Clear(), succeeds());
    EXPECT_EQ(this->modelNames(), "first second");
    this->expectUninitialized(this->family);
    Ref<IUnknown> parent;
    EXPECT_THAT(this->family->get_Parent(&parent), succeeds());
    EXPECT_EQ(parent.query<ITARQModel>(), this->model);
    ASSERT_THAT(this->family->Init(this->model.get(), "y", listOf(1)), succeeds());
    EXPECT_EQ(this->modelNames(), "first second y.1");
}

TYPED_TEST(FamilyStateTest, FamilyWithoutAModelIsUninitializedAndCanBeCleared) {
    const auto fresh = this->newFamily();
    Ref<IUnknown> parent = this->model.template query<IUnknown>();
    EXPECT_THAT(fresh->get_Parent(&parent), succeeds());
    EXPECT_FALSE(parent);
    this->expectUninitialized(fresh);
    this->expectUninitialized(fresh);
}

TYPED_TEST(FamilyStateTest, NewNameRenamesEveryMember) {
    EXPECT_THAT(this->family->put_Name(std::string(65, 'n')),
                raisedBy(TypeParam::familyId, status::invalidArgument, "Name too long."));
    EXPECT_EQ(this->upper(2, 3), "1E+25");
    ASSERT_THAT(this->family->put_Name("z"), succeeds());
    EXPECT_EQ(this->modelNames(), "first second z.1.1 z.1.2 z.1.3 z.2.1 z.2.2 z.2.3");
    EXPECT_EQ(this->upper(2, 3), "1E+25");

    // Sixty-four characters, each of two bytes, are no more than a family may have, but more than the model takes.
    std::string umlauts;
    while (umlauts.size() < 128) umlauts.append("\xC3\xA4");
    EXPECT_EQ(this->family->put_Name(umlauts), TypeParam::duplicateStatus);
    EXPECT_TRUE(this->modelNames().ends_with("z.2.3"));
    EXPECT_EQ(this->family->put_Name(umlauts.append("n")), status::invalidArgument);
    ASSERT_THAT(this->family->put_Name("z"), succeeds());
    EXPECT_EQ(this->upper(), "1E+25");

    ASSERT_THAT(TypeParam::addTo(*this->model, 0, 1, "w.1.2"), succeeds());
    EXPECT_EQ(this->family->put_Name("w"), TypeParam::duplicateStatus);
    EXPECT_EQ(this->modelNames(), "first second w.1.1  z.1.3 z.2.1 z.2.2 z.2.3 w.1.2");
}

TYPED_TEST(FamilyStateTest, MembersAreProtectedUntilTheFamilyGoes) {
    EXPECT_THAT((this->model.get()->*TypeParam::remove)(Variant("x.1.2")),
                raises(status::invalidArgument, TypeParam::protectedMember));
    ASSERT_THAT((this->model.get()->*TypeParam::remove)(Variant("first")), succeeds());
    EXPECT_EQ(this->start(), 2);
    ASSERT_THAT(this->putUpper(4, 1, 2), succeeds());
    EXPECT_EQ(this->inModel(3).upperBound, 4);
}

TYPED_TEST(FamilyStateTest, FamilyThatOutlivesItsMembersWritesNowhere) {
    ASSERT_THAT(this->model->DelModel(), succeeds());
    for (std::int32_t number = 0; number < 9; ++number) {
        ASSERT_THAT(TypeParam::addTo(*this->model, 0, 5, ""), succeeds());
    }
    Variant value;
    Ref<IUnknown> item;
    EXPECT_EQ(this->putUpper(1), TypeParam::gone);
    EXPECT_EQ(this->putUpper(1, 1, 1), TypeParam::gone);
    EXPECT_EQ(this->family->put_Name("y"), TypeParam::gone);
    EXPECT_EQ(this->family->get_Item(Variant(1), &item), TypeParam::gone);
    EXPECT_EQ(this->family->put_Item(Variant(1), this->object.get()), TypeParam::gone);
    EXPECT_EQ(this->readInto(value, &TypeParam::Family::get_UB), status::invalidArgument);
    EXPECT_FALSE(item);
    for (std::int32_t number = 1; number <= 9; ++number) EXPECT_EQ(this->inModel(number).upperBound, 5);
    for (int again = 0; again < 2; ++again) EXPECT_THAT(this->family->Clear(), succeeds());
    EXPECT_EQ(this->count(), 9);
}

TYPED_TEST(FamilyStateTest, MembersOutliveTheirFamilyAndAreNobodyElses) {
    for (int round = 0; round < 64; ++round) {
        // The next family is likely to get the address of this one.
        this->family = nullptr;
        this->family = this->newFamily();
        std::int32_t number = 7;
        EXPECT_EQ((this->model.get()->*TypeParam::start)(this->family.get(), &number), TypeParam::gone);
        EXPECT_EQ(number, 7);
        EXPECT_THAT((this->model.get()->*TypeParam::clear)(this->family.get()), succeeds());
        ASSERT_THAT(this->family->Init(this->model.get(), std::string("y").append(std::to_string(round)), listOf(1)),
                    succeeds());
        EXPECT_EQ(this->start(), 9 + round);
    }
    EXPECT_EQ(this->count(), 8 + 64);
    EXPECT_THAT((this->model.get()->*TypeParam::remove)(Variant("x.1.1")),
                raises(status::invalidArgument, TypeParam::protectedMember));
}

TYPED_TEST(FamilyStateTest, AnotherModelTakesTheFamilyOver) {
    const auto next = createObject<ITARQModel>("TARQModel");
    ASSERT_THAT(this->family->Clear(), succeeds());
    ASSERT_THAT(this->family->Init(next.get(), "x", listOf(2, 3)), succeeds());
    EXPECT_EQ(this->count(), 2);
    this->model = next;
    EXPECT_EQ(this->start(), 1);
    ASSERT_THAT(this->putUpper(3, 2), succeeds());
    EXPECT_EQ(this->inModel(4).upperBound, 3);
}

TYPED_TEST(FamilyStateTest, FamilyKeepsItsModelAlive) {
    const std::int64_t before = module::liveObjects();
    this->model = nullptr;
    EXPECT_EQ(module::liveObjects(), before);
    ASSERT_THAT(this->putUpper(2), succeeds());
    this->family = nullptr;
    EXPECT_EQ(module::liveObjects(), before - 2);
}

TYPED_TEST(FamilyStateTest, FamilyTooLargeForAnyModelAddsNothing) {
    const auto other = this->newFamily();
    EXPECT_EQ(other->Init(this->model.get(), "y", listOf(70000, 70000)), status::outOfMemory);
    EXPECT_EQ(this->count(), 8);
    const std::array<Variant, 5> i = indices();
    EXPECT_EQ(other->put_UB(i[0], i[1], i[2], i[3], i[4], Variant(1)), TypeParam::gone);
    EXPECT_EQ(other->put_Name("z"), status::outOfMemory);
    Ref<IUnknown> walk;
    ASSERT_THAT(other->get__NewEnum(&walk), succeeds());
    std::int32_t number = 0;
    EXPECT_EQ(walk.query<typename TypeParam::Enumerator>()->get_Count(&number), status::outOfMemory);
    EXPECT_THAT(other->Clear(), succeeds());
    this->expectUninitialized(other);
}

TYPED_TEST(FamilyStateTest, OthersMayStandForAFamilyToo) {
    const std::string name = "stranger";
    ASSERT_THAT((this->model.get()->*TypeParam::addToFamily)(&name, this->model.get()), succeeds());
    const Ref<IDispatch> sameObject = this->model.template query<IDispatch>();
    std::int32_t number = 0;
    EXPECT_THAT((this->model.get()->*TypeParam::start)(sameObject.get(), &number), succeeds());
    EXPECT_EQ(number, 9);
}

/// A walk that calls something for its only value.
class CallingWalk final : public CountedObject<CallingWalk, ITARQSeriesEnum, IEnumVARIANT> {
public:
    explicit CallingWalk(std::function<void()> call) : call_(std::move(call)) {}
    Status Init(double /*Start*/, double /*End*/, double /*Step*/) override { return status::notImplemented; }
    Status Next(std::uint32_t /*count*/, Variant* values, std::uint32_t* /*fetched*/) override {
        if (!call_) return fewerLeft;
        std::exchange(call_, nullptr)();
        *values = Variant(1);
        return status::ok;
    }
    Status Skip(std::uint32_t /*count*/) override { return status::notImplemented; }
    Status Reset() override { return status::ok; }
    Status Clone(IEnumVARIANT** /*copy*/) override { return status::notImplemented; }

private:
    std::function<void()> call_;
};

TYPED_TEST(FamilyStateTest, ValueThatChangesTheFamilyWhileItIsReadWritesNothing) {
    const Variant caller = objectOf<CallingWalk>([this] {
        EXPECT_THAT(this->family->Clear(), succeeds());
        EXPECT_THAT(this->family->Init(this->model.get(), "y", listOf(3)), succeeds());
    });
    EXPECT_EQ(this->putUpper(caller, 2, 3), status::wrongState);
    EXPECT_EQ(this->modelNames(), "first second y.1 y.2 y.3");
    EXPECT_EQ(this->upper(), "1E+25");

    const auto other = this->newFamily();
    const Variant twice =
        objectOf<CallingWalk>([&] { EXPECT_THAT(other->Init(this->model.get(), "z", listOf(1)), succeeds()); });
    EXPECT_EQ(other->Init(this->model.get(), "w", ValueList({twice})), status::wrongState);
    EXPECT_EQ(this->modelNames(), "first second y.1 y.2 y.3 z.1");
    std::string name;
    EXPECT_THAT(other->get_Name(&name), succeeds());
    EXPECT_EQ(name, "z");
    ASSERT_THAT(other->Clear(), succeeds());
    const auto elsewhere = createObject<ITARQModel>("TARQModel");
    const Variant inBetween = objectOf<CallingWalk>([&] {
        EXPECT_THAT(other->Init(elsewhere.get(), "v", listOf(1)), succeeds());
        EXPECT_THAT(other->Clear(), succeeds());
    });
    EXPECT_THAT(other->Init(this->model.get(), "w", ValueList({inBetween})), succeeds());
    EXPECT_EQ(this->modelNames(), "first second y.1 y.2 y.3 w.1");
}

}  // namespace
}  // namespace tarq
