#include "languages/stubmodel.h"

#include <gtest/gtest.h>

#include "importfixture.h"
#include "languages/amplfailures.h"
#include "languages/stubprotocol.h"

namespace tarq {
namespace {

template <class Value>
std::string raw(const Value& value) {
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

/// One row over two columns, as the program tells it. The fuzz target's corpus has what else can be told.
std::string told(const std::string& secondName) {
    const stub::Sizes sizes{.columns = 2, .rows = 1, .objectives = 1, .longestColumnName = 1};
    return raw(stub::hello) + raw(sizes) + raw(stub::verdict::linear) + raw(1) + raw(0.0) + raw(1e30) + raw(2.0) +
           raw(1) + "x" + raw(0.0) + raw(7.0) + raw(3.0) + raw(1) + secondName + raw(-1e99) + raw(4.0) + raw(1) +
           raw(1) + raw(5.0) + raw(stub::farewell);
}

Outcome receive(const std::string& bytes, FilledModel& model) {
    std::size_t next = 0;
    const auto source = [&](char* buffer, std::size_t length) {
        const std::size_t piece = bytes.copy(buffer, std::min<std::size_t>(length, 7), next);
        next += piece;
        return piece;
    };
    return receiveStubModel(source, model);
}

TEST(StubModelTest, AnswersThatEndEarlyLeaveTheOldModel) {
    FilledModel model;
    const std::string whole = told("y");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const bool hasSizes = length >= sizeof stub::hello + sizeof(stub::Sizes);
        const Outcome expected = hasSizes ? ampl::interfaceFailure() : ampl::ioError();
        ASSERT_THAT(receive(whole.substr(0, length), model), failsWith(expected.status(), expected.description()));
    }
    EXPECT_TRUE(model.isOld());
    EXPECT_THAT(receive(whole, model), succeeds());
    EXPECT_EQ(model.store_.columnCount(), 2);
}

TEST(StubModelTest, NameThatIsTakenEndsTheReadingThere) {
    FilledModel model;
    EXPECT_THAT(receive(told("x"), model), failsWith(status::badColumnName, "Duplicate col name: x"));
    EXPECT_EQ(model.store_.columnCount(), 1);
    EXPECT_EQ(model.store_.rowCount(), 0);
    EXPECT_TRUE(model.parameters_.empty());
}

}  // namespace
}  // namespace tarq
