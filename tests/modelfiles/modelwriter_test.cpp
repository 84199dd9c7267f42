// Writers of model files: their texts byte for byte, and what they refuse.
#include <gtest/gtest.h>

#include "modelfiles/modelcutout.h"
#include "tests/modelfiles/writtenfile.h"

namespace tarq {
namespace {

using enum TARQColType;
using enum TARQFileFormatType;

constexpr double infinity = WrittenFile::infinity;

class ModelWriter : public testing::Test {
protected:
    /// Every kind of row, column and bound.
    void buildAll() {
        file_.target.name = "A name of more than thirty-two characters";
        file_.column("X", 0, infinity, 1);
        file_.column("Y", -1, 4.5, 2.5);
        file_.column("I", 0, infinity, 0, Integer);
        file_.column("J", 2, 8, -3, Integer);
        file_.column("B", 0, 1, 0, Binary);
        file_.column("F", -infinity, infinity);
        file_.column("M", -infinity, 7);
        file_.column("C", 3, 3);
        file_.row("EQ", 4, 4);
        file_.row("LE", -infinity, 1234567.12345678);
        file_.row("GE", 0, infinity);
        file_.row("RANGE", -2, 5);
        file_.row("FREE", -infinity, infinity);
        for (std::int32_t column = 1; column <= 8; ++column) file_.nonzero(1, column, column * 1.5);
        file_.nonzero(2, 1, -1);
        file_.nonzero(3, 1, 1);
        file_.nonzero(4, 4, 0.1);
    }

    std::string listing(const Variant& firstRow = Variant::missing(), const Variant& lastRow = Variant::missing(),
                        const Variant& firstColumn = Variant::missing(),
                        const Variant& lastColumn = Variant::missing()) {
        ModelCutout cutout{};
        EXPECT_THAT(resolveCutout(file_.target.modelStore, {firstRow, lastRow, firstColumn, lastColumn}, cutout),
                    succeeds());
        return file_.textOf([&](const std::string& name) { return writeModelListing(name, file_.model(), cutout); });
    }

    WrittenFile file_;
};

TEST_F(ModelWriter, MpsHasEveryEntryInItsColumns) {
    buildAll();
    EXPECT_EQ(file_.textIn(MPS), R"(* TARQ MPS file written by TARQ Component at TIME
* Direction: min
NAME          A name of more than thirty-two c
ROWS
 N  OBJ-FUNC
 E  EQ
 L  LE
 G  GE
 L  RANGE
 G  FREE
COLUMNS
    X         OBJ-FUNC             1   EQ                 1.5
    X         LE                  -1   GE                   1
    Y         OBJ-FUNC           2.5   EQ                   3
    INTVARS   'MARKER'                 'INTORG'
    I         EQ                 4.5
    J         OBJ-FUNC            -3   EQ                   6
    J         RANGE              0.1
    B         EQ                 7.5
    INTVARS   'MARKER'                 'INTEND'
    F         EQ                   9
    M         EQ                10.5
    C         EQ                  12
RHS
    RHS       EQ                   4   LE        1234567.1235
    RHS       RANGE                5   FREE            -1e+25
RANGES
    RANGE     RANGE                7
BOUNDS
 LO BND       Y                   -1
 UP BND       Y                  4.5
 UI BND       I                1e+25
 LI BND       J                    2
 UI BND       J                    8
 BV BND       B
 FR BND       F
 MI BND       M
 UP BND       M                    7
 FX BND       C                    3
ENDATA
)");
    MpsModel read;
    ASSERT_THAT(read.read(file_.textIn(MPS)), succeeds());
    EXPECT_EQ(read.row("RANGE").lowerBound, -2);
    EXPECT_EQ(read.column("I").upperBound, infinity);
    EXPECT_EQ(read.column("J").type, Integer);
    EXPECT_EQ(read.nonzero("C", "EQ"), 12);
}

TEST_F(ModelWriter, MpsTakesTheNamesOfItsVectorsFromTheParameters) {
    for (const auto& [name, value] :
         {std::pair{"xobj", "PROFIT"}, {"xrhs", "R"}, {"xrange", "S"}, {"xbound", "LONGNAME"}}) {
        ASSERT_THAT(file_.parameters.setString(parameterIndex(name), value), succeeds());
    }
    file_.column("X", 1, 2, 1);
    file_.row("ROW", 1, 2);
    file_.nonzero(1, 1, 1);
    const std::string text = file_.textIn(MPS);
    for (const char* line : {"NAME          NONAME\n", "\n N  PROFIT\n", "\n    R         ROW                  2\n",
                             "\n    S         ROW                  1\n", "\n LO LONGNAME  X                    1\n"}) {
        EXPECT_THAT(text, testing::HasSubstr(line));
    }
}

TEST_F(ModelWriter, TripletHoldsAllWithRowsAsTheirSlacks) {
    buildAll();
    EXPECT_EQ(file_.textIn(Triplet), R"(* TARQ triplet file written by TARQ Component at TIME
* Direction: min
5 8 12 25 1e+25 
0 1e+25 1 0 X
-1 4.5 2.5 0 Y
0 1e+25 0 1 I
2 8 -3 1 J
0 1 0 2 B
-1e+25 1e+25 0 0 F
-1e+25 7 0 0 M
3 3 0 0 C
-4 -4 EQ
-1234567.12345678 1e+25 LE
-1e+25 0 GE
-5 2 RANGE
-1e+25 1e+25 FREE
1 1 1.5 
1 2 3 
1 3 4.5 
1 4 6 
1 5 7.5 
1 6 9 
1 7 10.5 
1 8 12 
2 1 -1 
3 1 1 
4 4 0.1 
)");
}

TEST_F(ModelWriter, LindoWritesSumsInLinesAndStatementsBehindThem) {
    buildAll();
    file_.target.modelStore.remove<RowRecord>(4, 5);
    file_.target.modelStore.column(5).lowerBound = -5;
    file_.target.modelStore.column(6).lowerBound = 0;
    ASSERT_THAT(file_.parameters.setString(parameterIndex("xminmx"), "max"), succeeds());
    EXPECT_EQ(file_.textIn(Lindo), R"(! Lindo(c) format file written by TARQ Component at TIME
MAX   X + 2.5 Y - 3 J

SUBJECT TO
EQ)  1.5 X + 3 Y + 4.5 I + 6 J + 7.5 B + 9 F + 10.5 M + 12 C = 4
LE)  - X <= 1234567.12345678)"
                                   "01"
                                   R"(
GE)  X >= 0
END

