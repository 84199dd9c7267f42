// Whole runs with the engine that comes with the component.
#include "modelfixture.h"

namespace tarq {
namespace {

using testing::DoubleNear;

class SolveTest : public ModelTest {
protected:
    double columnValue(const char* name) { return valueOf<double>(&ITARQModel::get_ColLPSol, Variant(name)); }
};

TEST_F(SolveTest, BeforeAnyRunGettersLeaveTheirVariable) {
    double value = 17;
    EXPECT_EQ(model->get_ColLPSol(Variant("nobody"), &value), status::noLpSolution);
    EXPECT_EQ(model->get_RowIPSol(Variant("nobody"), &value), status::noIpSolution);
    EXPECT_EQ(value, 17);
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_LPObjFunctValue), 0);
}

TEST_F(SolveTest, LinearModelGivesValuesDualsAndStates) {
    buildSmall();
    ASSERT_THAT(model->put_Parameter("xminmx", Variant("MAX")), succeeds());
    ASSERT_THAT(model->Optimize(), succeeds());

    EXPECT_EQ(valueOf<TARQSolverStatusTyp>(&ITARQModel::get_SolverStatus), TARQSolverStatusTyp::LPFinished);
    EXPECT_EQ(valueOf<TARQSolutionStatusTyp>(&ITARQModel::get_SolutionStatus),
              TARQSolutionStatusTyp::LPOptimalSolution);
    EXPECT_THAT(valueOf<double>(&ITARQModel::get_LPObjFunctValue), DoubleNear(15, 1e-6));
    EXPECT_THAT(columnValue("x"), DoubleNear(10, 1e-6));
    EXPECT_THAT(columnValue("y"), DoubleNear(5, 1e-6));
    EXPECT_THAT(valueOf<double>(&ITARQModel::get_RowDual, Variant("r")), DoubleNear(0.5, 1e-6));
    EXPECT_EQ(valueOf<TARQColRowStatusType>(&ITARQModel::get_ColStatus, Variant("y")),
              TARQColRowStatusType::StatusBasic);
    double unchanged = 3;
    EXPECT_EQ(model->get_ColIPSol(Variant("x"), &unchanged), status::noIpSolution);
}

TEST_F(SolveTest, IntegerModelKeepsBothSolutions) {
    buildSmall();
    for (const char* name : {"x", "y", "z"}) {
        ASSERT_THAT(model->put_ColType(Variant(name), TARQColType::Integer), succeeds());
        ASSERT_THAT(model->put_ColUB(Variant(name), 1.5), succeeds());
    }
    ASSERT_THAT(model->put_Parameter("xminmx", Variant("max")), succeeds());
    ASSERT_THAT(model->put_RowRHS(Variant("r"), 4), succeeds());
    ASSERT_THAT(model->Optimize(), succeeds());

    EXPECT_EQ(valueOf<TARQSolutionStatusTyp>(&ITARQModel::get_SolutionStatus),
              TARQSolutionStatusTyp::IPOptimalSolution);
    EXPECT_THAT(valueOf<double>(&ITARQModel::get_IPObjFunctValue), DoubleNear(2, 1e-6));
    EXPECT_THAT(columnValue("x"), DoubleNear(1.5, 1e-6));
    EXPECT_THAT(valueOf<double>(&ITARQModel::get_ColIPSol, Variant("x")), DoubleNear(1, 1e-6));
}

TEST_F(SolveTest, EditAfterARunKeepsTheSolutionUntilTheNextOne) {
    buildSmall();
    ASSERT_THAT(model->Optimize(), succeeds());
    ASSERT_THAT(model->AddCol(0, 1, TARQColType::Continuous, Variant::missing(), Variant("late")), succeeds());
    EXPECT_EQ(columnValue("late"), 0);
    EXPECT_THAT(columnValue("z"), DoubleNear(1.0 / 3.0, 1e-6));
    ASSERT_THAT(model->DelModel(), succeeds());
    double value = 0;
    EXPECT_EQ(model->get_ColLPSol(Variant(std::int32_t{1}), &value), status::noLpSolution);
}

}  // namespace
}  // namespace tarq
