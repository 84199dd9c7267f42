// Families: reading and writing slices of members, term sums, and the bounds of rows.
#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <random>

#include "familyfixture.h"
#include "tarq/interfaces/itarqarray.h"
#include "tests/support/valuewalks.h"

namespace tarq {
namespace {

template <class Kind>
class FamilyValuesTest : public FamilyTest<Kind> {};
TYPED_TEST_SUITE(FamilyValuesTest, FamilyKinds);

TYPED_TEST(FamilyValuesTest, SlicesReadAsAScalarWhereAllIsEqualElseAsAnArray) {
    ASSERT_THAT(this->putUpper(5), succeeds());
    EXPECT_EQ(this->upper(), "5");
    ASSERT_THAT(this->putUpper(7, 1, 1), succeeds());
    Variant missing = Variant::missing();
    struct Case {
        std::array<Variant, 5> indices;
        const char* shown;
    };
    const Case cases[] = {
        {indices(), "2x3: 7 5 5 5 5 5"},
        {indices(1), "1x3: 7 5 5"},
        {indices(2), "5"},
        {indices(1, 1), "7"},
        {indices("1", 1.0), "7"},
        {indices(Variant::missing(), 1), "2x1: 7 5"},
        {indices(numbers({2, 1}), names({"3", "1"})), "2x2: 5 5 5 7"},
        {indices(Variant::missing(), objectOf<WalkedSeries>(WalkedValues{{Variant(2.0), Variant(1.0)}})),
         "2x2: 5 7 5 5"},
        {indices(numbers({})), "0x3:"},
        {indices(Variant::byReference(missing), 1, Variant::byReference(missing)), "2x1: 7 5"},
    };
    for (const Case& each : cases) {
        Variant value;
        const std::array<Variant, 5>& i = each.indices;
        EXPECT_THAT(this->family->get_UB(i[0], i[1], i[2], i[3], i[4], &value), succeeds());
        EXPECT_EQ(shown(value), each.shown);
    }
}

TYPED_TEST(FamilyValuesTest, WhatIsNoNumberIsAScalarOnItsOwn) {
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    ASSERT_THAT(this->putUpper(none, 1), succeeds());
    Variant value;
    ASSERT_THAT(this->readInto(value, &TypeParam::Family::get_UB, 1, 1), succeeds());
    ASSERT_TRUE(value.is(Kind::Double));
    EXPECT_TRUE(std::isnan(value.real()));
    ASSERT_THAT(this->readInto(value, &TypeParam::Family::get_UB, 1), succeeds());
    EXPECT_TRUE(value.isArray());
}

TYPED_TEST(FamilyValuesTest, SlicesTakeOneValueOrOneForEachMember) {
    struct Case {
        const char* situation;
        Variant value;
        std::array<Variant, 5> indices;
        const char* all;
    };
    const auto array = createObject<ITARQArray>("TARQArray");
    ASSERT_THAT(array->Init(listOf(2, 3)), succeeds());
    ASSERT_THAT(array->SetValues(listOf(1, 2, 3, 4, 5, 6)), succeeds());
    SafeArray table;
    const std::array dimensions{Dimension{3, 2}, Dimension{-1, 4}};
    ASSERT_THAT(SafeArray::create(Kind::Long, dimensions, table), succeeds());
    for (std::int32_t i = 0; i < 8; ++i) ASSERT_THAT(table.putAt(static_cast<std::size_t>(i), Variant(i)), succeeds());
    const Case cases[] = {
        {"a text that reads as a number", Variant("5"), indices(), "5"},
        {"a row", Variant(5), indices(1), "2x3: 5 5 5 9 9 9"},
        {"a vector in the order of the selection", numbers({1, 2, 3, 4}), indices(numbers({2, 1}), numbers({3, 1})),
         "2x3: 4 9 3 2 9 1"},
        {"a longer vector", numbers({1, 2, 3, 4}), indices(2), "2x3: 9 9 9 1 2 3"},
        {"the corner of a table", Variant(table), indices(), "2x3: 0 1 2 4 5 6"},
        {"an array object", Variant(array.template query<IUnknown>()), indices(), "2x3: 1 2 3 4 5 6"},
        {"a series", objectOf<WalkedSeries>(WalkedValues{{Variant(4.0), Variant(6.0)}}), indices(Variant::missing(), 2),
         "2x3: 9 4 9 9 6 9"},
        {"nothing selected", numbers({}), indices(numbers({})), "9"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.situation);
        ASSERT_THAT(this->putUpper(9), succeeds());
        const std::array<Variant, 5>& i = each.indices;
        EXPECT_THAT(this->family->put_UB(i[0], i[1], i[2], i[3], i[4], each.value), succeeds());
        EXPECT_EQ(this->upper(), each.all);
    }
}

TYPED_TEST(FamilyValuesTest, RefusedSliceChangesNothing) {
    struct Case {
        const char* situation;
        Variant value;
        std::array<Variant, 5> indices;
        const char* description;
    };
    const Case cases[] = {
        {"too many indices", Variant(1), indices(1, 1, 1), "Too many indexsets used as parameter."},
        {"an unknown element", Variant(1), indices(3), "Index element '3' is no index element of the base object."},
        {"a fraction", Variant(1), indices(1.5), "Only whole numbers allowed as index value."},
        {"no number", Variant("many"), indices(), "Parameter for value is of wrong type."},
        {"too few values", numbers({1, 2, 3, 4, 5}), indices(), "Not enough elements in value array."},
        {"too few of an object", objectOf<WalkedSeries>(WalkedValues{{Variant(4.0)}}), indices(2),
         "Not enough values passed."},
        {"an array of no numbers", names({"a", "b", "c"}), indices(1), "Value cound not be converted to numeric."},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.situation);
        const std::array<Variant, 5>& i = each.indices;
        EXPECT_THAT(this->family->put_UB(i[0], i[1], i[2], i[3], i[4], each.value),
                    raisedBy(TypeParam::familyId, status::invalidArgument, each.description));
        EXPECT_EQ(this->upper(), "1E+25");
    }
    const std::array<Variant, 5> i = indices();
    EXPECT_EQ(this->family->get_UB(i[0], i[1], i[2], i[3], i[4], nullptr), status::nullPointer);
}

TYPED_TEST(FamilyValuesTest, RefusalByTheModelKeepsTheMembersBefore) {
    ASSERT_THAT(this->write(&TypeParam::Family::put_LB, 2), succeeds());
    EXPECT_THAT(this->putUpper(numbers({4, 3, 1, 5, 6, 7})),
                raises(status::boundOrder, "Lower bound is greater than upper bound."));
    EXPECT_EQ(this->upper(), "2x3: 4 3 1E+25 1E+25 1E+25 1E+25");
    EXPECT_EQ(this->read(&TypeParam::Family::get_LB), "2");
}

TYPED_TEST(FamilyValuesTest, WithoutASolutionTheModelsConditionIsPassedOn) {
    Variant value("as it was");
    EXPECT_EQ(this->readInto(value, &TypeParam::Family::get_LPSol), status::noLpSolution);
    EXPECT_EQ(this->readInto(value, &TypeParam::Family::get_Status, 1), status::noLpSolution);
    EXPECT_EQ(this->readInto(value, &TypeParam::Family::get_IPSol), status::noIpSolution);
    EXPECT_TRUE(value.isText());
}

/// A block of up to four dimensions written and read by random slices, beside a map from names to values.
TYPED_TEST(FamilyValuesTest, RandomSlicesAgreeWithAMap) {
    std::mt19937 random(20260731);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    for (int round = 0; round < 60; ++round) {
        ASSERT_THAT(this->family->Clear(), succeeds());
        std::vector<std::size_t> sizes(1 + below(4));
        ValueList dimensions;
        std::vector<std::string> members{"f"};
        for (std::size_t& size : sizes) {
            size = 1 + below(4);
            ASSERT_THAT(dimensions.append(Variant(static_cast<std::int32_t>(size))), succeeds());
            std::vector<std::string> longer;
            for (const std::string& member : members) {
                for (std::size_t i = 1; i <= size; ++i) longer.push_back(member + "." + std::to_string(i));
            }
            members = longer;
        }
        ASSERT_THAT(this->family->Init(this->model.get(), "f", dimensions), succeeds());
        std::map<std::string, double> expected;
        for (const std::string& member : members) expected[member] = 1e25;
        for (int step = 0; step < 8; ++step) {
            std::array<Variant, 5> i = indices();
            std::vector<std::string> selected{"f"};
            for (std::size_t d = 0; d < sizes.size(); ++d) {
                std::vector<double> elements;
                for (std::size_t e = 1; e <= sizes[d]; ++e) elements.push_back(static_cast<double>(e));
                if (below(3) > 0) {
                    std::ranges::shuffle(elements, random);
                    elements.resize(1 + below(elements.size()));
                    i[d] = elements.size() == 1 ? Variant(elements[0]) : numbers(elements);
                }
                std::vector<std::string> longer;
                for (const std::string& name : selected) {
                    for (const double e : elements) longer.push_back(name + "." + std::to_string(std::lround(e)));
                }
                selected = longer;
            }
            std::vector<double> values;
            for (std::size_t k = 0; k < selected.size(); ++k) values.push_back(static_cast<double>(below(3)));
            for (std::size_t k = 0; k < selected.size(); ++k) expected[selected[k]] = values[k];
            ASSERT_THAT(this->family->put_UB(i[0], i[1], i[2], i[3], i[4], numbers(values)), succeeds());
            Variant read;
            ASSERT_THAT(this->family->get_UB(i[0], i[1], i[2], i[3], i[4], &read), succeeds());
            if (read.isArray()) {
                EXPECT_THAT(read.array().template elements<double>(), testing::ElementsAreArray(values));
            } else {
                EXPECT_THAT(values, testing::Each(read.real()));
            }
        }
        for (const auto& [member, value] : expected) {
            ASSERT_EQ(this->template valueOf<double>(TypeParam::upperBound, Variant(member)), value) << member;
        }
    }
}

class ColumnFamilyTest : public FamilyTest<ColumnFamilies> {};

TEST_F(ColumnFamilyTest, CostsAndTypesAreReadAndWrittenToo) {
    ASSERT_THAT(write(&ITARQVarSet::put_Cost, numbers({1, 2, 3}), 2), succeeds());
    EXPECT_EQ(read(&ITARQVarSet::get_Cost), "2x3: 0 0 0 1 2 3");
    EXPECT_EQ(read(&ITARQVarSet::get_Type), "0l");
    ASSERT_THAT(write(&ITARQVarSet::put_Type, "2", 1, 1), succeeds());
    EXPECT_EQ(read(&ITARQVarSet::get_Type, 1), "1x3: 2l 0l 0l");
    EXPECT_EQ(upper(1), "1x3: 1 1E+25 1E+25");
    EXPECT_THAT(write(&ITARQVarSet::put_Type, numbers({1, 3}), 2),
                raisedBy(classid::TARQVarSet, status::invalidArgument, "Not enough elements in value array."));
    EXPECT_THAT(write(&ITARQVarSet::put_Type, numbers({1, 3, 1}), 2),
                raises(status::invalidArgument, "Invalid type. Column index: 7"));
    EXPECT_EQ(read(&ITARQVarSet::get_Type, 2), "1x3: 1l 0l 0l");
    EXPECT_THAT(putUpper(4, 1), raises(status::invalidArgument, "Columns of type 'Binary' must have UB=1."));
}

TEST_F(ColumnFamilyTest, MembersAreNamedByTheirNumber) {
    std::string name;
    EXPECT_THAT(family->get_VarName(4, &name), succeeds());
    EXPECT_EQ(name, "x.2.1");
    for (const std::int32_t number : {0, 7, -1}) {
        EXPECT_THAT(family->get_VarName(number, &name),
                    raisedBy(classid::TARQVarSet, status::indexOutOfRange, "Index out of valid range."));
    }
    EXPECT_EQ(family->get_VarName(1, nullptr), status::nullPointer);
    EXPECT_EQ(newFamily()->get_VarName(1, &name), status::notInitialized);
}

TEST_F(ColumnFamilyTest, SolutionIsReadAsArrays) {
    ASSERT_THAT(putUpper(numbers({1, 2, 3, 4, 5, 6})), succeeds());
    ASSERT_THAT(write(&ITARQVarSet::put_Cost, 1), succeeds());
    ASSERT_THAT(write(&ITARQVarSet::put_Cost, -1, 1, 1), succeeds());
    ASSERT_THAT(model->put_Parameter("xminmx", Variant("MAX")), succeeds());
    ASSERT_THAT(model->Optimize(), succeeds());
    EXPECT_EQ(read(&ITARQVarSet::get_LPSol), "2x3: 0 2 3 4 5 6");
    EXPECT_EQ(read(&ITARQVarSet::get_RedCost, 2), "1");
    Variant status;
    EXPECT_THAT(readInto(status, &ITARQVarSet::get_Status), succeeds());
    EXPECT_EQ(status.array().elementKind(), Kind::Long);
}

class RowFamilyTest : public FamilyTest<RowFamilies> {
protected:
    RowFamilyTest() {
        for (const char* name : {"a", "b", "c"}) {
            EXPECT_THAT(model->AddCol(0, 1, TARQColType::Continuous, Variant::missing(), Variant(name)), succeeds());
        }
    }
    /// "a b c" of a row.
    std::string coefficients(const char* row) {
        std::string all;
        for (const char* column : {"a", "b", "c"}) {
            Variant value(valueOf<double>(&ITARQModel::get_NZ, Variant(row), Variant(column)));
            EXPECT_TRUE(value.toText());
            all.append(all.empty() ? "" : " ").append(value.text());
        }
        return all;
    }
    std::string bounds() { return read(&ITARQResSet::get_LB) + " | " + upper(); }
};

TEST_F(RowFamilyTest, BoundsAreSetInOneSense) {
    ASSERT_THAT(family->SetLT(numbers({1, 2}), Variant::missing(), Variant(1)), succeeds());
    EXPECT_EQ(bounds(), "2x3: -1E+25 0 0 -1E+25 0 0 | 2x3: 1 1E+25 1E+25 2 1E+25 1E+25");
    ASSERT_THAT(family->SetEQ(Variant(-5)), succeeds());
    EXPECT_EQ(bounds(), "-5 | -5");
    ASSERT_THAT(family->SetGT(numbers({1, 2, 3, 4, 5, 6})), succeeds());
    EXPECT_EQ(bounds(), "2x3: 1 2 3 4 5 6 | 1E+25");
    ASSERT_THAT(family->SetEQ(numbers({7, 8, 9}), Variant(1)), succeeds());
    EXPECT_EQ(bounds(), "2x3: 7 8 9 4 5 6 | 2x3: 7 8 9 1E+25 1E+25 1E+25");

    // The first of the two puts stays where the second is refused.
    EXPECT_EQ(family->SetLT(Variant("many")), status::invalidArgument);
    EXPECT_EQ(bounds(), "-1E+25 | 2x3: 7 8 9 1E+25 1E+25 1E+25");
    EXPECT_EQ(family->SetGT(Variant(1), Variant(9)), status::invalidArgument);
    EXPECT_EQ(newFamily()->SetEQ(Variant(1)), status::notInitialized);
}

TEST_F(RowFamilyTest, SumAddsTheSameFormToEveryRow) {
    ASSERT_THAT(family->Sum(listOf(2, "a", names({"b", "c"}))), succeeds());
    ASSERT_THAT(family->Sum(listOf(numbers({1, -1}), names({"a", "b"}))), succeeds());
    for (const char* row : {"x.1.1", "x.2.3"}) EXPECT_EQ(coefficients(row), "3 0 1");
    EXPECT_EQ(coefficients("first"), "0 0 0");
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_NumberOfNZ), 12);
    ASSERT_THAT(family->Sum({}), succeeds());
}

