#include "languages/mathprogimport.h"

#include "tests/languages/importfixture.h"

namespace tarq {
namespace {

struct ScriptedColumn {
    std::int32_t type, kind;
    double lower, upper, cost;
    const char* name;
};
struct ScriptedRow {
    std::int32_t type;
    double lower, upper;
    const char* name;
    std::vector<std::pair<std::int32_t, double>> terms;
};
/// What the scripted library answers and what it was asked.
struct Script {
    std::vector<ScriptedColumn> columns;
    std::vector<ScriptedRow> rows;
    std::int32_t result = 0, problemClass = 101, direction = MP_DIR_MIN;
    std::string listing = std::string(2000, 'l');
    std::int32_t calls = 0;
    bool hadData = false;
} script;

const ScriptedColumn& columnAt(std::int32_t number) { return script.columns.at(static_cast<std::size_t>(number) - 1); }
const ScriptedRow& rowAt(std::int32_t number) { return script.rows.at(static_cast<std::size_t>(number) - 1); }

MathProgLibrary scriptedLibrary() {
    MathProgLibrary library;
    library.slot<"mp_read_model2">().function = [](const char*, const char* data, const char* output) {
        script.hadData = data != nullptr;
        ++script.calls;
        std::ofstream(output) << script.listing;
        return script.result;
    };
    library.slot<"mp_get_class">().function = [] { return script.problemClass; };
    library.slot<"mp_get_obj_dir">().function = [] { return script.direction; };
    library.slot<"mp_get_num_cols">().function = [] { return static_cast<std::int32_t>(script.columns.size()); };
    library.slot<"mp_get_num_rows">().function = [] { return static_cast<std::int32_t>(script.rows.size()); };
    library.slot<"mp_get_col_name">().function = [](std::int32_t j) { return columnAt(j).name; };
    library.slot<"mp_get_col_type">().function = [](std::int32_t j) { return columnAt(j).type; };
    library.slot<"mp_get_col_kind">().function = [](std::int32_t j) { return columnAt(j).kind; };
    library.slot<"mp_get_col_lb">().function = [](std::int32_t j) { return columnAt(j).lower; };
    library.slot<"mp_get_col_ub">().function = [](std::int32_t j) { return columnAt(j).upper; };
    library.slot<"mp_get_obj_coef">().function = [](std::int32_t j) { return columnAt(j).cost; };
    library.slot<"mp_get_row_name">().function = [](std::int32_t i) { return rowAt(i).name; };
    library.slot<"mp_get_row_type">().function = [](std::int32_t i) { return rowAt(i).type; };
    library.slot<"mp_get_row_lb">().function = [](std::int32_t i) { return rowAt(i).lower; };
    library.slot<"mp_get_row_ub">().function = [](std::int32_t i) { return rowAt(i).upper; };
    library.slot<"mp_get_mat_row">().function = [](std::int32_t i, std::int32_t* indices, double* values) {
        for (const auto& [column, value] : rowAt(i).terms) *++indices = column, *++values = value;
        return static_cast<std::int32_t>(rowAt(i).terms.size());
    };
    return library;
}

class MathProgImportTest : public ImportTest {
protected:
    MathProgImportTest() { script = {}; }

    Outcome import(const Variant& data = Variant::missing()) {
        return importMathProgModel(library, modelFile, data, model);
    }
    [[nodiscard]] double nonzero(std::int32_t column, std::int32_t row) const {
        const double* const value = store.nonzeros().find(column, row);
        return value != nullptr ? *value : 0.0;
    }

