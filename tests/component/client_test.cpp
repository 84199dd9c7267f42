#include "tarq/client.h"

#include <gtest/gtest.h>

namespace tarq::client {
namespace {

template <class Operation>
Status failureOf(const Operation& operation) {
    try {
        operation();
    } catch (const Error& error) {
        EXPECT_STRNE(error.what(), "");
        return error.status();
    }
    return status::ok;
}

TEST(Client, FailuresAndResultsThatAreNotThereAreErrors) {
    const Model model;
    model.addColumn("x", {.cost = 1});
    EXPECT_EQ(failureOf([&] { (void)model.ColUB("y").number(); }), status::invalidArgument);
    EXPECT_EQ(failureOf([&] { model.ColLB("x") = 1e30; }), failureOf([&] { model.call(&ITARQModel::AddRow, 1, 0); }));
    EXPECT_EQ(failureOf([&] { (void)model.ColLPSol("x"); }), status::noLpSolution);
    EXPECT_EQ(failureOf([] { Object<ITARQModel>("TARQModell"); }), status::classNotAvailable);
    EXPECT_EQ(failureOf([] { Object<ITARQModel>("TARQSet"); }), status::wrongClass);
}

TEST(Client, PropertiesAreIndexedByNamesNumbersAndListsOfThem) {
    const Names plants{"Ulm", "Trier"};
    const Array cost(plants, 3);
    cost() = Table{{1, 2, 3}, {4, 5, 6}};
    cost("Ulm", 2) = "two";
    EXPECT_EQ(cost("Trier", 3).number(), 6);
    EXPECT_EQ(cost("Ulm", 2).as<std::string>(), "two");
    EXPECT_EQ(failureOf([&] { (void)cost(all, 3).number(); }), status::wrongKind);

    const Model model;
    const Columns ship(model, "ship", plants, 3);
    ship.Cost() = 7;
    ship.UB(Names{"Ulm"}, std::vector<std::int32_t>{1, 3}) = Numbers{8, 9};
    EXPECT_EQ(ship.UB("Ulm", 3).number(), 9);
    const Rows demand(model, "demand", 3);
    demand.atLeast(Numbers{1, 2, 3});
    for (const int city : {1, 2, 3}) demand.row(city).sum(2.0, ship.slice(all, city));
    EXPECT_EQ(model.optimum(), 21);
    EXPECT_EQ(demand.Dual(1).number(), 3.5);
    EXPECT_THROW(ship.UB() = (Table{{1, 2}, {3}}), std::invalid_argument);
}

}  // namespace
}  // namespace tarq::client
