#include "languages/amplstub.h"

#include <gtest/gtest.h>

#include <random>

#include "importfixture.h"

namespace tarq {
namespace {

class AmplStubTest : public ImportTest {
protected:
    Outcome read(std::string_view text) {
        (void)file("s.nl", text);
        return readAmplStub(path("s"), model);
    }
    Outcome readChanged(std::string_view before, std::string_view after) {
        std::string text(sampleStub);
        return read(text.replace(text.find(before), before.size(), after));
    }
};

TEST_F(AmplStubTest, StubIsReadWithTheNamesThatAreThere) {
    (void)file("s.col", "x['a',1]\nb\ni\n");
    ASSERT_THAT(read(sampleStub), succeeds());
    const ModelStore& store = model.store_;
    ASSERT_EQ(store.columnCount(), 3);
    EXPECT_EQ(store.column(0).name, "x['a',1]");
    EXPECT_EQ(store.column(0).upperBound, 1e25) << "clamped";
    EXPECT_EQ(store.column(0).cost, 5.5);
    EXPECT_EQ(store.column(1).type, TARQColType::Binary);
    EXPECT_EQ(store.column(2).type, TARQColType::Integer);
    ASSERT_EQ(store.rowCount(), 4);
    EXPECT_EQ(store.row(1).name, "_scon[2]") << "the header tells of names, the file isn't there";
    EXPECT_EQ(store.row(1).upperBound, 5);
    EXPECT_EQ(store.row(2).upperBound, 1e25);
    EXPECT_EQ(store.nonzeros().size(), 7) << "the zero is left out";
    EXPECT_EQ(store.nonzeroAt(2, 4), 1e25) << "clamped";
    EXPECT_EQ(model.parameters_["xminmx"], "max");
}

TEST_F(AmplStubTest, StubsThatCantBeReadLeaveTheOldModel) {
    EXPECT_EQ(readAmplStub(path("nowhere"), model).status(), status::temporaryFile);
    EXPECT_EQ(read("g3 1 1 0\n 3 4\n").status(), status::temporaryFile) << "the library ends its process";
    EXPECT_EQ(readChanged("\n 0 0\n", "\n 1 0\n").status(), status::modelRejected) << "a header of something nonlinear";
    EXPECT_EQ(readChanged("C1\nn0", "C1\no2\nv0\nv1").status(), status::modelRejected) << "a body of something such";
    EXPECT_EQ(readChanged("C1\nn0", "C1\nn5").status(), status::modelRejected) << "a constant would be lost";
    EXPECT_EQ(read(sampleStub.substr(0, sampleStub.find("J3"))).status(), status::externalProcess) << "cut off";
    EXPECT_EQ(readChanged("r\n1 10\n0 1 5\n3\n4 2\n", "").status(), status::externalProcess) << "no bounds";
    EXPECT_EQ(readChanged(" 3 4 1", " 2000000000 4 1").status(), status::externalProcess) << "no memory";
    EXPECT_EQ(readChanged("J0 3\n0 2", "J0 3\n9999 2").status(), status::externalProcess);
    EXPECT_TRUE(model.isOld());
}

TEST_F(AmplStubTest, NameThatIsTakenEndsTheReadingThere) {
    (void)file("s.col", "a\nb\na\n");
    EXPECT_THAT(read(sampleStub), failsWith(status::badColumnName, "Duplicate col name: a"));
    EXPECT_EQ(model.store_.columnCount(), 2);
    EXPECT_EQ(model.store_.rowCount(), 0);
    EXPECT_TRUE(model.parameters_.empty());
}

TEST_F(AmplStubTest, NoDamageReachesThisProcess) {
    std::minstd_rand random(12);
    for (int round = 0; round < 60; ++round) {
        std::string text(sampleStub);
        for (int change = 0; change < 3; ++change) text[random() % text.size()] = static_cast<char>(random() % 128);
        FilledModel fresh;
        (void)file("s.nl", text);
        const Outcome outcome = readAmplStub(path("s"), fresh);
        EXPECT_TRUE(outcome.isOk() || fresh.isOld() || outcome.status() == status::badColumnName) << text;
    }
}

TEST_F(AmplStubTest, SolutionIsWrittenForItsStubOnly) {
    ASSERT_THAT(read(sampleStub), succeeds());
    ModelStore& store = model.store_;
    store.column(0).ipValue = 1.5;
    store.row(3).ipValue = 2;
    const auto finished = TARQSolverStatusTyp::IPFinished;
    EXPECT_THAT(writeAmplActivities(path("s"), store, finished, TARQSolutionStatusTyp::IPOptimalSolution), succeeds());
    EXPECT_EQ(content("s.sol"), "\nOptions\n3\n1\n1\n0\n4\n4\n3\n3\n0\n0\n0\n2\n1.5\n0\n0\nobjno 0 1\n");

    std::filesystem::remove(path("s.sol"));
    std::filesystem::create_directory(path("s.sol"));
    (void)store.addRowRecord({});
    for (const int rows : {5, 4}) {
        EXPECT_THAT(writeAmplSolution(path("s"), {.columnCount = 3, .rowCount = rows}),
                    failsWith(status::temporaryFile, "AMPL I/O Error."));
    }
}

TEST(AmplSolveResultTest, LaterRulesWin) {
    using enum TARQSolverStatusTyp;
    using enum TARQSolutionStatusTyp;
    EXPECT_EQ(amplSolveResult(UndefinedSolverStatus, UndefinedSolutionStatus), -1);
    EXPECT_EQ(amplSolveResult(LPxmxtlpReached, LPOnlyPrimalFeasible), 400);
    EXPECT_EQ(amplSolveResult(IPxfrndsReached, IPSubOptimalSolution), 411);
    EXPECT_EQ(amplSolveResult(LPGeneralError, UndefinedSolutionStatus), 500);
}

}  // namespace
}  // namespace tarq
