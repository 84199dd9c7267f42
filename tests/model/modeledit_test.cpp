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

using Column = ColumnRecord;
using Row = RowRecord;

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
        EXPECT_THAT(addFamilyMember<Column>(store_, "f.1", &columns_), succeeds());
        EXPECT_THAT(addFamilyMember<Column>(store_, "f.2", &columns_), succeeds());
        EXPECT_THAT(addRow(store_, 1, 5, Variant("r")), succeeds());
        EXPECT_THAT(addFamilyMember<Row>(store_, "g.1", &rows_), succeeds());
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
        Status status;
        std::string description;
    };
    const std::string longName(65, 'n');
    const std::string order = "Lower bound is greater than upper bound.";
    const std::string columnKind = "Col index is not convertible to string or integer.";
    const std::string rowKind = "Row index must be convertible to string or integer.";
    const TARQColType unknownType{3};
    const double five = 5, twenty = 20;
    const std::vector<Case> cases{
        {"bounds before everything", [&](auto& m) { return addColumn(m, 5, 3, Binary, object, object); },
         status::boundOrder, order},
        {"cost before name", [&](auto& m) { return addColumn(m, 0, 1, Integer, object, object); }, status::wrongKind,
         "Value for cost is of wrong variant type"},
        {"object as column name", [&](auto& m) { return addColumn(m, 0, 1, Integer, missing, object); },
         status::wrongKind, "Col name is of wrong variant type"},
        {"long column name", [&](auto& m) { return addColumn(m, 0, 1, Integer, missing, Variant(longName)); },
         status::badColumnName, "Col name is too long."},
        {"taken column name", [&](auto& m) { return addColumn(m, 0, 1, Integer, missing, Variant("x")); },
         status::badColumnName, "Duplicate col name: x"},
        {"row bounds", [&](auto& m) { return addRow(m, 5, 3, object); }, status::boundOrder, order},
        {"object as row name", [&](auto& m) { return addRow(m, 0, 1, object); }, status::wrongKind,
         "Row name is of wrong variant type"},
        {"long row name", [&](auto& m) { return addRow(m, 0, 1, Variant(longName)); }, status::badRowName,
         "Row name is too long."},
        {"taken row name", [&](auto& m) { return addRow(m, 0, 1, Variant("r")); }, status::badRowName,
         "Duplicate row name."},

        {"unknown column", [&](auto& m) { return getField(m, Variant("1"), &Column::cost).outcome(); },
         status::invalidArgument, "Column name '1' could not be found."},
        {"empty name", [&](auto& m) { return getItemNumber<Column>(m, Variant("")).outcome(); },
         status::invalidArgument, "Column name '' could not be found."},
        {"column 0", [&](auto& m) { return putLowerBound<Column>(m, Variant(std::int32_t{0}), 0); },
         status::invalidArgument, "Column index is less than 1."},
        {"column 5 of 4", [&](auto& m) { return getItemNumber<Column>(m, Variant(4.6)).outcome(); },
         status::invalidArgument, "Column index is greater than number of columns."},
        {"missing column", [&](auto& m) { return getItemNumber<Column>(m, missing).outcome(); }, status::wrongKind,
         columnKind},
        {"unknown row", [&](auto& m) { return getField(m, Variant("x"), &Row::lowerBound).outcome(); },
         status::invalidArgument, "Row name 'x' could not be found."},
        {"row -1", [&](auto& m) { return putUpperBound<Row>(m, Variant(-1.0), 0); }, status::invalidArgument,
         "Row index is less than 1."},
        {"row 3 of 2", [&](auto& m) { return deleteItem<Row>(m, Variant(3.0)); }, status::invalidArgument,
         "Row index is greater than number of rows."},
        {"missing row", [&](auto& m) { return getItemNumber<Row>(m, missing).outcome(); }, status::wrongKind, rowKind},
        {"column before row in AddNZ", [&](auto& m) { return addNonzero(m, object, object, 1); }, status::wrongKind,
         columnKind},
        {"column before row in DelNZ", [&](auto& m) { return deleteNonzero(m, object, object); }, status::wrongKind,
         columnKind},
        {"column before row in NZ get", [&](auto& m) { return getNonzero(m, object, object).outcome(); },
         status::wrongKind, columnKind},
        {"then the row", [&](auto& m) { return putNonzero(m, object, Variant("x"), 1); }, status::wrongKind, rowKind},
        {"absent nonzero", [&](auto& m) { return deleteNonzero(m, Variant("3"), Variant("r")); }, status::noSuchNonzero,
         "Nonzero element does not exist"},

        {"lower above upper", [&](auto& m) { return putLowerBound<Column>(m, Variant("x"), 11); }, status::boundOrder,
         order},
        {"upper below lower", [&](auto& m) { return putUpperBound<Row>(m, Variant("r"), 0.5); }, status::boundOrder,
         order},
        {"type 3", [&](auto& m) { return putColumnType(m, Variant("x"), unknownType); }, status::invalidArgument,
         "Bad value for type."},
        {"name of column 0", [&](auto& m) { return getItemName<Column>(m, 0).outcome(); }, status::indexOutOfRange,
         "Index out of valid range."},
        {"name of row 3", [&](auto& m) { return putItemName<Row>(m, 3, "z"); }, status::indexOutOfRange,
         "Index out of valid range."},
        {"name of a family's column", [&](auto& m) { return putItemName<Column>(m, 3, "z"); }, status::invalidArgument,
         "Name could not be changed, because specified column is part of a TARQVarSet."},
        {"name of a family's row", [&](auto& m) { return putItemName<Row>(m, 2, "z"); }, status::invalidArgument,
         "Name could not be changed, because specified row is part of a TARQResSet."},
        {"delete a family's column", [&](auto& m) { return deleteItem<Column>(m, Variant("f.1")); },
         status::invalidArgument, "Column is part of a TARQVarSet and cannot be deleted"},
        {"delete a family's row", [&](auto& m) { return deleteItem<Row>(m, Variant("g.1")); }, status::invalidArgument,
         "Row is part of a TARQResSet and cannot be deleted."},

        {"change to type 3", [&](auto& m) { return changeItem<Column>(m, 0, {.type = &unknownType}); },
         status::invalidArgument, "Invalid type. Column index: 1"},
        {"binary lower bound", [&](auto& m) { return changeItem<Column>(m, 1, {.lowerBound = &five}); },
         status::invalidArgument, "Columns of type 'Binary' must have LB=0."},
        {"binary upper bound", [&](auto& m) { return changeItem<Column>(m, 1, {.upperBound = &five}); },
         status::invalidArgument, "Columns of type 'Binary' must have UB=1."},
        {"both bounds crossed",
         [&](auto& m) { return changeItem<Column>(m, 0, {.lowerBound = &twenty, .upperBound = &five}); },
         status::boundOrder, order},
        {"position 4 of 4", [&](auto& m) { return changeItem<Column>(m, 4, {}); }, status::indexOutOfRange,
         "Index out of valid range."},
        {"position -1", [&](auto& m) { return changeItem<Row>(m, -1, {}); }, status::indexOutOfRange,
         "Index out of valid range."},
        {"row bounds crossed", [&](auto& m) { return changeItem<Row>(m, 0, {.lowerBound = &twenty}); },
         status::boundOrder, order},

        {"family without columns", [&](auto& m) { return getFamilyStart<Column>(m, &rows_).outcome(); },
         status::wrongState, "TARQVarSet is not part of the model"},
        {"null family", [&](auto& m) { return getFamilyStart<Column>(m, nullptr).outcome(); }, status::wrongState,
         "TARQVarSet is not part of the model"},
        {"family without rows", [&](auto& m) { return getFamilyStart<Row>(m, &columns_).outcome(); }, status::none, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.situation);
        EXPECT_THAT(c.edit(store_), failsWith(c.status, c.description));
        EXPECT_EQ(store_.columnCount(), 4);
        EXPECT_EQ(store_.rowCount(), 2);
        EXPECT_EQ(store_.nonzeros().size(), 1);
        EXPECT_EQ(store_.column(0).type, Continuous);
        EXPECT_EQ(store_.column(0).upperBound - store_.column(0).lowerBound, 10);
        EXPECT_EQ(store_.row(0).upperBound - store_.row(0).lowerBound, 4);
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
    EXPECT_EQ(*getItemNumber<Column>(store_, byName), 1);
    EXPECT_EQ(*getItemNumber<Column>(store_, byNumber), 2) << "2.5 rounds to even";
    EXPECT_EQ(*getItemNumber<Column>(store_, Variant("3")), 2) << "a text is a name even when it reads as a number";
    EXPECT_EQ(real, 2.5);
    EXPECT_TRUE(byNumber.isByReference());
}

