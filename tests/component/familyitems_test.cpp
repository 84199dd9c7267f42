// Families: their members as objects, one by one and walked, and families where columns or rows are listed.
#include "familyfixture.h"
#include "tests/support/valuewalks.h"

namespace tarq {
namespace {

template <class Kind>
class FamilyItemsTest : public FamilyTest<Kind> {
protected:
    using Enumerator = typename Kind::Enumerator;

    template <class... Indices>
    Ref<Enumerator> selected(const Indices&... given) {
        const std::array<Variant, 5> i = indices(given...);
        Ref<IUnknown> made;
        EXPECT_THAT(this->family->get_Enum(i[0], i[1], i[2], i[3], i[4], &made), succeeds());
        return made.template query<Enumerator>();
    }
    /// Names of what is left.
    std::string walked(const Ref<Enumerator>& enumerator) {
        std::string all;
        Variant value;
        std::int32_t fetched = 0;
        while (enumerator->VB_Next(&value, &fetched).isOk()) {
            EXPECT_EQ(fetched, 1);
            all.append(all.empty() ? "" : " ").append(this->nameOf(Ref<IUnknown>(value.object())));
        }
        EXPECT_EQ(fetched, 0);
        return all;
    }
    std::string item(const Variant& index) {
        Ref<IUnknown> made;
        EXPECT_THAT(this->family->get_Item(index, &made), succeeds());
        return this->nameOf(made);
    }
};
TYPED_TEST_SUITE(FamilyItemsTest, FamilyKinds);

TYPED_TEST(FamilyItemsTest, ItemIsAMemberByNumberOrAnythingInTheModelByName) {
    EXPECT_EQ(this->item(Variant(3)), "x.1.3");
    EXPECT_EQ(this->item(Variant(5.6)), "x.2.3");
    EXPECT_EQ(this->item(Variant("x.1.3")), "x.1.3");
    EXPECT_EQ(this->item(Variant("second")), "second");
    Ref<IUnknown> one;
    Ref<IUnknown> other;
    EXPECT_THAT(this->family->get_Item(Variant(1), &one), succeeds());
    EXPECT_THAT(this->family->get_Item(Variant(1), &other), succeeds());
    EXPECT_FALSE(one == other);
    EXPECT_EQ(this->family->get_Item(Variant(1), nullptr), status::nullPointer);
}

TYPED_TEST(FamilyItemsTest, IndexThatIsNoneIsRefusedBeforeTheObject) {
    struct Case {
        Variant index;
        Status status;
        std::string description;
        const Guid& raiser;
    };
    const Case cases[] = {
        {Variant(7), status::indexOutOfRange, "Index out of valid range.", TypeParam::familyId},
        {Variant(0), status::indexOutOfRange, "Index out of valid range.", TypeParam::familyId},
        {Variant::missing(), status::invalidArgument, "Index is not convertible to integer", TypeParam::familyId},
        {Variant(1e10), status::invalidArgument, "Index is not convertible to integer", TypeParam::familyId},
        {numbers({1}), status::invalidArgument, "Index is not convertible to integer", TypeParam::familyId},
        {Variant("nowhere"), status::invalidArgument, TypeParam::notFound, classid::TARQModel},
    };
    for (const Case& each : cases) {
        Ref<IUnknown> item;
        EXPECT_THAT(this->family->get_Item(each.index, &item), raisedBy(each.raiser, each.status, each.description));
        EXPECT_FALSE(item);
        EXPECT_THAT(this->family->put_Item(each.index, nullptr), raisedBy(each.raiser, each.status, each.description));
    }
}

TYPED_TEST(FamilyItemsTest, PutCopiesAnObjectsDataAndKeepsTheName) {
    ASSERT_THAT(this->family->put_Item(Variant(2), this->object.get()), succeeds());
    EXPECT_EQ(this->inModel(4), (ItemValues{3, 4, "x.1.2", 1}));
    const std::array<Variant, 5> i = indices(2, "1");
    ASSERT_THAT(this->family->put_ItemByIndex(i[0], i[1], i[2], i[3], i[4], this->object.get()), succeeds());
    EXPECT_EQ(this->inModel(6), (ItemValues{3, 4, "x.2.1", 1}));
    EXPECT_EQ(valuesOf(this->object), this->own);
    for (IUnknown* const wrong : {static_cast<IUnknown*>(nullptr), static_cast<IUnknown*>(this->family.get())}) {
        EXPECT_THAT(this->family->put_Item(Variant(2), wrong),
                    raisedBy(TypeParam::familyId, status::wrongState, TypeParam::noObjectToCopy));
    }
}

TYPED_TEST(FamilyItemsTest, IndicesSelectExactlyOneItem) {
    Ref<IUnknown> item;
    std::array<Variant, 5> i = indices(2, 3);
    ASSERT_THAT(this->family->get_ItemByIndex(i[0], i[1], i[2], i[3], i[4], &item), succeeds());
    EXPECT_EQ(this->nameOf(item), "x.2.3");
    for (const std::array<Variant, 5>& wrong : {indices(1), indices(), indices(1, numbers({}))}) {
        const auto several = raisedBy(TypeParam::familyId, status::wrongState, TypeParam::onlyOne);
        EXPECT_THAT(this->family->get_ItemByIndex(wrong[0], wrong[1], wrong[2], wrong[3], wrong[4], &item), several);
        EXPECT_THAT(this->family->put_ItemByIndex(wrong[0], wrong[1], wrong[2], wrong[3], wrong[4], nullptr), several);
    }
    EXPECT_EQ(this->family->get_ItemByIndex(i[0], i[1], i[2], i[3], i[4], nullptr), status::nullPointer);
}

TYPED_TEST(FamilyItemsTest, EnumeratorGivesANewObjectForEachMember) {
    EXPECT_EQ(this->walked(this->selected()), "x.1.1 x.1.2 x.1.3 x.2.1 x.2.2 x.2.3");
    const auto enumerator = this->selected(Variant::missing(), names({"3", "1"}));
    std::int32_t count = 0;
    EXPECT_THAT(enumerator->get_Count(&count), succeeds());
    EXPECT_EQ(count, 4);
    std::string name;
    EXPECT_THAT(enumerator->get_ItemName(4, &name), succeeds());
    EXPECT_EQ(name, "x.2.1");
    const auto outside =
        raisedBy(TypeParam::enumeratorId, status::indexOutOfRange, std::string("Index out of valid range."));
    for (const std::int32_t number : {0, 5}) EXPECT_THAT(enumerator->get_ItemName(number, &name), outside);
    EXPECT_EQ(enumerator->get_ItemName(1, nullptr), status::nullPointer);

    EXPECT_EQ(this->walked(enumerator), "x.1.3 x.1.1 x.2.3 x.2.1");
    ASSERT_THAT(enumerator->VB_Reset(), succeeds());
    ASSERT_THAT(enumerator->VB_Skip(3), succeeds());
    EXPECT_EQ(enumerator->VB_Skip(1), IEnumVARIANT::fewerLeft);
    EXPECT_EQ(enumerator->VB_Skip(-1), IEnumVARIANT::fewerLeft);
    EXPECT_EQ(this->walked(enumerator), "x.2.1");

    Ref<IUnknown> again;
    ASSERT_THAT(enumerator->get__NewEnum(&again), succeeds());
    const Ref<IEnumVARIANT> values = again.template query<IEnumVARIANT>();
    std::array<Variant, 3> items;
    std::uint32_t fetched = 0;
    ASSERT_THAT(values->Next(3, items.data(), &fetched), succeeds());
    EXPECT_EQ(this->nameOf(Ref<IUnknown>(items[2].object())), "x.2.3");
    EXPECT_EQ(values->Next(3, items.data(), &fetched), IEnumVARIANT::fewerLeft);
    EXPECT_EQ(fetched, 1);
    EXPECT_EQ(values->Next(1, nullptr, nullptr), status::nullPointer);
    IEnumVARIANT* copy = nullptr;
    EXPECT_EQ(values->Clone(&copy), status::notImplemented);
}

TYPED_TEST(FamilyItemsTest, SelectionAndNamesAreFixedWhenTheEnumeratorIsMade) {
    const auto enumerator = this->selected(1);
    Variant value;
    std::int32_t fetched = 7;
    ASSERT_THAT(enumerator->VB_Next(&value, &fetched), succeeds());
    ASSERT_THAT(this->family->put_Name("y"), succeeds());
    EXPECT_EQ(enumerator->VB_Next(&value, &fetched), status::invalidArgument);
    ASSERT_THAT(this->family->Clear(), succeeds());
    EXPECT_EQ(enumerator->VB_Next(&value, &fetched), status::notInitialized);
    EXPECT_EQ(fetched, 1);
    std::string name;
    EXPECT_THAT(enumerator->get_ItemName(3, &name), succeeds());
    EXPECT_EQ(name, "x.1.3");
}

TYPED_TEST(FamilyItemsTest, EnumeratorNeedsAFamily) {
    const auto enumerator = createObject<typename TypeParam::Enumerator>(TypeParam::enumeratorClass);
    const auto expectUninitialized = [&] {
        const auto refused =
            raisedBy(TypeParam::enumeratorId, status::notInitialized, "Enumerator has not been initialized.");
        Variant value;
        std::int32_t number = 0;
        std::string name;
        Ref<IUnknown> made;
        EXPECT_THAT(enumerator->VB_Next(&value, &number), refused);
        EXPECT_THAT(enumerator->VB_Skip(1), refused);
        EXPECT_THAT(enumerator->VB_Reset(), refused);
        EXPECT_THAT(enumerator->get_Count(&number), refused);
        EXPECT_THAT(enumerator->get_ItemName(9, &name), refused);
        EXPECT_EQ(enumerator->get_ItemName(9, nullptr), status::nullPointer);
        EXPECT_THAT(enumerator->get__NewEnum(&made),
                    raisedBy(TypeParam::enumeratorId, status::notInitialized,
                             std::string(TypeParam::enumeratorClass).append(" is not initialized.")));
    };
    expectUninitialized();
    for (IUnknown* const wrong : {static_cast<IUnknown*>(nullptr), static_cast<IUnknown*>(this->model.get())}) {
        EXPECT_THAT(enumerator->Init(wrong), raisedBy(TypeParam::enumeratorId, status::invalidArgument,
                                                      "First paramter is no TARQResSet or TARQVarSet."));
    }
    EXPECT_THAT(enumerator->Init(this->family.get(), Variant("9")),
                raisedBy(TypeParam::enumeratorId, status::invalidArgument,
                         "Index element '9' is no index element of the base object."));
    expectUninitialized();
    ASSERT_THAT(enumerator->Init(this->family.get(), Variant(2)), succeeds());
    EXPECT_EQ(this->walked(enumerator), "x.2.1 x.2.2 x.2.3");
    ASSERT_THAT(enumerator->Init(this->family.get(), Variant(1), Variant(2)), succeeds());
    EXPECT_EQ(this->walked(enumerator), "x.1.2");
    ASSERT_THAT(enumerator->Init(this->newFamily().get()), succeeds());
    EXPECT_EQ(this->walked(enumerator), "");
}

TYPED_TEST(FamilyItemsTest, EnumeratorKeepsItsFamilyAlive) {
    const auto enumerator = this->selected(2);
    this->family = nullptr;
    this->model = nullptr;
    EXPECT_EQ(this->walked(enumerator), "x.2.1 x.2.2 x.2.3");
}

/// Families where the model wants lists of columns and rows.
class ListedFamiliesTest : public FamilyTest<ColumnFamilies> {
protected:
    ListedFamiliesTest() : rows(createObject<ITARQResSet>("TARQResSet")) {
        EXPECT_THAT(model->AddRow(0, 1, Variant("before")), succeeds());
        EXPECT_THAT(rows->Init(model.get(), "r", listOf(2)), succeeds());
    }
    template <class Object>
    static Variant list(const Ref<Object>& object) {
        return Variant(object.template query<IUnknown>());
    }
    template <class Set, class... Indices>
    static Variant slice(const Ref<Set>& set, const Indices&... given) {
        const std::array<Variant, 5> i = indices(given...);
        Ref<IUnknown> made;
        EXPECT_THAT(set->get_Enum(i[0], i[1], i[2], i[3], i[4], &made), succeeds());
        return Variant(made);
    }
    std::vector<double> matrix() {
        const auto values = valueOf<Variant>(&ITARQModel::get_NZs, list(rows), list(family));
        const std::span<const double> elements = values.array().elements<double>();
        return {elements.begin(), elements.end()};
    }