    const std::string modelFile = file("a.mod", "end;");
    MathProgLibrary library = scriptedLibrary();
    const ModelStore& store = model.store_;
};

TEST_F(MathProgImportTest, TypesTellTheBoundsAndTheFirstFreeRowIsTheObjective) {
    script.columns = {{110, 160, 3, 4, 1, "free"},   {111, 161, 3, 4, 2, "lower"}, {112, 161, 3, 4, 0, "upper"},
                      {113, 161, 0, 1, 5, "binary"}, {114, 160, 3, 4, 6, nullptr}, {113, 161, 0, 5, 7, "integer"}};
    script.rows = {{111, 1, 2, "first", {{1, 10}, {6, 0}}},
                   {110, 1, 2, "objective", {{2, 20}}},
                   {110, 1, 2, "second", {{3, 30}}},
                   {114, 8, 8, "third", {{9, 1}, {4, 40}}}};
    script.direction = 121;
    ASSERT_TRUE(import().isOk());
    const double none = 1e25;
    const std::pair<double, double> bounds[] = {{-none, none}, {3, none}, {-none, 4}, {0, 1}, {3, 4}, {0, 5}};
    using enum TARQColType;
    const TARQColType types[] = {Continuous, Integer, Integer, Binary, Continuous, Integer};
    ASSERT_EQ(store.columnCount(), 6);
    for (std::int32_t position = 0; position < 6; ++position) {
        const ColumnRecord& column = store.column(position);
        EXPECT_EQ(std::pair(column.lowerBound, column.upperBound), bounds[position]) << position;
        EXPECT_EQ(column.type, types[position]) << position;
    }
    EXPECT_EQ(store.column(3).cost, 5);
    EXPECT_EQ(store.column(4).name, "");
    ASSERT_EQ(store.rowCount(), 3);
    EXPECT_EQ(store.row(1).name, "second");
    EXPECT_EQ(store.row(1).lowerBound, -none);
    EXPECT_EQ(store.row(2).upperBound, 8);
    EXPECT_EQ(store.nonzeros().size(), 3) << "neither a zero, nor the objective's, nor of a column that isn't there";
    EXPECT_EQ(nonzero(1, 1) + nonzero(3, 2) + nonzero(4, 3), 80);
    EXPECT_EQ(model.parameters_["xminmx"], "max");
    EXPECT_EQ(model.output_, script.listing.substr(0, 1024)) << "as much as the target keeps";
    EXPECT_FALSE(script.hadData);
    EXPECT_TRUE(left().empty());

    script.problemClass = MP_CLASS_LP;
    ASSERT_TRUE(import(Variant(modelFile)).isOk());
    EXPECT_FALSE(store.hasIntegerColumn());
    EXPECT_TRUE(script.hadData);
}

TEST_F(MathProgImportTest, WithoutAFreeRowTheNonzerosAreStoredOneRowUp) {
    script.columns = {{111, 160, 0, 0, 1, "x"}};
    script.rows = {{114, 1, 1, "a", {{1, 10}}}, {114, 2, 2, "b", {{1, 20}}}};
    ASSERT_TRUE(import().isOk());
    EXPECT_EQ(store.rowCount(), 2);
    EXPECT_EQ(nonzero(1, 1), 20);
    EXPECT_EQ(store.nonzeros().size(), 1);
}

TEST_F(MathProgImportTest, FailuresBeforeTheCopyLeaveTheModel) {
    library.slot<"mp_create_prob">().function = nullptr;
    library.slot<"mp_get_obj_dir">().function = nullptr;
    EXPECT_THAT(import(), failsWith(status::entryPointsMissing, "Could not get MathProg.DLL function handles."));
    library = scriptedLibrary();
    EXPECT_THAT(importMathProgModel(library, "/nowhere/a.mod", Variant::missing(), model),
                failsWith(status::fileNotReachable, "Could not find .MOD file. Bad path."));
    EXPECT_THAT(import(Variant(3)), failsWith(status::invalidArgument, "Bad argument for .DAT filename."));
    EXPECT_THAT(import(Variant(modelFile + "x")),
                failsWith(status::fileNotReachable, "Could not find .DAT file. Bad filename."));
    const std::string folder = std::getenv("TMPDIR");
    setenv("TMPDIR", "/nowhere", 1);
    EXPECT_THAT(import(), failsWith(status::temporaryFile, "AMPL I/O Error."));
    EXPECT_EQ(script.calls, 0);
    setenv("TMPDIR", folder.c_str(), 1);
    script.result = 1;
    EXPECT_THAT(import(), failsWith(status::modelRejected, "Error in MathProg model."));
    EXPECT_EQ(model.output_.size(), 1024U);
    EXPECT_TRUE(left().empty());
    EXPECT_TRUE(model.isOld());
    script.result = 0;
    script.columns = {{111, 160, 0, 0, 1, "x"}, {111, 160, 0, 0, 1, "x"}};
    EXPECT_THAT(import(), failsWith(status::badColumnName, "Duplicate col name: x"));
    EXPECT_EQ(store.columnCount(), 1) << "what was added so far";
}

}  // namespace
}  // namespace tarq