SLB Y -1
SUB Y 4.5
GIN I
SLB J 2
SUB J 8
GIN J
INT B
SLB F -5
SUB M 7
SLB C 3
SUB C 3
)");
}

TEST_F(ModelWriter, LongSumsAreWrappedBeforeTheEightyFirstCharacter) {
    for (int i = 1; i <= 12; ++i) file_.column("COLUMN" + std::to_string(9 + i), 0, infinity, i == 2 ? -1 : 1);
    const std::string text = file_.textIn(Lindo);
    EXPECT_THAT(text, testing::HasSubstr(
                          "\nMIN   COLUMN10 - COLUMN11 + COLUMN12 + COLUMN13 + COLUMN14 + COLUMN15 + COLUMN16\n"
                          "       + COLUMN17 + COLUMN18 + COLUMN19 + COLUMN20 + COLUMN21\n\nSUBJECT TO\nEND\n\n"));
}

TEST_F(ModelWriter, AModelThatAFormatCannotHoldIsRefusedBeforeTheFileIsTouched) {
    struct {
        TARQFileFormatType format;
        const char* column;
        const char* row;
        double upper;
        Status status;
        const char* text;
    } const cases[] = {
        {MPS, "", "R", 1, status::badColumnName, "One or more columns have no name."},
        {MPS, "NINELONGS", "", 1, status::badColumnName, "Variable name 'NINELONGS' is longer than 8 characters."},
        {MPS, "X", "", 1, status::badRowName, "One or more rows have no name."},
        {MPS, "X", "NINELONGS", 1, status::badRowName, "Row name NINELONGS is longer than 8 characters."},
        {Lindo, "", "R", 1, status::badColumnName, "One or more columns have no name."},
        {Lindo, "NINELONGS", "R", 1, status::badColumnName, "Variable name 'NINELONGS' is longer than 8 characters."},
        {Lindo, "1X", "R", 1, status::badColumnName, "Variable name '1X' may not start with a digit."},
        {Lindo, "X Y", "R", 1, status::badColumnName, "Variable name 'X Y' contains illegal characters."},
        {Lindo, "other", "R", 1, status::badColumnName,
         "Duplicate variable name 'other'. Lindo names are not case sensitive."},
        {Lindo, "X", "NINELONGS", 1, status::badRowName, "Row name 'NINELONGS' is longer than 8 characters."},
        {Lindo, "X", "A)", 1, status::badRowName, "Row name 'A)' contains illegal characters."},
        {Lindo, "X", "", 2, status::componentFailure,
         "Row number 1 is ranged. Split into two restrictions for Lindo compatibility."},
    };
    for (const auto& one : cases) {
        WrittenFile file;
        file.column("OTHER", 0, 1);
        file.column(one.column, 0, 1);
        file.row(one.row, 1, one.upper);
        const std::string old = file.path("old");
        std::ofstream(old) << "as it was";
        EXPECT_THAT(writeModelFile(old, one.format, file.model()), failsWith(one.status, one.text));
        EXPECT_EQ(std::filesystem::file_size(old), 9U);
        EXPECT_FALSE(writeModelFile(file.path("new"), one.format, file.model()).isOk());
        EXPECT_FALSE(std::filesystem::exists(file.path("new")));
    }
}

