#include "languages/stubmodel.h"

#include <gtest/gtest.h>

#include <limits>

#include "importfixture.h"
#include "languages/amplfailures.h"
#include "languages/stubprotocol.h"

namespace tarq {
namespace {

template <class Value>
std::string raw(const Value& value) {
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

std::string name(const std::string& text) { return raw(static_cast<std::int32_t>(text.size())) + text; }

/// One row over two columns, as the program tells it; each part can be replaced.
struct Told {
    stub::Sizes sizes{.columns = 2, .rows = 1, .objectives = 1, .integerColumns = 1, .longestColumnName = 1};
    std::int32_t verdict = stub::verdict::linear;
    std::string secondName = "y";
    double cost = 3;
    std::int32_t entries = 1;
    std::int32_t position = 1;

    [[nodiscard]] std::string bytes() const {
        return raw(stub::hello) + raw(sizes) + raw(verdict) + raw(1) + raw(0.0) + raw(1e30) + raw(2.0) + name("x") +
               raw(0.0) + raw(7.0) + raw(cost) + name(secondName) + raw(-1e99) + raw(4.0) + raw(entries) +
               raw(position) + raw(5.0) + raw(stub::farewell);
    }
};

Outcome receive(const std::string& bytes, FilledModel& model) {
    std::size_t next = 0;
    const auto source = [&](char* buffer, std::size_t length) {
        const std::size_t piece = bytes.copy(buffer, std::min<std::size_t>(length, 7), next);
        next += piece;
        return piece;
    };
    return receiveStubModel(source, model);
}

TEST(StubModelTest, WhatIsToldReplacesTheModel) {
    FilledModel model;
    ASSERT_THAT(receive(Told().bytes(), model), succeeds());
    const ModelStore& store = model.store_;
    ASSERT_EQ(store.columnCount(), 2);
    EXPECT_EQ(store.column(0).upperBound, 1e25) << "clamped";
    EXPECT_EQ(store.column(1).name, "y");
    EXPECT_EQ(store.column(1).type, TARQColType::Integer);
    EXPECT_EQ(store.column(1).cost, 3);
    EXPECT_EQ(store.row(0).name, "") << "no name was told";
    EXPECT_EQ(store.row(0).lowerBound, -1e25);
    double value = 0;
    EXPECT_TRUE(store.findNonzero(2, 1, value));
    EXPECT_EQ(value, 5);
    EXPECT_EQ(model.parameters_["xminmx"], "max");
}

TEST(StubModelTest, AnswersThatEndOrGoWrongLeaveTheOldModel) {
    FilledModel model;
    const std::string whole = Told().bytes();
    const std::size_t header = sizeof(stub::hello) + sizeof(stub::Sizes);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const Outcome expected = length < header ? ampl::ioError() : ampl::interfaceFailure();
        ASSERT_THAT(receive(whole.substr(0, length), model), failsWith(expected.status(), expected.description()))
            << length;
    }
    Told nonlinear;
    nonlinear.sizes.nonlinearRows = 1;
    Told objectives;
    objectives.sizes.objectives = 2;
    for (const Told& told : {nonlinear, objectives, Told{.verdict = stub::verdict::nonlinear}}) {
        EXPECT_EQ(receive(told.bytes(), model).status(), status::modelRejected);
    }
    Told discrete;
    discrete.sizes.binaryColumns = std::numeric_limits<std::int32_t>::max();
    Told huge;
    huge.sizes.rows = std::numeric_limits<std::int32_t>::max();
    for (const Told& told : {discrete, huge, Told{.verdict = 0}, Told{.cost = std::numeric_limits<double>::quiet_NaN()},
                             Told{.entries = -1}, Told{.position = 2}, Told{.position = -1}}) {
        EXPECT_EQ(receive(told.bytes(), model).status(), status::externalProcess);
    }
    EXPECT_TRUE(model.isOld());
    EXPECT_TRUE(model.parameters_.empty());
}

TEST(StubModelTest, NameThatIsTakenEndsTheReadingThere) {
    FilledModel model;
    EXPECT_THAT(receive(Told{.secondName = "x"}.bytes(), model),
                failsWith(status::badColumnName, "Duplicate col name: x"));
    EXPECT_EQ(model.store_.columnCount(), 1);
    EXPECT_EQ(model.store_.findColumn("old"), -1);
    EXPECT_TRUE(model.parameters_.empty());
}

}  // namespace
}  // namespace tarq
