#include "modelfixture.h"

namespace tarq {
namespace {

TEST_F(ModelTest, NewModelHasItsDefaults) {
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_INF), 1e25);
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_NumberOfParameters), 121);
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_AMPLOutputBufferMaxSize), 2097152);
    EXPECT_EQ(valueOf<std::string>(&ITARQModel::get_LocationOfTARQDLL), "tarq.dll");
    EXPECT_EQ(valueOf<std::string>(&ITARQModel::get_LocationOfMathProgDLL), "mathprog.dll");
    EXPECT_EQ(valueOf<std::string>(&ITARQModel::get_LocationOfAMPLEXE), "ampl.exe");
    EXPECT_EQ(valueOf<std::string>(&ITARQModel::get_LocationOfTARQAMPLEXE), "tarqampl.exe");
    EXPECT_EQ(valueOf<std::string>(&ITARQModel::get_ModelName), "");
    EXPECT_EQ(valueOf<TARQSolverStatusTyp>(&ITARQModel::get_SolverStatus), TARQSolverStatusTyp::UndefinedSolverStatus);
}

TEST_F(ModelTest, EachColumnPropertyReadsWhatWasPut) {
    buildSmall();
    const Variant y("y");
    ASSERT_THAT(model->put_ColLB(y, 2), succeeds());
    ASSERT_THAT(model->put_ColUB(y, 7), succeeds());
    ASSERT_THAT(model->put_ColCost(y, -1e30), succeeds());
    ASSERT_THAT(model->put_ColType(y, TARQColType::Integer), succeeds());
    ASSERT_THAT(model->put_ColName(2, "why"), succeeds());

    const Variant second(std::int32_t{2});
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_ColLB, second), 2);
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_ColUB, second), 7);
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_ColCost, second), -1e30);
    EXPECT_EQ(valueOf<TARQColType>(&ITARQModel::get_ColType, second), TARQColType::Integer);
    EXPECT_EQ(valueOf<std::string>(&ITARQModel::get_ColName, 2), "why");
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_ColIndex, Variant("why")), 2);
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_IsIPModel), 1);
    EXPECT_THAT(model->put_ColLB(y, 0), raises(status::invalidArgument, "Column name 'y' could not be found."));
}

TEST_F(ModelTest, EachRowPropertyReadsWhatWasPut) {
    buildSmall();
    ASSERT_THAT(model->AddRow(-1e30, 4), succeeds());
    const Variant second(std::int32_t{2});
    ASSERT_THAT(model->put_RowRHS(second, 1e30), succeeds());
    ASSERT_THAT(model->put_RowLHS(second, 3), succeeds());
    ASSERT_THAT(model->put_RowName(2, "s"), succeeds());

    const Variant s("s");
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_RowLHS, s), 3);
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_RowRHS, s), 1e25);
    EXPECT_EQ(valueOf<std::string>(&ITARQModel::get_RowName, 2), "s");
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_RowIndex, s), 2);
    EXPECT_THAT(model->put_RowLHS(s, 1e26), raises(status::boundOrder, "Lower bound is greater than upper bound."));
}

TEST_F(ModelTest, NonzeroMembersTakeTheirArgumentsInTheirOwnOrder) {
    buildSmall();
    ASSERT_THAT(model->put_NZ(Variant("r"), Variant("z"), 8), succeeds());
    ASSERT_THAT(model->AddNZ(Variant("r"), Variant("z"), 1), succeeds());
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_NZ, Variant("r"), Variant("z")), 9);
    ASSERT_THAT(model->DelNZ(Variant("x"), Variant("r")), succeeds());
    EXPECT_THAT(model->DelNZ(Variant("x"), Variant("r")),
                raises(status::noSuchNonzero, "Nonzero element does not exist"));
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_NumberOfNZ), 2);
    EXPECT_THAT(model->AddNZ(Variant("no row"), Variant("no column"), 1),
                raises(status::invalidArgument, "Column name 'no column' could not be found."));
}

TEST_F(ModelTest, ChangeLeavesTheFieldsOfNullPointersAlone) {
    buildSmall();
    const double upper = 5;
    const double rowLower = 2;
    const std::string name = "row";
    ASSERT_THAT(model->_ChangeCol(0, nullptr, &upper, nullptr, nullptr, nullptr), succeeds());
    ASSERT_THAT(model->_ChangeRow(0, &rowLower, nullptr, &name), succeeds());
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_ColUB, Variant("x")), 5);
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_RowLHS, Variant("row")), 2);
    EXPECT_EQ(valueOf<double>(&ITARQModel::get_RowRHS, Variant("row")), 20);
    ASSERT_THAT(model->_AddVarSetElement(nullptr, model.get()), succeeds());
    EXPECT_EQ(valueOf<std::string>(&ITARQModel::get_ColName, 4), "");
}

