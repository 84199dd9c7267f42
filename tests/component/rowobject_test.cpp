// What row objects alone can do: bounds in one call and sums of columns.
#include <string_view>
#include <vector>

#include "itemfixture.h"
#include "tests/support/valuewalks.h"

namespace tarq {
namespace {

using RowBoundsTest = ItemTest<RowKind>;

TEST_F(RowBoundsTest, BothBoundsAreSetWhateverTheyWere) {
    using Setter = Status (ITARQRes::*)(double);
    struct Case {
        const char* name;
        Setter set;
        double bound;
        double lower;
        double upper;
    };
    const Case cases[] = {
        {"at most", &ITARQRes::SetLT, -1, -1e25, -1},
        {"at least", &ITARQRes::SetGT, 100, 100, 1e25},
        {"exactly", &ITARQRes::SetEQ, 50, 50, 50},
    };
    const auto attached = objectOfModel(Variant(1));
    for (const auto& each : cases) {
        for (const auto& row : {object, attached}) {
            SCOPED_TRACE(each.name);
            ASSERT_THAT((row.get()->*each.set)(each.bound), succeeds());
            EXPECT_EQ(valuesOf(row).lowerBound, each.lower);
            EXPECT_EQ(valuesOf(row).upperBound, each.upper);
        }
    }
    EXPECT_EQ(inModel(1), valuesOf(attached));
    EXPECT_THAT(attached->SetLT(-1e26), succeeds());
    EXPECT_EQ(valuesOf(attached).upperBound, -1e25) << "the model clamps";
    EXPECT_THAT(object->SetLT(-1e26), succeeds());
    EXPECT_EQ(valuesOf(object).upperBound, -1e26) << "a detached object tests nothing";
}

/// Row r with the coefficients 1, 2 and 3 of x, y and z.
class RowSumTest : public ModelTest {
protected:
    RowSumTest() {
        buildSmall();
        row = valueOf<Ref<IUnknown>>(&ITARQModel::get_Res, Variant("r")).query<ITARQRes>();
    }
    std::vector<double> coefficients() {
        std::vector<double> all;
        for (const char* name : {"x", "y", "z"}) {
            all.push_back(valueOf<double>(&ITARQModel::get_NZ, Variant("r"), Variant(name)));
        }
        return all;
    }

    Ref<ITARQRes> row;
};

TEST_F(RowSumTest, TermsAddUp) {
    const auto y = valueOf<Ref<IUnknown>>(&ITARQModel::get_Var, Variant("y"));
    ASSERT_THAT(row->Sum(ValueList({Variant(2), Variant("x"), Variant(y)})), succeeds());
    EXPECT_EQ(coefficients(), (std::vector<double>{3, 3, 3}));
    const ValueList names({Variant(SafeArray::of(std::vector<std::string>{"x", "z"}))});
    for (int again = 0; again < 2; ++again) ASSERT_THAT(row->Sum(names), succeeds());
    EXPECT_EQ(coefficients(), (std::vector<double>{5, 3, 5}));
    ASSERT_THAT(row->Sum(ValueList({Variant(-3), Variant("y")})), succeeds());
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_NumberOfNZ), 2) << "what adds up to 0 is gone";
}

TEST_F(RowSumTest, FailureKeepsTheTermsAddedBeforeIt) {
    const Variant x("x");
    const Variant y("y");
    struct Case {
        const char* name;
        std::vector<Variant> list;
        Guid classId;
        const char* description;
        double added;
    };
    const Variant two(SafeArray::of(std::vector<double>{1, 2}));
    const Case cases[] = {
        {"coefficients at the end",
         {x, Variant(3)},
         classid::TARQRes,
         "Last argument are coefficients without corresponding column(s).",
         0},
        {"no columns",
         {x, y, objectOf<Stranger>()},
         classid::TARQRes,
         "Passed object cannot be used as an index set.",
         0},
        {"a second term that doesn't fit",
         {Variant(5), x, two, y},
         classid::TARQRes,
         "Number of coefficients does not fit number of columns.",
         5},
        {"an unknown name",
         {Variant(5), x, Variant("nowhere"), x},
         classid::TARQModel,
         "Column name 'nowhere' could not be found.",
         5},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        const double before = coefficients().front();
        EXPECT_THAT(row->Sum(ValueList(each.list)), raisesAs(each.classId, status::invalidArgument, each.description));
        EXPECT_EQ(coefficients(), (std::vector<double>{before + each.added, 2, 3}));
    }
}

TEST_F(RowSumTest, RowMustBeTheModels) {
    const ValueList x({Variant("x")});
    const auto own = createObject<ITARQRes>("TARQRes");
    EXPECT_THAT(own->Sum(x), raisesAs(classid::TARQRes, status::wrongState, "TARQRes is not attached to a TARQModel."));
    ASSERT_THAT(model->DelRow(Variant("r")), succeeds());
    EXPECT_THAT(row->Sum(x), raises(status::invalidArgument, "Row index is greater than number of rows."));
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_NumberOfNZ), 0);
}

using SolvedItemsTest = ModelTest;

TEST_F(SolvedItemsTest, SolutionIsReadAndKeptByDetach) {
    buildSmall();
    ASSERT_THAT(model->put_Parameter("xminmx", Variant("max")), succeeds());
    ASSERT_THAT(model->Optimize(), succeeds());
    const auto y = valueOf<Ref<IUnknown>>(&ITARQModel::get_Var, Variant("y")).query<ITARQVar>();
    const auto r = valueOf<Ref<IUnknown>>(&ITARQModel::get_Res, Variant("r")).query<ITARQRes>();
    for (int round = 0; round < 2; ++round) {
        double value = 0;
        auto state = TARQColRowStatusType::UndefinedVarStatus;
        EXPECT_THAT(y->get_LPSol(&value), succeeds());
        EXPECT_NEAR(value, 5, 1e-6);
        EXPECT_THAT(y->get_Status(&state), succeeds());
        EXPECT_EQ(state, TARQColRowStatusType::StatusBasic);
        EXPECT_THAT(r->get_LPSol(&value), succeeds());
        EXPECT_NEAR(value, 20, 1e-6);
        EXPECT_THAT(r->get_Dual(&value), succeeds());
        EXPECT_NEAR(value, 0.5, 1e-6);
        EXPECT_EQ(y->get_IPSol(&value), round == 0 ? status::noIpSolution : status::ok);
        ASSERT_THAT(y->Detach(), succeeds());
        ASSERT_THAT(r->Detach(), succeeds());
    }
    // The copy of the next state has no solution, which must not leave the old one.
    ASSERT_THAT(model->DelModel(), succeeds());
    buildSmall();
    ASSERT_THAT(y->Attach(model.get(), Variant("y")), succeeds());
    ASSERT_THAT(y->Detach(), succeeds());
    double value = 9;
    EXPECT_THAT(y->get_LPSol(&value), succeeds());
    EXPECT_EQ(value, 0);
}

}  // namespace
}  // namespace tarq