TEST_F(RowFamilyTest, RefusedSumKeepsTheTermsBefore) {
    const auto refused = [](const char* text) { return raisedBy(classid::TARQResSet, status::invalidArgument, text); };
    EXPECT_THAT(family->Sum(listOf("a", 3)),
                refused("Last argument are coefficients without corresponding column(s)."));
    EXPECT_EQ(coefficients("x.1.1"), "0 0 0");
    EXPECT_THAT(family->Sum(listOf(4, "a", numbers({1, 2}), "b")),
                refused("Number of coefficients does not fit number of columns."));
    EXPECT_EQ(coefficients("x.2.3"), "4 0 0");
    EXPECT_THAT(family->Sum(listOf(1, names({"b", "none"}))),
                raises(status::invalidArgument, "Column name 'none' could not be found."));
    EXPECT_EQ(coefficients("x.1.1"), "4 1 0");
    EXPECT_EQ(coefficients("x.1.2"), "4 0 0");

    EXPECT_THAT(newFamily()->Sum(listOf("a")),
                raisedBy(classid::TARQResSet, status::wrongState, "TARQResSet is not attached to a TARQModel."));
    ASSERT_THAT(family->Clear(), succeeds());
    EXPECT_EQ(family->Sum(listOf("a")), status::notInitialized);
}

TEST_F(RowFamilyTest, SumAfterTheModelIsEmptiedAddsNothing) {
    ASSERT_THAT(model->DelModel(), succeeds());
    ASSERT_THAT(model->AddCol(0, 1, TARQColType::Continuous, Variant::missing(), Variant("a")), succeeds());
    ASSERT_THAT(model->AddRow(0, 1), succeeds());
    EXPECT_EQ(family->Sum(listOf("a")), Status(1));
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_NumberOfNZ), 0);
}

}  // namespace
}  // namespace tarq