TEST_F(ModelTest, TextsBeyondTheirLimitAreRefusedAndChangeNothing) {
    using TextPut = Status (ITARQModel::*)(const std::string&);
    using TextGet = Status (ITARQModel::*)(std::string*);
    struct Case {
        TextPut put;
        TextGet get;
        std::size_t limit;
    };
    const Case cases[] = {
        {&ITARQModel::put_ModelName, &ITARQModel::get_ModelName, 32},
        {&ITARQModel::put_LocationOfTARQDLL, &ITARQModel::get_LocationOfTARQDLL, 255},
        {&ITARQModel::put_LocationOfMathProgDLL, &ITARQModel::get_LocationOfMathProgDLL, 255},
        {&ITARQModel::put_LocationOfAMPLEXE, &ITARQModel::get_LocationOfAMPLEXE, 255},
        {&ITARQModel::put_LocationOfTARQAMPLEXE, &ITARQModel::get_LocationOfTARQAMPLEXE, 255},
        {&ITARQModel::put_MPLWorkingDirectory, &ITARQModel::get_MPLWorkingDirectory, 255},
    };
    for (std::size_t position = 0; const Case& c : cases) {
        const std::string longest(c.limit, static_cast<char>('a' + position++));
        ASSERT_THAT((model.get()->*c.put)(longest), succeeds());
        EXPECT_THAT((model.get()->*c.put)(longest + "b"), raises(status::textTooLong, "Passed string is to long."));
        EXPECT_EQ(valueOf<std::string>(c.get), longest);
    }
    // A limit on wide characters counts a letter with an accent once, and one on bytes twice.
    std::string accents;
    for (int i = 0; i < 32; ++i) accents += "é";
    EXPECT_THAT(model->put_ModelName(accents), succeeds());
    EXPECT_THAT(model->put_Name(std::string(100000, 'n')), succeeds());
    EXPECT_THAT(model->put_AMPLOutputBufferMaxSize(1024), succeeds());
    EXPECT_THAT(model->put_AMPLOutputBufferMaxSize(1023),
                raises(status::invalidArgument, "AMPLOutputBuffer must be at least 1024 Bytes long"));
}

TEST_F(ModelTest, DelModelEmptiesTheModelAndKeepsTheSettings) {
    buildSmall();
    ASSERT_THAT(model->put_ModelName("kept"), succeeds());
    ASSERT_THAT(model->put_Parameter("xmiter", Variant(std::int32_t{7})), succeeds());
    for (const char* name : {"xrhs", "xobj", "xdata", "xrange", "xbound"}) {
        ASSERT_THAT(model->put_Parameter(name, Variant("vector")), succeeds());
    }
    ASSERT_THAT(model->DelModel(), succeeds());

    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_NumberOfCols), 0);
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_NumberOfRows), 0);
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_NumberOfNZ), 0);
    EXPECT_EQ(valueOf<std::string>(&ITARQModel::get_ModelName), "kept");
    EXPECT_EQ(valueOf<Variant>(&ITARQModel::get_Parameter, std::string("XMITER")).integer(), 7);
    for (const std::string name : {"xrhs", "xobj", "xdata", "xrange", "xbound"}) {
        EXPECT_EQ(valueOf<Variant>(&ITARQModel::get_Parameter, name).text(), "") << name;
    }
    EXPECT_THAT(model->AddCol(0, 1, TARQColType::Continuous, Variant::missing(), Variant("x")), succeeds());
}

TEST_F(ModelTest, AutoRenameNumbersColumnsAndRows) {
    buildSmall();
    ASSERT_THAT(model->AutoRenameVariables(), succeeds());
    EXPECT_EQ(valueOf<std::string>(&ITARQModel::get_ColName, 3), "C3");
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_RowIndex, Variant("R1")), 1);
    EXPECT_THAT(model->DelCol(Variant("x")), raises(status::invalidArgument, "Column name 'x' could not be found."));
}

TEST_F(ModelTest, ParameterInfoOfATextLeavesLimitsAsPassed) {
    std::int32_t type = 0, length = 0, options = -1, category = 0, control = 0;
    std::string name, description;
    Variant min("mine"), max("mine"), standard, value;
    const auto ask = [&](std::int32_t id) {
        return model->GetParameterInfo(id, &type, &name, &min, &max, &standard, &value, &length, &options, &description,
                                       &category, &control);
    };
    ASSERT_THAT(ask(66), succeeds());
    EXPECT_EQ(name, "xminmx");
    EXPECT_EQ(type, 8);
    EXPECT_EQ(standard.text(), "min");
    EXPECT_EQ(length, 8);
    EXPECT_EQ(options, -1);
    EXPECT_EQ(min.text(), "mine");
    ASSERT_THAT(ask(102), succeeds());
    EXPECT_EQ(max.integer() + options + category + control, 2 + 2 + 3 + 2);
    EXPECT_THAT(ask(122), raises(status::invalidArgument, "Bad parameter ID."));
}

TEST_F(ModelTest, NullOutputIsAFailureAndNoCrash) {
    EXPECT_EQ(model->get_INF(nullptr), status::nullPointer);
    EXPECT_EQ(model->get_ColLB(Variant("x"), nullptr), status::nullPointer);
    EXPECT_EQ(model->get_ColLPSol(Variant("x"), nullptr), status::nullPointer);
    EXPECT_EQ(model->get_Parameter("xmiter", nullptr), status::nullPointer);
    EXPECT_EQ(model->QueryInterface(ITARQModel::id, nullptr), status::nullPointer);
    EXPECT_EQ(model->GetParameterOption(5, 1, nullptr, nullptr), status::nullPointer);
}

TEST_F(ModelTest, FailedReadBeforeTheReaderKeepsTheModel) {
    buildSmall();
    EXPECT_THAT(model->ReadModel("/no/such/file.mps", TARQFileFormatType::MPS),
                raises(status::fileAccess, "Error while opening, reading or writing to a file."));
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_NumberOfCols), 3);
}

}  // namespace
}  // namespace tarq
