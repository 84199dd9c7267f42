// Costs from term lists.
#include <utility>
#include <vector>

#include "modelfixture.h"
#include "tests/support/valuewalks.h"

namespace tarq {
namespace {

template <class Element>
Variant arrayOf(std::vector<Element> elements) {
    return Variant(SafeArray::of(std::move(elements)));
}

/// Columns x, y and z with the costs 7, 8 and 9.
class ObjectiveSumTest : public ModelTest {
protected:
    ObjectiveSumTest() {
        buildSmall();
        resetCosts();
    }
    void resetCosts() {
        for (std::int32_t column = 1; column <= 3; ++column) {
            EXPECT_THAT(model->put_ColCost(Variant(column), column + 6), succeeds());
        }
    }
    std::vector<double> costs() {
        std::vector<double> all;
        for (std::int32_t column = 1; column <= 3; ++column) {
            all.push_back(valueOf<double>(&ITARQModel::get_ColCost, Variant(column)));
        }
        return all;
    }
    Status addObjSum(const std::vector<Variant>& list) { return model->AddObjSum(ValueList(list)); }
};

TEST_F(ObjectiveSumTest, NamedColumnsGetTheirCoefficientAsCost) {
    SafeArray names = SafeArray::of(std::vector<std::string>{"x", "y"});
    SafeArray numbers = SafeArray::of(std::vector<double>{1.5, 2.5});
    const Variant x("x");
    const Variant y("y");
    struct Case {
        const char* name;
        std::vector<Variant> list;
        std::vector<double> costs;
    };
    const Case cases[] = {
        {"nothing", {}, {7, 8, 9}},
        {"one name", {x}, {1, 8, 9}},
        {"two arrays", {Variant::byReference(numbers), Variant::byReference(names)}, {1.5, 2.5, 9}},
        {"the last coefficient of a column stays", {Variant(2), x, Variant(3), x}, {3, 8, 9}},
        {"costs aren't clamped", {Variant(-1e30), x}, {-1e30, 8, 9}},
        {"lists without elements", {arrayOf<double>({}), arrayOf<double>({}), y}, {7, 1, 9}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        resetCosts();
        EXPECT_THAT(addObjSum(each.list), succeeds());
        EXPECT_EQ(costs(), each.costs);
    }
}

TEST_F(ObjectiveSumTest, FailureKeepsTheCostsSetBeforeIt) {
    const Variant x("x");
    const Variant y("y");
    const Variant two = arrayOf<double>({1, 2});
    struct Case {
        const char* name;
        std::vector<Variant> list;
        Status status;
        const char* message;
        std::vector<double> costs;
    };
    const Case cases[] = {
        {"a list that can't be read",
         {x, y, objectOf<Stranger>()},
         status::invalidArgument,
         "Passed object cannot be used as an index set.",
         {7, 8, 9}},
        {"two coefficients for three columns",
         {two, arrayOf<std::string>({"x", "y", "z"})},
         status::invalidArgument,
         "Number of coefficients does not fit number of columns.",
         {7, 8, 9}},
        {"an unknown name within a term",
         {Variant(5), arrayOf<std::string>({"x", "nowhere", "z"})},
         status::badColumnName,
         "Col name 'nowhere' does not exist.",
         {5, 8, 9}},
        {"a number is a name here",
         {x, y, Variant(2), Variant(3)},
         status::badColumnName,
         "Col name '3' does not exist.",
         {1, 1, 9}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        resetCosts();
        EXPECT_THAT(addObjSum(each.list), raises(each.status, each.message));
        EXPECT_EQ(costs(), each.costs);
    }
}

}  // namespace
}  // namespace tarq
