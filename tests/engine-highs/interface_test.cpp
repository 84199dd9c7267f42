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
    static std::int32_t optimizeLpNow(std::int32_t* iterations) {
        return ::OptimizeLP(0, iterations, iterations, iterations, &real, &real);
    }
    static std::int32_t optimizeIpNow() { return ::OptimizeIP(-1, &whole, &whole, &whole, &real, &real); }

    static inline std::int32_t whole = 0;
    static inline double real = 0.0;
    static inline std::vector<double> reals{std::vector<double>(8)};
    static inline std::vector<std::int32_t> states{std::vector<std::int32_t>(8)};
};

TEST_F(InterfaceTest, RejectedModelsSayWhy) {
    using Spoil = std::function<void(TestModel&)>;
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double inf = std::numeric_limits<double>::infinity();
    const std::pair<const char*, Spoil> cases[] = {
        {"Row index 3 of nonzero 2 is outside 1 to 2.", [](auto& m) { m.rowIndices[1] = 3; }},
        {"Row index 0 of nonzero 1", [](auto& m) { m.rowIndices[0] = 0; }},
        {"Column index -7 of nonzero 4", [](auto& m) { m.columnIndices[3] = -7; }},
        {"Column index 2147483647 of nonzero 4", [](auto& m) { m.columnIndices[3] = 2147483647; }},
        {"Row 1 and column 2 have two coefficients.", [](auto& m) { m.rowIndices[3] = 1; }},
        {"The coefficient nan in row 2 and column 1", [](auto& m) { m.values[2] = nan; }},
        {"The coefficient inf in row 1", [](auto& m) { m.values[0] = inf; }},
        {"The coefficient 1e+15 in row 1", [](auto& m) { m.values[0] = 1e15; }},
        {"The cost nan of column 2", [](auto& m) { m.cost[1] = nan; }},
        {"The cost -inf of column 1", [](auto& m) { m.cost[0] = -inf; }},
        {"The lower bound 4 of column 1 is above its upper bound 3.", [](auto& m) { m.columnLower[0] = 4; }},
        {"The lower bound 9 of row 2 is above its upper bound 6.", [](auto& m) { m.rowLower[1] = 9; }},
        {"A bound of row 1 is not a number.", [](auto& m) { m.rowUpper[0] = nan; }},
        {"The lower bound of column 2 is infinite.", [](auto& m) { m.columnLower[1] = infinite; }},
        {"The upper bound of row 1 is infinite.", [](auto& m) { m.rowUpper[0] = -infinite; }},
        {"The type 3 of column 1 is unknown.", [](auto& m) { m.type[0] = 3; }},
        {"The model has -1 rows", [](auto& m) { m.rows = -1; }},
        {"2147483647 rows and 2 columns are more", [](auto& m) { m.rows = 2147483647; }},
        {"The model has 2 rows, 2 columns and -4 nonzeros.", [](auto& m) { m.nonzeros = -4; }},
        {"0 can't stand for infinity.", [](auto& m) { m.infinity = 0; }},
        {"nan can't stand for infinity.", [](auto& m) { m.infinity = nan; }},
        {"The arrays of the nonzeros are missing.", [](auto& m) { m.values = std::vector<double>(); }},
        {"The arrays of the bounds are missing.", [](auto& m) { m.columnUpper = m.rowUpper = std::vector<double>(); }},
        {"The arrays of the columns are missing.", [](auto& m) { m.type = std::vector<std::int32_t>(); }},
    };
    for (const auto& [reason, spoil] : cases) {
        TestModel model = smallLp();
        ASSERT_EQ(put(model), TarqSuccess) << message();
        spoil(model);
        EXPECT_EQ(put(model), TarqInputError) << reason;
        EXPECT_THAT(message(), StartsWith(reason));
        EXPECT_EQ(optimizeLpNow(&whole), TarqInputError) << "the model before is gone";
    }
    TestModel unsorted = smallLp();
    unsorted.rowIndices = {2, 2, 1, 1};
    unsorted.values = {1, 3, 1, 1};
    EXPECT_NEAR(optimizeLp(unsorted).objective, -5, 1e-9);
}