    Ref<ITARQResSet> rows;
};

TEST_F(ListedFamiliesTest, FamilyAndItsSlicesNameTheirMembers) {
    ASSERT_THAT(model->put_NZs(list(rows), list(family), numbers({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12})), succeeds());
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_NZ, Variant("r.2"), Variant("x.1.1")), 7);
    const Variant column = slice(family, Variant::missing(), 3);
    ASSERT_THAT(model->SetNZStair(slice(rows, numbers({2, 1})), column, numbers({-1, -2})), succeeds());
    EXPECT_THAT(matrix(), testing::ElementsAre(1, 2, 3, 4, 5, -2, 7, 8, -1, 10, 11, 12));
    EXPECT_EQ(shown(valueOf<Variant>(&ITARQModel::get_NZs, Variant("r.1"), Variant("x.1.2"))), "2");
}

TEST_F(ListedFamiliesTest, FamilyOfNoUseAsAListIsRefused) {
    Variant value;
    const auto unused = createObject<ITARQVarSet>("TARQVarSet");
    const auto unusedRows = createObject<ITARQResSet>("TARQResSet");
    EXPECT_THAT(model->get_NZs(list(rows), list(unused), &value),
                raises(status::wrongState, "TARQVarSet is not part of the model"));
    EXPECT_EQ(model->get_NZs(list(unusedRows), list(family), &value), Status(1));
    EXPECT_THAT(model->get_NZs(list(family), list(family), &value),
                raises(status::invalidArgument, "Bad type of object for row indices."));
    EXPECT_THAT(model->get_NZs(list(rows), list(rows), &value),
                raises(status::invalidArgument, "Bad type of object for col indices."));
    const auto enumerator = createObject<ITARQVarSetEnum>("TARQVarSetEnum");
    EXPECT_THAT(model->get_NZs(list(rows), list(enumerator), &value),
                raisedBy(classid::TARQVarSetEnum, status::notInitialized, "Enumerator has not been initialized."));
    const Variant old = slice(family, 1);
    ASSERT_THAT(family->put_Name("y"), succeeds());
    EXPECT_THAT(model->get_NZs(list(rows), old, &value),
                raises(status::invalidArgument, "Column name 'x.1.1' could not be found."));
    EXPECT_TRUE(value.isEmpty());
}

