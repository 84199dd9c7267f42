#include "parameters/parametertable.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <stdexcept>
#include <string>

#include "tests/parameters/parameterfailures.h"

namespace tarq {
namespace {

constexpr std::int32_t longMaximum = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t longMinimum = std::numeric_limits<std::int32_t>::min();
constexpr double infinity = std::numeric_limits<double>::infinity();

void checkLongLimits(ParameterTable& table, int row, const ParameterRow& about) {
    EXPECT_EQ(table.longValue(row), about.longDefault);
    EXPECT_THAT(table.setLong(row, about.longMinimum), succeeds());
    EXPECT_THAT(table.setLong(row, about.longMaximum), succeeds());
    if (about.longMinimum != longMinimum) {
        EXPECT_THAT(table.setLong(row, about.longMinimum - 1), isOutOfRange());
    }
    if (about.longMaximum != longMaximum) {
        EXPECT_THAT(table.setLong(row, about.longMaximum + 1), isOutOfRange());
    }
    EXPECT_EQ(table.longValue(row), about.longMaximum);
}

void checkDoubleLimits(ParameterTable& table, int row, const ParameterRow& about) {
    EXPECT_EQ(table.doubleValue(row), about.doubleDefault);
    EXPECT_THAT(table.setDouble(row, about.doubleMinimum), succeeds());
    EXPECT_THAT(table.setDouble(row, about.doubleMaximum), succeeds());
    EXPECT_THAT(table.setDouble(row, std::nextafter(about.doubleMinimum, -infinity)), isOutOfRange());
    EXPECT_THAT(table.setDouble(row, std::nextafter(about.doubleMaximum, infinity)), isOutOfRange());
    EXPECT_THAT(table.setDouble(row, std::nan("")), isOutOfRange());
    EXPECT_EQ(table.doubleValue(row), about.doubleMaximum);
}

void checkStringLimit(ParameterTable& table, int row, const ParameterRow& about) {
    EXPECT_EQ(table.stringValue(row), about.stringDefault);
    const std::string longest(static_cast<std::size_t>(about.stringMaxLength), 'a');
    EXPECT_THAT(table.setString(row, longest), succeeds());
    EXPECT_THAT(table.setString(row, longest + "a"), isTooLong());
    EXPECT_EQ(table.stringValue(row), longest);
}

TEST(ParameterTable, EveryRowStartsAtItsDefaultAndTakesExactlyItsRange) {
    ParameterTable table;
    for (int row = 0; row < parameterCount; ++row) {
        const ParameterRow& about = parameterRows()[static_cast<std::size_t>(row)];
        SCOPED_TRACE(about.name);
        switch (about.type) {
            case ParameterType::Long:
                checkLongLimits(table, row, about);
                break;
            case ParameterType::Double:
                checkDoubleLimits(table, row, about);
                break;
            case ParameterType::String:
                checkStringLimit(table, row, about);
                break;
        }
    }
}

TEST(ParameterTable, ResetRestoresEveryRowAndClearsTheResults) {
    ParameterTable table;
    ParameterTable fresh;
    for (int row = 0; row < parameterCount; ++row) {
        const ParameterRow& about = parameterRows()[static_cast<std::size_t>(row)];
        // One of the two differs from the default; a store of the wrong kind is refused.
        (void)table.setLong(row, about.longDefault == about.longMaximum ? about.longMinimum : about.longMaximum);
        (void)table.setDouble(row,
                              about.doubleDefault == about.doubleMaximum ? about.doubleMinimum : about.doubleMaximum);
        (void)table.setString(row, "changed");
        ASSERT_NE(table.valueText(row), fresh.valueText(row)) << about.name;
    }
    for (int slot = 0; slot < resultCount; ++slot) table.setResult(slot, 7.0);

    table.reset();

    for (int row = 0; row < parameterCount; ++row) EXPECT_EQ(table.valueText(row), fresh.valueText(row)) << row;
    for (int slot = 0; slot < resultCount; ++slot) EXPECT_EQ(table.resultDouble(slot), 0.0) << slot;
}

TEST(ParameterTable, StartValuesThatARunDependsOn) {
    const struct {
        std::string_view name;
        std::string_view text;
    } cases[] = {{"xmreal", "0"},       {"xfrnds", "-1"},       {"xipbnd", "1e+20"}, {"xmxint", "32767"},
                 {"xminmx", "min"},     {"xlptyp", "2"},        {"xtolr2", "1e-14"}, {"xglgap", "0.0001"},
                 {"xmxnod", "9999999"}, {"xmiter", "20000000"}, {"xmxmin", "120"},   {"xtolin", "1e-05"}};
    const ParameterTable table;
    for (const auto& each : cases) EXPECT_EQ(table.valueText(parameterIndex(each.name)), each.text) << each.name;
}

TEST(ParameterTable, TextLengthCountsWideCharacters) {
    ParameterTable table;
    const int row = parameterIndex("xminmx");
    EXPECT_THAT(table.setString(row, "ääääääää"), succeeds());
    EXPECT_THAT(table.setString(row, "äääääääää"), isTooLong());
    EXPECT_THAT(table.setString(row, "\U0001F600\U0001F600\U0001F600\U0001F600"), succeeds());
    EXPECT_THAT(table.setString(row, "\U0001F600\U0001F600\U0001F600\U0001F600a"), isTooLong());
    EXPECT_THAT(table.setString(row, std::string(9, '\x80')), isTooLong());
}

TEST(ParameterTable, RowThatIsNotThereIsNeverTouched) {
    ParameterTable table;
    for (const int row : {-1, parameterCount}) {
        EXPECT_THROW((void)table.longValue(row), std::out_of_range);
        EXPECT_THROW((void)table.setString(row, ""), std::out_of_range);
        EXPECT_THROW((void)table.valueText(row), std::out_of_range);
    }
    for (const int slot : {-1, resultCount}) EXPECT_THROW(table.setResult(slot, 1.0), std::out_of_range);
}

TEST(ParameterTable, ResultsOfWholeNumbersStayWithinTheirType) {
    ParameterTable table;
    const int nodes = resultIndex("xnodes");
    const struct {
        double written;
        std::int32_t read;
    } cases[] = {{12.0, 12}, {-3.9, -3}, {1e30, longMaximum}, {-infinity, longMinimum}, {std::nan(""), 0}};
    for (const auto& each : cases) {
        table.setResult(nodes, each.written);
        EXPECT_EQ(table.resultLong(nodes), each.read) << each.written;
    }
    EXPECT_EQ(table.resultDouble(resultIndex("xzbest")), 0.0);
}

}  // namespace
}  // namespace tarq
