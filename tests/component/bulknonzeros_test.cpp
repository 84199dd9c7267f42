// Blocks and stairs of nonzeros, and the lists by which their columns and rows are named.
#include <array>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "modelfixture.h"
#include "tarq/interfaces/itarqarray.h"
#include "tests/support/valuewalks.h"

namespace tarq {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

template <class Element>
Variant arrayOf(std::vector<Element> elements, std::int32_t lowerBound = 0) {
    return Variant(SafeArray::of(std::move(elements), lowerBound));
}

Variant namesOf(std::vector<std::string> names) { return arrayOf(std::move(names)); }

Variant walkOf(std::vector<Variant> values, std::string failure = {}) {
    return objectOf<SeriesWalk>(WalkedValues{std::move(values), std::move(failure)});
}

/// An array of the values row by row, with lower bounds 4.
template <class Element>
Variant tableOf(std::uint32_t rows, std::vector<Element> values) {
    const std::array dimensions{Dimension{4, rows}, Dimension{4, static_cast<std::uint32_t>(values.size()) / rows}};
    SafeArray array;
    EXPECT_THAT(SafeArray::create(elementKindOf<Element>, dimensions, array), succeeds());
    std::ranges::move(values, array.elements<Element>().begin());
    return Variant(std::move(array));
}

/// A TARQArray of these sizes and values.
Variant arrayObject(std::vector<Variant> sizes, std::vector<Variant> values) {
    const auto array = createObject<ITARQArray>("TARQArray");
    EXPECT_THAT(array->Init(ValueList(std::move(sizes))), succeeds());
    EXPECT_THAT(array->SetValues(ValueList(std::move(values))), succeeds());
    return Variant(array.query<IUnknown>());
}

/// Columns x, y and z; of the rows r, s and t only the first has coefficients: 1, 2 and 3.
class BulkNonzerosTest : public ModelTest {
protected:
    BulkNonzerosTest() {
        buildSmall();
        for (const char* name : {"s", "t"}) EXPECT_THAT(model->AddRow(0, 0, Variant(name)), succeeds());
    }

    Variant block(const Variant& rows, const Variant& columns) {
        return valueOf<Variant>(&ITARQModel::get_NZs, rows, columns);
    }
    std::vector<double> cells(const Variant& rows, const Variant& columns) {
        const Variant values = block(rows, columns);
        if (!values.isArray()) return {values.real()};
        const std::span<const double> elements = values.array().elements<double>();
        return {elements.begin(), elements.end()};
    }
    std::vector<double> matrix() { return cells(allRows, allColumns); }

