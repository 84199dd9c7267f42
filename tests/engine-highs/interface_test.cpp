// The C border: what is refused, and with which words; operations out of order; parameters and results as text.
#include <cmath>
#include <functional>
#include <limits>

#include "loadedengine.h"

namespace tarq::test {

using testing::HasSubstr;
using testing::StartsWith;

class InterfaceTest : public EngineTest {
protected:
    /// PutModel with the model's arrays, after `spoil` has had its way with the arguments.
    struct Arguments {
        double infinity = infinite;
        std::int32_t rows = 2;
        std::int32_t columns = 2;
        std::int32_t nonzeros = 4;
        std::vector<std::int32_t> rowIndices{1, 1, 2, 2};
        std::vector<std::int32_t> columnIndices{1, 2, 1, 2};
        std::vector<double> values{1, 1, 1, 3};
        std::vector<double> lower{0, 0, -infinite, -infinite};
        std::vector<double> upper{3, infinite, 4, 6};
        std::vector<double> cost{-1, -2};
        std::vector<std::int32_t> type{0, 0};
        bool nullNonzeros = false;
        bool nullBounds = false;
        bool nullColumns = false;
    };

    [[nodiscard]] std::int32_t putArguments(const Arguments& given) const {
        return operation<decltype(PutModel)>("PutModel")(
            0, given.infinity, given.rows, given.columns, given.nonzeros,
            given.nullNonzeros ? nullptr : given.rowIndices.data(), given.columnIndices.data(), given.values.data(),
            given.nullBounds ? nullptr : given.lower.data(), given.upper.data(),
            given.nullColumns ? nullptr : given.cost.data(), given.type.data());
    }
};

TEST_F(InterfaceTest, RejectedModelsSayWhy) {
    struct Case {
        const char* message;
        std::function<void(Arguments&)> spoil;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const std::vector<Case> cases{
        {"Row index 3 of nonzero 2 is outside 1 to 2.", [](Arguments& a) { a.rowIndices[1] = 3; }},
        {"Row index 0 of nonzero 1", [](Arguments& a) { a.rowIndices[0] = 0; }},
        {"Column index -7 of nonzero 4", [](Arguments& a) { a.columnIndices[3] = -7; }},
        {"Column index 2147483647 of nonzero 4", [](Arguments& a) { a.columnIndices[3] = 2147483647; }},
        {"Row 1 and column 2 have two coefficients.", [](Arguments& a) { a.rowIndices[3] = 1; }},
        {"The coefficient nan in row 2 and column 1", [=](Arguments& a) { a.values[2] = nan; }},
        {"The coefficient inf in row 1", [=](Arguments& a) { a.values[0] = inf; }},
        {"The coefficient 1e+15 in row 1", [](Arguments& a) { a.values[0] = 1e15; }},
        {"The cost nan of column 2", [=](Arguments& a) { a.cost[1] = nan; }},
        {"The cost -inf of column 1", [=](Arguments& a) { a.cost[0] = -inf; }},
        {"The lower bound 4 of column 1 is above its upper bound 3.", [](Arguments& a) { a.lower[0] = 4; }},
        {"The lower bound 9 of row 2 is above its upper bound 6.", [](Arguments& a) { a.lower[3] = 9; }},
        {"A bound of row 1 is not a number.", [=](Arguments& a) { a.upper[2] = nan; }},
        {"The lower bound of column 2 is infinite.", [](Arguments& a) { a.lower[1] = infinite; }},
        {"The upper bound of row 1 is infinite.", [](Arguments& a) { a.upper[2] = -infinite; }},
        {"The type 3 of column 1 is unknown.", [](Arguments& a) { a.type[0] = 3; }},
        {"The model has -1 rows", [](Arguments& a) { a.rows = -1; }},
        {"2147483647 rows and 2 columns are more", [](Arguments& a) { a.rows = 2147483647; }},
        {"The model has 2 rows, 2 columns and -4 nonzeros.", [](Arguments& a) { a.nonzeros = -4; }},
        {"0 can't stand for infinity.", [](Arguments& a) { a.infinity = 0; }},
        {"nan can't stand for infinity.", [=](Arguments& a) { a.infinity = nan; }},
        {"The arrays of the nonzeros are missing.", [](Arguments& a) { a.nullNonzeros = true; }},
        {"The arrays of the bounds are missing.", [](Arguments& a) { a.nullBounds = true; }},
        {"The arrays of the columns are missing.", [](Arguments& a) { a.nullColumns = true; }},
    };
    for (const Case& rejected : cases) {
        Arguments arguments;
        ASSERT_EQ(putArguments(arguments), 0) << message();
        rejected.spoil(arguments);
        EXPECT_EQ(putArguments(arguments), 2) << rejected.message;
        EXPECT_THAT(message(), StartsWith(rejected.message));
        std::int32_t ignored = 0;
        double value = 0.0;
        EXPECT_EQ(operation<decltype(OptimizeLP)>("OptimizeLP")(0, &ignored, &ignored, &ignored, &value, &value), 2);
    }
}

TEST_F(InterfaceTest, UnsortedNonzerosAreTaken) {
    Arguments arguments;
    arguments.rowIndices = {2, 2, 1, 1};
    arguments.values = {1, 3, 1, 1};
    ASSERT_EQ(putArguments(arguments), 0);
    ASSERT_EQ(put(smallLp()), 0);
    EXPECT_NEAR(solveLp().objective, -5, 1e-9);
}

TEST_F(InterfaceTest, OperationsOutOfOrderFail) {
    std::int32_t whole = 0;
    double real = 0.0;
    const auto optimizeLpNow = [&] {
        return operation<decltype(OptimizeLP)>("OptimizeLP")(0, &whole, &whole, &whole, &real, &real);
    };
    const auto optimizeIpNow = [&] {
        return operation<decltype(OptimizeIP)>("OptimizeIP")(-1, &whole, &whole, &whole, &real, &real);
    };
    const auto lpSolution = operation<decltype(GetLPSolution)>("GetLPSolution");
    const auto ipSolution = operation<decltype(GetIPSolution)>("GetIPSolution");
    std::vector<double> values(8);
    std::vector<std::int32_t> states(8);

    EXPECT_NE(optimizeLpNow(), 0);
    EXPECT_THAT(message(), HasSubstr("no model"));
    EXPECT_NE(optimizeIpNow(), 0);
    EXPECT_NE(lpSolution(&whole, &real, values.data(), values.data(), states.data()), 0);
    ASSERT_EQ(put(smallLp()), 0);
    EXPECT_NE(optimizeIpNow(), 0);
    EXPECT_NE(lpSolution(&whole, &real, values.data(), values.data(), states.data()), 0);
    EXPECT_NE(operation<decltype(OptimizeLP)>("OptimizeLP")(0, nullptr, &whole, &whole, &real, &real), 0);
    ASSERT_EQ(optimizeLpNow(), 0);
    EXPECT_NE(optimizeIpNow(), 0);
    EXPECT_THAT(message(), HasSubstr("no integer columns"));
    EXPECT_NE(ipSolution(&whole, &real, values.data(), values.data(), states.data()), 0);
    EXPECT_NE(lpSolution(&whole, nullptr, values.data(), values.data(), states.data()), 0);
    EXPECT_NE(lpSolution(&whole, &real, nullptr, values.data(), states.data()), 0);
    EXPECT_EQ(lpSolution(&whole, &real, values.data(), values.data(), states.data()), 0);
    startAnew();
    EXPECT_NE(lpSolution(&whole, &real, values.data(), values.data(), states.data()), 0);
    for (const char* unused : {"Break", "GetDim", "NewModel", "Optimize", "SetMaxIPDim"}) {
        EXPECT_NE(operation<std::int32_t()>(unused)(), 0) << unused;
    }
}

TEST_F(InterfaceTest, TheOlderStartWorksToo) {
    std::int32_t rows = 0;
    std::int32_t columns = 0;
    std::int32_t nonzeros = 0;
    EXPECT_EQ(operation<decltype(FreeMemory)>("FreeMemory")(), 0);
    EXPECT_NE(operation<decltype(AllocateMemory)>("AllocateMemory")(-1), 0);
    EXPECT_EQ(operation<decltype(AllocateMemory)>("AllocateMemory")(300), 0);
    EXPECT_EQ(operation<decltype(GetMaxDim)>("GetMaxDim")(&rows, &columns, &nonzeros), 0);
    EXPECT_GE(rows, 2);
    EXPECT_EQ(operation<decltype(SetMaxLPDim)>("SetMaxLPDim")(rows, columns, nonzeros, 0, 0, 0, 0, 0), 0);
    EXPECT_EQ(operation<decltype(InitModel)>("InitModel")(), 0);
    ASSERT_EQ(put(smallLp()), 0);
    EXPECT_NEAR(solveLp().objective, -5, 1e-9);
    EXPECT_NE(operation<decltype(SetMaxLPDim)>("SetMaxLPDim")(-1, 0, 0, 0, 0, 0, 0, 0), 0);
    EXPECT_NE(operation<decltype(GetMaxDim)>("GetMaxDim")(nullptr, &columns, &nonzeros), 0);
}

TEST_F(InterfaceTest, AssignmentsAreTakenAndShownAgain) {
    struct Case {
        const char* assignment;
        const char* name;
        const char* shown;
    };
    for (const Case& taken :
         {Case{"xtolx=1e-06", "xtolx", "1e-06"}, Case{"XTOLX = 2e-5 ", "XtolX", "2e-5"},
          Case{"xminmx='max'", "xminmx", "max"}, Case{"xfnlog=''", "xfnlog", ""},
          Case{"xfnlps='it's=here.lps'", "xfnlps", "it's=here.lps"}, Case{"xipbnd=+5", "xipbnd", "+5"},
          Case{"xwhat=anything", "xwhat", "anything"}, Case{"xmmax=30000", "xmmax", "30000"}}) {
        EXPECT_EQ(set(taken.assignment), 0) << taken.assignment;
        EXPECT_EQ(get(taken.name), taken.shown);
    }
    for (const char* refused : {"", "xtolx", "=1", "xtolx=", "xtolx=abc", "xtolx=1,5", "xtolx=nan", "xtolx=inf",
                                "xtolx=--1", "xminmx='max"}) {
        EXPECT_EQ(set(refused), 2) << refused;
        EXPECT_FALSE(message().empty()) << refused;
    }
    EXPECT_EQ(get("xtolx"), "2e-5");
    EXPECT_NE(operation<decltype(SetParameter)>("SetParameter")(nullptr), 0);
    char buffer[255];
    const auto getParameter = operation<decltype(GetParameter)>("GetParameter");
    EXPECT_NE(getParameter("xnever", buffer), 0);
    EXPECT_NE(getParameter(nullptr, buffer), 0);
    EXPECT_NE(getParameter("xtolx", nullptr), 0);
    startAnew();
    EXPECT_EQ(get("xglgap"), "0.0001");
}

TEST_F(InterfaceTest, ResultsAreServedAsNumbers) {
    EXPECT_THAT(get("xversn"), StartsWith("HiGHS 1."));
    ASSERT_EQ(optimizeLp(smallLp()).result, 0);
    for (const char* name : {"xnodes", "xipfun", "xcmgap", "xctime", "xiptim", "xiter", "xlpfun", "xlptim", "xzbest",
                             "xzlbnd", "xzubnd", "xnints", "xnif", "xsipti", "xertyp"}) {
        EXPECT_TRUE(std::isfinite(number(name))) << name;
    }
    EXPECT_NEAR(number("xlpfun"), -5, 1e-9);
    EXPECT_GT(number("xctime"), 0.0);
}

TEST_F(InterfaceTest, LongTextsFitTheirBuffers) {
    const std::string name(400, 'x');
    EXPECT_EQ(set("xlong='" + name + "'"), 0);
    EXPECT_EQ(get("xlong").size(), 254u);
    EXPECT_EQ(set(name + name + "=1x'"), 0);
    EXPECT_EQ(set("xfnlog='" + std::string(600, 'd') + "/log'"), 0);
    EXPECT_EQ(set("xoutlv=2"), 0);
    ASSERT_EQ(put(smallLp()), 0);
    EXPECT_EQ(message().size(), 254u);
    EXPECT_EQ(get("xline2").size(), 254u);
}

TEST_F(InterfaceTest, MessagesOfHighsAreKept) {
    ASSERT_EQ(optimizeLp(smallLp(), {"xlptyp=4", "xrduce=0", "xmiter=1"}).result, 1);
    EXPECT_THAT(message(), HasSubstr("WARNING"));
    ASSERT_EQ(optimizeLp(smallLp()).result, 0);
    EXPECT_EQ(message(), "");
}

}  // namespace tarq::test