TEST_F(ModelWriter, FilesThatCannotBeWrittenFailInTheWordsOfTheirFormat) {
    const std::string any = "Error while opening, reading or writing to a file.";
    const std::string lindo = "I/O error while opening file for writing Lindo model.";
    const std::string missing = file_.path("no/folder");
    for (const auto& [format, opening] : {std::pair{MPS, any}, {Triplet, any}, {Lindo, lindo}}) {
        for (const std::string& name : {missing, file_.path(""), std::string("a\0b", 3)}) {
            EXPECT_THAT(writeModelFile(name, format, file_.model()), failsWith(status::fileAccess, opening));
        }
        if (std::filesystem::exists("/dev/full")) {
            EXPECT_THAT(writeModelFile("/dev/full", format, file_.model()), failsWith(status::fileAccess, any));
        }
    }
    EXPECT_THAT(writeModelListing(missing, file_.model(), {1, 0, 1, 0}), failsWith(status::fileAccess, lindo));
    EXPECT_THAT(writeModelFile(std::string(256, 'a'), TARQFileFormatType(7), file_.model()),
                failsWith(status::textTooLong, "Filename is too long."));
    EXPECT_THAT(writeModelFile(file_.path("a"), TARQFileFormatType(7), file_.model()),
                failsWith(status::invalidArgument, "Wrong parameter for file format."));
}

TEST_F(ModelWriter, ListingShowsEveryKindOfRowAndColumn) {
    buildAll();
    file_.column("", 0, 1, 2);
    file_.row("", -infinity, infinity);
    file_.nonzero(6, 9, -1);
    EXPECT_EQ(listing(), R"(! Debug model written by TARQ Component at TIME
MIN   X + 2.5 Y - 3 J + 2 [9] 

RESTRICTIONS
EQ:  1.5 X + 3 Y + 4.5 I + 6 J + 7.5 B + 9 F + 10.5 M + 12 C = 4
LE:  - X <= 1234567.12345678)"
                         "01"
                         R"(
GE:  X >= 0
RANGE:  -2 <= 0.1 J <= 5
FREE:  
[6]:  - [9] 

VARIABLE TYPES AND BOUNDS
X: Con  0   INF  
Y: Con  -1   4.5   
I: Int  0   INF  
J: Int  2   8   
B: Bin  0   1   
F: Con  -INF  INF  
M: Con  -INF  7   
C: Con  3   3   
[9]: Con  0   1   
)");
}

TEST_F(ModelWriter, ListingMarksWhatACutoutHides) {
    buildAll();
    EXPECT_EQ(listing(Variant(2), Variant("GE"), Variant("Y"), Variant(4)),
              R"(! Debug model written by TARQ Component at TIME
! Model cutout: Rows [2..3]  Cols [2..4]

MIN   [1..1]... 2.5 Y - 3 J...[5..8]

RESTRICTIONS
[1..1]: Hidden
LE:  [1..1]... ...[5..8] <= 1234567.12345678)"
              "01"
              R"(
GE:  [1..1]... ...[5..8] >= 0
[4..5]: Hidden

VARIABLE TYPES AND BOUNDS
[1..1]: Hidden
Y: Con  -1   4.5   
I: Int  0   INF  
J: Int  2   8   
[5..8]: Hidden)");
    const std::string firstRow = listing(Variant(1), Variant(1));
    EXPECT_THAT(firstRow, testing::Not(testing::HasSubstr("\n[1..")));
    EXPECT_THAT(firstRow, testing::HasSubstr("\n[2..5]: Hidden\n"));
    EXPECT_THAT(listing(Variant(4), Variant(4), Variant(4), Variant(4)),
                testing::HasSubstr("RANGE:  -2 <= [1..3]... 0.1 J...[5..8] <= 5\n"));
}

TEST_F(ModelWriter, EmptyModelIsListedWithoutACutout) {
    EXPECT_EQ(listing(),
              "! Debug model written by TARQ Component at TIME\nMIN   \n\nRESTRICTIONS\n\n"
              "VARIABLE TYPES AND BOUNDS\n");
}

TEST_F(ModelWriter, CutoutsAreAddressedAsRowsAndColumnsAre) {
    file_.column("X", 0, 1);
    file_.column("Y", 0, 1);
    file_.row("R", 0, 1);
    const Variant missing = Variant::missing();
    ModelCutout cutout{};
    const auto resolve = [&](const Variant& row, const Variant& first, const Variant& last) {
        return resolveCutout(file_.target.modelStore, {row, missing, first, last}, cutout);
    };
    EXPECT_THAT(resolve(Variant("Q"), missing, missing),
                failsWith(status::invalidArgument, "Row name 'Q' could not be found."));
    EXPECT_THAT(resolve(missing, Variant(2), Variant("X")),
                failsWith(status::invalidArgument, "Col startindex is higher than endindex."));
    EXPECT_THAT(resolve(missing, Variant(0), missing),
                failsWith(status::invalidArgument, "Column index is less than 1."));
    Variant number(2.0);
    EXPECT_THAT(resolve(missing, Variant::byReference(number), missing), succeeds());
    EXPECT_EQ(cutout.firstColumn, 2);
}

}  // namespace
}  // namespace tarq