    const Variant r{"r"};
    const Variant allRows = namesOf({"r", "s", "t"});
    const Variant allColumns = namesOf({"x", "y", "z"});
    const std::vector<double> unchanged{1, 2, 3, 0, 0, 0, 0, 0, 0};
};

TEST_F(BulkNonzerosTest, OnePlaceReadsAsADouble) {
    for (const Variant& column : {Variant("z"), Variant(3), Variant(2.6), arrayOf<std::int32_t>({3})}) {
        const Variant value = block(r, column);
        ASSERT_TRUE(value.is(Kind::Double));
        EXPECT_EQ(value.real(), 3);
    }
    EXPECT_EQ(block(Variant("s"), Variant("x")).real(), 0);
}

TEST_F(BulkNonzerosTest, MorePlacesReadAsATableWithLowerBoundsOne) {
    const Variant row = block(r, namesOf({"z", "x"}));
    ASSERT_EQ(row.code(), static_cast<std::uint16_t>(Kind::Double) | arrayFlag);
    EXPECT_THAT(row.array().dimensions(), ElementsAre(Dimension{1, 1}, Dimension{1, 2}));
    EXPECT_THAT(row.array().elements<double>(), ElementsAre(3, 1));

    const Variant table = block(namesOf({"s", "r"}), namesOf({"z", "x", "z"}));
    EXPECT_THAT(table.array().dimensions(), ElementsAre(Dimension{1, 2}, Dimension{1, 3}));
    EXPECT_THAT(table.array().elements<double>(), ElementsAre(0, 0, 0, 3, 1, 3));

    const Variant nothing = block(r, namesOf({}));
    EXPECT_THAT(nothing.array().dimensions(), ElementsAre(Dimension{1, 1}, Dimension{1, 0}));
}

TEST_F(BulkNonzerosTest, ListsOfEveryFormNameTheSameColumns) {
    SafeArray referenced = SafeArray::of(std::vector<std::string>{"z", "x"});
    Ref<IUnknown> object(walkOf({Variant("z"), Variant("x")}).object());
    const std::pair<const char*, Variant> forms[] = {
        {"texts", namesOf({"z", "x"})},
        {"texts and numbers", arrayOf<Variant>({Variant("z"), Variant(1)})},
        {"numbers", arrayOf<std::int32_t>({3, 1})},
        {"reals, which are rounded", arrayOf<double>({2.6, 1.4})},
        {"another lower bound", arrayOf<std::int32_t>({3, 1}, -7)},
        {"by reference", Variant::byReference(referenced)},
        {"a walk", walkOf({Variant(3.0), Variant("x")})},
        {"an object by reference", Variant::byReference(object)},
        {"a series", objectOf<WalkedSeries>(WalkedValues{{Variant(3.0), Variant(1.0)}})},
    };
    for (const auto& [name, columns] : forms) EXPECT_THAT(cells(r, columns), ElementsAre(3, 1)) << name;
}

TEST_F(BulkNonzerosTest, RefusedIndexListStoresNothing) {
    const char* const notNormal = "Value cannot be converted to string or numeric.";
    const Variant x("x");
    struct Case {
        const char* name;
        Variant rows;
        Variant columns;
        Status status;
        const char* message;
    };
    const Case cases[] = {
        {"two dimensions", r, tableOf<double>(1, {1, 2}), status::invalidArgument,
         "Multidimensional arrays not allowed."},
        {"an array of objects", r, arrayOf<Ref<IUnknown>>({nullptr}), status::invalidArgument,
         "Array contains elements of wrong type."},
        {"a truth value", r, arrayOf<Variant>({x, Variant(true)}), status::invalidArgument, notNormal},
        {"an unknown name", r, namesOf({"x", "none"}), status::invalidArgument,
         "Column name 'none' could not be found."},
        {"a number beyond integers", r, arrayOf<double>({1e300}), status::wrongKind,
         "Col index is not convertible to string or integer."},
        {"both, of which columns are first", Variant("none"), Variant("nil"), status::invalidArgument,
         "Column name 'nil' could not be found."},
        {"a strange object", r, objectOf<Stranger>(), status::invalidArgument, "Bad type of object for col indices."},
        {"a strange object for rows", objectOf<Stranger>(), x, status::invalidArgument,
         "Bad type of object for row indices."},
        {"an array object", r, arrayObject({Variant(1)}, {x}), status::invalidArgument,
         "Bad type of object for col indices."},
        {"a walk that fails", walkOf({r}, "The series has gone."), x, status::invalidArgument, "The series has gone."},
        {"a series without a walk", r, objectOf<WalkedSeries>(WalkedValues{{}, "No series yet."}),
         status::invalidArgument, "No series yet."},
        {"a walk over what is no index", r, walkOf({x, Variant::null()}), status::invalidArgument, notNormal},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        Variant value("as it was");
        EXPECT_THAT(model->get_NZs(each.rows, each.columns, &value), raises(each.status, each.message));
        EXPECT_TRUE(value.isText());
        EXPECT_THAT(model->put_NZs(each.rows, each.columns, Variant(9)), raises(each.status, each.message));
        EXPECT_THAT(model->SetNZStair(each.rows, each.columns, Variant(9)), raises(each.status, each.message));
        EXPECT_EQ(matrix(), unchanged);
    }
    EXPECT_EQ(model->get_NZs(r, x, nullptr), status::nullPointer);
}

TEST_F(BulkNonzerosTest, BlockTakesItsValuesRowByRow) {
    struct Case {
        const char* name;
        Variant rows;
        Variant columns;
        Variant values;
        std::vector<double> matrix;
    };
    const Variant rows = namesOf({"t", "r"});
    const Variant columns = namesOf({"z", "x"});
    const std::vector<double> filled{7, 2, 6, 0, 0, 0, 5, 0, 4};
    const Case cases[] = {
        {"one value", rows, columns, Variant("1.5"), {1.5, 2, 1.5, 0, 0, 0, 1.5, 0, 1.5}},
        {"one place", r, Variant("y"), Variant(8), {1, 8, 3, 0, 0, 0, 0, 0, 0}},
        {"a vector", rows, columns, arrayOf<double>({4, 5, 6, 7}), filled},
        {"the corner of a table", rows, columns, tableOf<double>(3, {4, 5, 0, 6, 7, 0, 0, 0, 0}), filled},
        {"an object", rows, columns, walkOf({Variant(4), Variant(5), Variant(6), Variant(7), Variant(8)}), filled},
        {"an array object", rows, columns,
         arrayObject({Variant(2), Variant(2)}, {Variant(4), Variant(5), Variant(6), Variant(7)}), filled},
        {"zero erases", rows, columns, arrayOf<double>({4, 5, 0, 0}), {0, 2, 0, 0, 0, 0, 5, 0, 4}},
        {"the last value of a place stays",
         namesOf({"r", "r"}),
         namesOf({"y", "y"}),
         arrayOf<double>({4, 5, 6, 7}),
         {1, 7, 3, 0, 0, 0, 0, 0, 0}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        ASSERT_THAT(model->put_NZs(allRows, allColumns, arrayOf(unchanged)), succeeds());
        EXPECT_THAT(model->put_NZs(each.rows, each.columns, each.values), succeeds());
        EXPECT_EQ(matrix(), each.matrix);
    }
    EXPECT_EQ(valueOf<std::int32_t>(&ITARQModel::get_NumberOfNZ), 3);
}

TEST_F(BulkNonzerosTest, RefusedValuesStoreNothing) {
    const std::pair<Variant, const char*> cases[] = {
        {Variant("many"), "Parameter for value is of wrong type."},
        {arrayOf<double>({4, 5, 6}), "Not enough elements in value array."},
        {walkOf({Variant(4)}, "The series has gone."), "The series has gone."},
        {arrayObject({Variant(4)}, {Variant(4), Variant(5), Variant(6), Variant(7)}),
         "Dimension of TARQArray does not fit."},
    };
    const Variant rows = namesOf({"s", "r"});
    const Variant columns = namesOf({"z", "x"});
    for (const auto& [values, message] : cases) {
        EXPECT_THAT(model->put_NZs(rows, columns, values), raises(status::invalidArgument, message));
        EXPECT_EQ(matrix(), unchanged) << message;
    }
}

TEST_F(BulkNonzerosTest, StairEndsWithTheShorterList) {
    struct Case {
        const char* name;
        Variant rows;
        Variant columns;
        Variant values;
        std::vector<double> matrix;
    };
    const Variant two = namesOf({"z", "x"});
    const Case cases[] = {
        {"one value for two columns", allRows, two, Variant(5), {1, 2, 5, 5, 0, 0, 0, 0, 0}},
        {"two values for two rows",
         namesOf({"t", "r"}),
         allColumns,
         arrayOf<double>({6, 7}),
         {1, 7, 3, 0, 0, 0, 6, 0, 0}},
        {"zero erases", allRows, allColumns, Variant(0), {0, 2, 3, 0, 0, 0, 0, 0, 0}},
        {"a place named twice",
         namesOf({"t", "t"}),
         namesOf({"y", "y"}),
         walkOf({Variant(6), Variant(7)}),
         {1, 2, 3, 0, 0, 0, 0, 7, 0}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        ASSERT_THAT(model->put_NZs(allRows, allColumns, arrayOf(unchanged)), succeeds());
        EXPECT_THAT(model->SetNZStair(each.rows, each.columns, each.values), succeeds());
        EXPECT_EQ(matrix(), each.matrix);
    }
    ASSERT_THAT(model->put_NZs(allRows, allColumns, arrayOf(unchanged)), succeeds());
    EXPECT_THAT(model->SetNZStair(allRows, two, arrayOf<double>({5})),
                raises(status::invalidArgument, "Not enough elements in value array."));
    EXPECT_EQ(matrix(), unchanged);
}

}  // namespace
}  // namespace tarq