TEST_F(ModelEditTest, BoundsAreComparedRawAndStoredClamped) {
    EXPECT_THAT(putUpperBound<Column>(store_, Variant("x"), 1e30), succeeds());
    EXPECT_EQ(*getField(store_, Variant("x"), &Column::upperBound), 1e25);
    EXPECT_THAT(putLowerBound<Column>(store_, Variant("x"), 1e26),
                failsWith(status::boundOrder, "Lower bound is greater than upper bound."));
    EXPECT_THAT(putLowerBound<Row>(store_, Variant("r"), -1e30), succeeds());
    EXPECT_EQ(*getField(store_, Variant("r"), &Row::lowerBound), -1e25);
    EXPECT_THAT(putColumnCost(store_, Variant("x"), 1e30), succeeds());
    EXPECT_EQ(*getField(store_, Variant("x"), &Column::cost), 1e30);
}

TEST_F(ModelEditTest, BinaryTypeSetsBoundsThatOnlyTheBoundPutsCanMove) {
    EXPECT_THAT(putColumnType(store_, Variant("x"), TARQColType::Binary), succeeds());
    EXPECT_EQ(store_.column(0).upperBound, 1.0);
    EXPECT_THAT(putUpperBound<Column>(store_, Variant("x"), 7), succeeds());
    EXPECT_EQ(store_.column(0).upperBound, 7.0);
    const double zero = 0;
    EXPECT_THAT(changeItem<Column>(store_, 0, {.lowerBound = &zero}),
                failsWith(status::invalidArgument, "Columns of type 'Binary' must have UB=1."));
}