TEST_F(ListedFamiliesTest, FamilyWhoseMembersAreNotAllThereIsRefused) {
    const auto partial = createObject<ITARQVarSet>("TARQVarSet");
    ASSERT_THAT(model->AddCol(0, 1, TARQColType::Continuous, Variant::missing(), Variant("p.2")), succeeds());
    ASSERT_EQ(partial->Init(model.get(), "p", listOf(2)), status::badColumnName);
    Variant value;
    EXPECT_THAT(model->get_NZs(list(rows), list(partial), &value),
                raises(status::invalidArgument, "Column index is greater than number of columns."));
}

TEST_F(ListedFamiliesTest, TermListsTakeFamiliesAndSlices) {
    ASSERT_THAT(
        model->AddObjSum(listOf(2, list(family), numbers({5, 6}), slice(family, Variant::missing(), 2), "first")),
        succeeds());
    EXPECT_EQ(read(&ITARQVarSet::get_Cost), "2x3: 2 5 2 2 6 2");
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_ColCost, Variant("first")), 1);
    ASSERT_THAT(rows->Sum(listOf(list(family), -1, slice(family, 2))), succeeds());
    EXPECT_THAT(matrix(), testing::ElementsAre(1, 1, 1, 0, 0, 0, 1, 1, 1, 0, 0, 0));

    // An enumerator is asked before anything is stored.
    const auto enumerator = createObject<ITARQVarSetEnum>("TARQVarSetEnum");
    EXPECT_THAT(model->AddObjSum(listOf(7, list(family), list(enumerator))),
                raises(status::invalidArgument, "Enumerator has not been initialized."));
    EXPECT_THAT(model->AddObjSum(listOf(7, list(rows))),
                raises(status::invalidArgument, "Passed object cannot be used as an index set."));
    EXPECT_EQ(read(&ITARQVarSet::get_Cost, 1, 1), "2");
}

}  // namespace
}  // namespace tarq
