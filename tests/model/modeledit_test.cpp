#include "model/modeledit.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "model/addressing.h"
#include "tests/support/outcomematchers.h"

namespace tarq {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
const Variant missing = Variant::missing();
const Variant object{Ref<IUnknown>()};

/// Stands for a family: only its address counts.
class Family final : public IUnknown {
public:
    Status QueryInterface(const Guid&, void**) override { return status::wrongClass; }
    std::uint32_t AddRef() override { return 1; }
    std::uint32_t Release() override { return 1; }
};

/// Columns x (0 to 10), "3" (binary), f.1 and f.2 of a family; rows r (1 to 5), g.1 of a family; one nonzero at x, r.
class ModelEditTest : public testing::Test {
protected:
    ModelEditTest() {
        EXPECT_THAT(addColumn(store_, 0, 10, TARQColType::Continuous, Variant(2.5), Variant("x")), succeeds());
        EXPECT_THAT(addColumn(store_, 0, 10, TARQColType::Binary, missing, Variant(std::int32_t{3})), succeeds());
        EXPECT_THAT(addFamilyColumn(store_, "f.1", &columns_), succeeds());
        EXPECT_THAT(addFamilyColumn(store_, "f.2", &columns_), succeeds());
        EXPECT_THAT(addRow(store_, 1, 5, Variant("r")), succeeds());
        EXPECT_THAT(addFamilyRow(store_, "g.1", &rows_), succeeds());
        EXPECT_THAT(addNonzero(store_, Variant("r"), Variant("x"), 2), succeeds());
    }