TEST_F(InterfaceTest, OperationsOutOfOrderFail) {
    const auto lpSolution = [](double* objective, double* values) {
        return ::GetLPSolution(&whole, objective, values, reals.data(), states.data());
    };
    EXPECT_NE(optimizeLpNow(&whole), TarqSuccess);
    EXPECT_THAT(message(), HasSubstr("no model"));
    EXPECT_NE(optimizeIpNow(), TarqSuccess);
    ASSERT_EQ(put(smallLp()), TarqSuccess);
    EXPECT_NE(optimizeIpNow(), TarqSuccess);
    EXPECT_NE(lpSolution(&real, reals.data()), TarqSuccess);
    EXPECT_NE(optimizeLpNow(nullptr), TarqSuccess);
    ASSERT_EQ(optimizeLpNow(&whole), TarqSuccess);
    EXPECT_NE(optimizeIpNow(), TarqSuccess);
    EXPECT_THAT(message(), HasSubstr("no integer columns"));
    EXPECT_NE(::GetIPSolution(&whole, &real, reals.data(), reals.data(), states.data()), TarqSuccess);
    EXPECT_NE(lpSolution(nullptr, reals.data()), TarqSuccess);
    EXPECT_NE(lpSolution(&real, nullptr), TarqSuccess);
    EXPECT_EQ(lpSolution(&real, reals.data()), TarqSuccess);
    ASSERT_EQ(put(TestModel{}.column(0, infinite, -1, TarqIntegerColumn)), TarqSuccess);
    ASSERT_EQ(optimizeLpNow(&whole), TarqSuccess);
    EXPECT_EQ(optimizeIpNow(), TarqInputError) << "its relaxation has no optimum";
    startAnew();
    EXPECT_NE(lpSolution(&real, reals.data()), TarqSuccess);
    for (const auto unused : {::Break, ::GetDim, ::NewModel, ::Optimize, ::SetMaxIPDim}) {
        EXPECT_NE(unused(), TarqSuccess);
    }
    EXPECT_NE(::AllocateMemory(-1), TarqSuccess);
    EXPECT_NE(::SetMaxLPDim(-1, 0, 0, 0, 0, 0, 0, 0), TarqSuccess);
    EXPECT_NE(::GetMaxDim(nullptr, &whole, &whole), TarqSuccess);
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
        EXPECT_EQ(set(taken.assignment), TarqSuccess) << taken.assignment;
        EXPECT_EQ(get(taken.name), taken.shown);
    }
    for (const char* refused : {"", "xtolx", "=1", "xtolx=", "xtolx=abc", "xtolx=1,5", "xtolx=nan", "xtolx=inf",
                                "xtolx=--1", "xminmx='max"}) {
        EXPECT_EQ(set(refused), TarqInputError) << refused;
        EXPECT_FALSE(message().empty()) << refused;
    }
    EXPECT_EQ(get("xtolx"), "2e-5");
    EXPECT_NE(::SetParameter(nullptr), TarqSuccess);
    char buffer[TarqTextSize];
    EXPECT_NE(::GetParameter("xnever", buffer), TarqSuccess);
    EXPECT_NE(::GetParameter(nullptr, buffer), TarqSuccess);
    EXPECT_NE(::GetParameter("xtolx", nullptr), TarqSuccess);
    startAnew();
    EXPECT_EQ(get("xglgap"), "0.0001");
}

TEST_F(InterfaceTest, ResultsAreServedAsNumbers) {
    EXPECT_THAT(get("xversn"), StartsWith("HiGHS 1."));
    ASSERT_EQ(optimizeLp(smallLp()).result, TarqSuccess);
    for (const char* name : {"xnodes", "xipfun", "xcmgap", "xctime", "xiptim", "xiter", "xlpfun", "xlptim", "xzbest",
                             "xzlbnd", "xzubnd", "xnints", "xnif", "xsipti", "xertyp"}) {
        EXPECT_TRUE(std::isfinite(number(name))) << name;
    }
    EXPECT_NEAR(number("xlpfun"), -5, 1e-9);
    EXPECT_GT(number("xctime"), 0.0);
}

TEST_F(InterfaceTest, MessagesAreKeptAndLongTextsFitTheirBuffers) {
    ASSERT_EQ(optimizeLp(smallLp(), {"xlptyp=4", "xrduce=0", "xmiter=1"}).result, TarqLimitReached);
    EXPECT_THAT(message(), HasSubstr("WARNING")) << "of HiGHS";
    ASSERT_EQ(optimizeLp(smallLp()).result, TarqSuccess);
    EXPECT_EQ(message(), "");
    const std::string name(400, 'x');
    EXPECT_EQ(set("xlong='" + name + "'"), TarqSuccess);
    EXPECT_EQ(get("xlong").size(), 254u);
    EXPECT_EQ(set(name + name + "=1x'"), TarqSuccess);
    EXPECT_EQ(set("xfnlog='" + std::string(600, 'd') + "/log'"), TarqSuccess);
    EXPECT_EQ(set("xoutlv=2"), TarqSuccess);
    ASSERT_EQ(put(smallLp()), TarqSuccess);
    EXPECT_EQ(message().size(), 254u);
    EXPECT_EQ(get("xline2").size(), 254u);
}

}  // namespace tarq::test