TEST_F(ModelEditTest, ChangeKeepsWhatCameBeforeTheFailure) {
    const TARQColType binary = TARQColType::Binary;
    const double five = 5, cost = 1e30;
    const std::string taken = "3", free = "z";
    EXPECT_THAT(changeItem<Column>(store_, 0, {.upperBound = &five, .type = &binary, .cost = &cost, .name = &free}),
                failsWith(status::invalidArgument, "Columns of type 'Binary' must have UB=1."));
    EXPECT_EQ(store_.column(0).type, binary);
    EXPECT_EQ(store_.column(0).cost, 2.5);
    EXPECT_EQ(store_.column(0).name, "x");
    EXPECT_THAT(changeItem<Column>(store_, 2, {.upperBound = &five, .cost = &cost, .name = &taken}),
                failsWith(status::badColumnName, "Duplicate col name: 3"));
    EXPECT_EQ(store_.column(2).upperBound, 5.0);
    EXPECT_EQ(store_.column(2).cost, 1e30);
    EXPECT_EQ(store_.column(2).name, "");
    EXPECT_THAT(changeItem<Row>(store_, 1, {.lowerBound = &five, .name = &free}), succeeds());
    EXPECT_EQ(store_.findRow("z"), 1);
}

TEST_F(ModelEditTest, NonzerosAccumulateReplaceAndVanish) {
    const Variant row("r"), column("x");
    EXPECT_THAT(addNonzero(store_, row, column, 3), succeeds());
    EXPECT_EQ(*getNonzero(store_, row, column), 5.0);
    EXPECT_THAT(putNonzero(store_, row, column, 4), succeeds());
    EXPECT_THAT(addNonzero(store_, row, column, -4), succeeds());
    EXPECT_EQ(*getNonzero(store_, row, column), 0.0);
    EXPECT_THAT(putNonzero(store_, row, column, 4), succeeds());
    EXPECT_THAT(deleteNonzero(store_, column, row), succeeds());
    EXPECT_EQ(store_.nonzeros().size(), 0);
}

TEST_F(ModelEditTest, FamilyLeavesAsAWholeAndOthersMoveUp) {
    ASSERT_THAT(addColumn(store_, 0, 1, TARQColType::Continuous, missing, Variant("last")), succeeds());
    EXPECT_EQ(store_.column(2).upperBound, 1e25);
    EXPECT_EQ(store_.row(1).upperBound, 1e25);
    EXPECT_EQ(*getFamilyStart<Column>(store_, &columns_), 3);
    EXPECT_EQ(*getFamilyStart<Row>(store_, &rows_), 2);
    clearFamily<Column>(store_, nullptr);
    clearFamily<Column>(store_, &rows_);
    EXPECT_EQ(store_.columnCount(), 5);
    clearFamily<Column>(store_, &columns_);
    clearFamily<Row>(store_, &rows_);
    EXPECT_EQ(store_.findColumn("last"), 2);
    EXPECT_EQ(store_.rowCount(), 1);
}

}  // namespace
}  // namespace tarq