    Family columns_;
    Family rows_;
    ModelStore store_;
};

using ModelEdit = std::function<Outcome(ModelStore&)>;

TEST_F(ModelEditTest, WrongInputIsRefusedAndChangesNothing) {
    using enum TARQColType;
    struct Case {
        const char* situation;
        ModelEdit edit;
        std::uint32_t status;
        std::string description;
    };
    const std::string longName(65, 'n');
    const std::string order = "Lower bound is greater than upper bound.";
    const std::string columnKind = "Col index is not convertible to string or integer.";
    const std::string rowKind = "Row index must be convertible to string or integer.";
    double real = 0;
    std::int32_t number = 0;
    std::string text;
    const TARQColType unknownType{3};
    const double five = 5, twenty = 20;
    const std::vector<Case> cases{
        {"bounds before everything", [&](auto& m) { return addColumn(m, 5, 3, Binary, object, object); }, 0x80041019,
         order},
        {"cost before name", [&](auto& m) { return addColumn(m, 0, 1, Integer, object, object); }, 0x80041016,
         "Value for cost is of wrong variant type"},
        {"object as column name", [&](auto& m) { return addColumn(m, 0, 1, Integer, missing, object); }, 0x80041016,
         "Col name is of wrong variant type"},
        {"long column name", [&](auto& m) { return addColumn(m, 0, 1, Integer, missing, Variant(longName)); },
         0x80041026, "Col name is too long."},
        {"taken column name", [&](auto& m) { return addColumn(m, 0, 1, Integer, missing, Variant("x")); }, 0x80041026,
         "Duplicate col name: x"},
        {"row bounds", [&](auto& m) { return addRow(m, 5, 3, object); }, 0x80041019, order},
        {"object as row name", [&](auto& m) { return addRow(m, 0, 1, object); }, 0x80041016,
         "Row name is of wrong variant type"},
        {"long row name", [&](auto& m) { return addRow(m, 0, 1, Variant(longName)); }, 0x8004102B,
         "Row name is too long."},
        {"taken row name", [&](auto& m) { return addRow(m, 0, 1, Variant("r")); }, 0x8004102B, "Duplicate row name."},

        {"unknown column", [&](auto& m) { return getColumnCost(m, Variant("1"), real); }, 0x80041031,
         "Column name '1' could not be found."},
        {"empty name", [&](auto& m) { return getColumnIndex(m, Variant(""), number); }, 0x80041031,
         "Column name '' could not be found."},
        {"column 0", [&](auto& m) { return putColumnLowerBound(m, Variant(std::int32_t{0}), 0); }, 0x80041031,
         "Column index is less than 1."},
        {"column 5 of 4", [&](auto& m) { return getColumnIndex(m, Variant(4.6), number); }, 0x80041031,
         "Column index is greater than number of columns."},
        {"missing column", [&](auto& m) { return getColumnIndex(m, missing, number); }, 0x80041016, columnKind},
        {"unknown row", [&](auto& m) { return getRowLowerBound(m, Variant("x"), real); }, 0x80041031,
         "Row name 'x' could not be found."},
        {"row -1", [&](auto& m) { return putRowUpperBound(m, Variant(-1.0), 0); }, 0x80041031,
         "Row index is less than 1."},
        {"row 3 of 2", [&](auto& m) { return deleteRow(m, Variant(3.0)); }, 0x80041031,
         "Row index is greater than number of rows."},
        {"missing row", [&](auto& m) { return getRowIndex(m, missing, number); }, 0x80041016, rowKind},
        {"column before row in AddNZ", [&](auto& m) { return addNonzero(m, object, object, 1); }, 0x80041016,
         columnKind},
        {"column before row in DelNZ", [&](auto& m) { return deleteNonzero(m, object, object); }, 0x80041016,
         columnKind},
        {"column before row in NZ get", [&](auto& m) { return getNonzero(m, object, object, real); }, 0x80041016,
         columnKind},
        {"then the row", [&](auto& m) { return putNonzero(m, object, Variant("x"), 1); }, 0x80041016, rowKind},
        {"absent nonzero", [&](auto& m) { return deleteNonzero(m, Variant("3"), Variant("r")); }, 0x00042007,
         "Nonzero element does not exist"},

        {"lower above upper", [&](auto& m) { return putColumnLowerBound(m, Variant("x"), 11); }, 0x80041019, order},
        {"upper below lower", [&](auto& m) { return putRowUpperBound(m, Variant("r"), 0.5); }, 0x80041019, order},
        {"type 3", [&](auto& m) { return putColumnType(m, Variant("x"), unknownType); }, 0x80041031,
         "Bad value for type."},
        {"name of column 0", [&](auto& m) { return getColumnName(m, 0, text); }, 0x8004101A,
         "Index out of valid range."},
        {"name of row 3", [&](auto& m) { return putRowName(m, 3, "z"); }, 0x8004101A, "Index out of valid range."},
        {"name of a family's column", [&](auto& m) { return putColumnName(m, 3, "z"); }, 0x80041031,
         "Name could not be changed, because specified column is part of a TARQVarSet."},
        {"name of a family's row", [&](auto& m) { return putRowName(m, 2, "z"); }, 0x80041031,
         "Name could not be changed, because specified row is part of a TARQResSet."},
        {"delete a family's column", [&](auto& m) { return deleteColumn(m, Variant("f.1")); }, 0x80041031,
         "Column is part of a TARQVarSet and cannot be deleted"},
        {"delete a family's row", [&](auto& m) { return deleteRow(m, Variant("g.1")); }, 0x80041031,
         "Row is part of a TARQResSet and cannot be deleted."},

        {"change to type 3", [&](auto& m) { return changeColumn(m, 0, {.type = &unknownType}); }, 0x80041031,
         "Invalid type. Column index: 1"},
        {"binary lower bound", [&](auto& m) { return changeColumn(m, 1, {.lowerBound = &five}); }, 0x80041031,
         "Columns of type 'Binary' must have LB=0."},
        {"binary upper bound", [&](auto& m) { return changeColumn(m, 1, {.upperBound = &five}); }, 0x80041031,
         "Columns of type 'Binary' must have UB=1."},
        {"both bounds crossed",
         [&](auto& m) { return changeColumn(m, 0, {.lowerBound = &twenty, .upperBound = &five}); }, 0x80041019, order},
        {"position 4 of 4", [&](auto& m) { return changeColumn(m, 4, {}); }, 0x8004101A, "Index out of valid range."},
        {"position -1", [&](auto& m) { return changeRow(m, -1, {}); }, 0x8004101A, "Index out of valid range."},
        {"row bounds crossed", [&](auto& m) { return changeRow(m, 0, {.lowerBound = &twenty}); }, 0x80041019, order},

        {"family without columns", [&](auto& m) { return getFamilyColumnStart(m, &rows_, number); }, 0x80041032,
         "TARQVarSet is not part of the model"},
        {"null family", [&](auto& m) { return getFamilyColumnStart(m, nullptr, number); }, 0x80041032,
         "TARQVarSet is not part of the model"},
        {"family without rows", [&](auto& m) { return getFamilyRowStart(m, &columns_, number); }, 1, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.situation);
        EXPECT_THAT(c.edit(store_), failsWith(Status(c.status), c.description));
        EXPECT_EQ(store_.columnCount(), 4);
        EXPECT_EQ(store_.rowCount(), 2);
        EXPECT_EQ(store_.nonzeros().size(), 1);
        EXPECT_EQ(store_.column(0).type, Continuous);
        EXPECT_EQ(store_.column(0).upperBound - store_.column(0).lowerBound, 10);
        EXPECT_EQ(store_.row(0).upperBound - store_.row(0).lowerBound, 4);
        EXPECT_EQ(number, 0) << "output written";
    }
}

TEST_F(ModelEditTest, AddedColumnsAreClampedTypedAndNamed) {
    EXPECT_EQ(store_.column(0).cost, 2.5);
    EXPECT_EQ(store_.column(1).name, "3");
    EXPECT_EQ(store_.column(1).upperBound, 1.0);
    ASSERT_THAT(addColumn(store_, -1e30, 1e30, TARQColType{9}, Variant("-1e30"), Variant(1.5)), succeeds());
    ASSERT_THAT(addColumn(store_, notANumber, 0, TARQColType::Integer, missing, Variant(std::string(64, 'n'))),
                succeeds());
    ASSERT_THAT(addColumn(store_, 0, 0, TARQColType::Integer, missing, Variant()), succeeds());
    const ColumnRecord& clamped = store_.column(4);
    EXPECT_EQ(clamped.lowerBound, -1e25);
    EXPECT_EQ(clamped.upperBound, 1e25);
    EXPECT_EQ(clamped.cost, -1e30);
    EXPECT_EQ(clamped.name, "1.5");
    EXPECT_EQ(clamped.type, TARQColType{9});
    EXPECT_EQ(store_.column(6).name, "");
}

TEST_F(ModelEditTest, AddressesFollowReferencesAndStayAsTheyAre) {
    std::string name = "x";
    double real = 2.5;
    const Variant byName = Variant::byReference(name);
    const Variant byNumber = Variant::byReference(real);
    std::int32_t number = 0;
    EXPECT_THAT(getColumnIndex(store_, byName, number), succeeds());
    EXPECT_EQ(number, 1);
    EXPECT_THAT(getColumnIndex(store_, byNumber, number), succeeds());
    EXPECT_EQ(number, 2) << "2.5 rounds to even";
    EXPECT_THAT(getColumnIndex(store_, Variant("3"), number), succeeds());
    EXPECT_EQ(number, 2) << "a text is a name even when it reads as a number";
    EXPECT_EQ(real, 2.5);
    EXPECT_TRUE(byNumber.isByReference());
}

TEST_F(ModelEditTest, BoundsAreComparedRawAndStoredClamped) {
    double bound = 0;
    EXPECT_THAT(putColumnUpperBound(store_, Variant("x"), 1e30), succeeds());
    EXPECT_THAT(getColumnUpperBound(store_, Variant("x"), bound), succeeds());
    EXPECT_EQ(bound, 1e25);
    EXPECT_THAT(putColumnLowerBound(store_, Variant("x"), 1e26),
                failsWith(status::boundOrder, "Lower bound is greater than upper bound."));
    EXPECT_THAT(putRowLowerBound(store_, Variant("r"), -1e30), succeeds());
    EXPECT_THAT(getRowLowerBound(store_, Variant("r"), bound), succeeds());
    EXPECT_EQ(bound, -1e25);
    EXPECT_THAT(putColumnCost(store_, Variant("x"), 1e30), succeeds());
    EXPECT_THAT(getColumnCost(store_, Variant("x"), bound), succeeds());
    EXPECT_EQ(bound, 1e30);
}

TEST_F(ModelEditTest, BinaryTypeSetsBoundsThatOnlyTheBoundPutsCanMove) {
    EXPECT_THAT(putColumnType(store_, Variant("x"), TARQColType::Binary), succeeds());
    EXPECT_EQ(store_.column(0).upperBound, 1.0);
    EXPECT_THAT(putColumnUpperBound(store_, Variant("x"), 7), succeeds());
    EXPECT_EQ(store_.column(0).upperBound, 7.0);
    const double zero = 0;
    EXPECT_THAT(changeColumn(store_, 0, {.lowerBound = &zero}),
                failsWith(status::invalidArgument, "Columns of type 'Binary' must have UB=1."));
}

TEST_F(ModelEditTest, ChangeKeepsWhatCameBeforeTheFailure) {
    const TARQColType binary = TARQColType::Binary;
    const double five = 5, cost = 1e30;
    const std::string taken = "3", free = "z";
    EXPECT_THAT(changeColumn(store_, 0, {.upperBound = &five, .type = &binary, .cost = &cost, .name = &free}),
                failsWith(status::invalidArgument, "Columns of type 'Binary' must have UB=1."));
    EXPECT_EQ(store_.column(0).type, binary);
    EXPECT_EQ(store_.column(0).cost, 2.5);
    EXPECT_EQ(store_.column(0).name, "x");
    EXPECT_THAT(changeColumn(store_, 2, {.upperBound = &five, .cost = &cost, .name = &taken}),
                failsWith(status::badColumnName, "Duplicate col name: 3"));
    EXPECT_EQ(store_.column(2).upperBound, 5.0);
    EXPECT_EQ(store_.column(2).cost, 1e30);
    EXPECT_EQ(store_.column(2).name, "");
    EXPECT_THAT(changeRow(store_, 1, {.lowerBound = &five, .name = &free}), succeeds());
    EXPECT_EQ(store_.findRow("z"), 1);
}

TEST_F(ModelEditTest, NonzerosAccumulateReplaceAndVanish) {
    const Variant row("r"), column("x");
    double value = 0;
    EXPECT_THAT(addNonzero(store_, row, column, 3), succeeds());
    EXPECT_THAT(getNonzero(store_, row, column, value), succeeds());
    EXPECT_EQ(value, 5.0);
    EXPECT_THAT(putNonzero(store_, row, column, 4), succeeds());
    EXPECT_THAT(addNonzero(store_, row, column, -4), succeeds());
    EXPECT_THAT(getNonzero(store_, row, column, value), succeeds());
    EXPECT_EQ(value, 0.0);
    EXPECT_THAT(putNonzero(store_, row, column, 4), succeeds());
    EXPECT_THAT(deleteNonzero(store_, column, row), succeeds());
    EXPECT_EQ(store_.nonzeros().size(), 0);
}

TEST_F(ModelEditTest, FamilyLeavesAsAWholeAndOthersMoveUp) {
    ASSERT_THAT(addColumn(store_, 0, 1, TARQColType::Continuous, missing, Variant("last")), succeeds());
    EXPECT_EQ(store_.column(2).upperBound, 1e25);
    EXPECT_EQ(store_.row(1).upperBound, 1e25);
    std::int32_t number = 0;
    EXPECT_THAT(getFamilyColumnStart(store_, &columns_, number), succeeds());
    EXPECT_EQ(number, 3);
    EXPECT_THAT(getFamilyRowStart(store_, &rows_, number), succeeds());
    EXPECT_EQ(number, 2);
    clearFamilyColumns(store_, nullptr);
    clearFamilyColumns(store_, &rows_);
    EXPECT_EQ(store_.columnCount(), 5);
    clearFamilyColumns(store_, &columns_);
    clearFamilyRows(store_, &rows_);
    EXPECT_EQ(store_.findColumn("last"), 2);
    EXPECT_EQ(store_.rowCount(), 1);
}

}  // namespace
}  // namespace tarq
