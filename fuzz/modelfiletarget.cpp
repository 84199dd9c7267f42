#include "modelfiletarget.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "modelfiles/modelfile.h"
#include "target.h"

namespace tarq::fuzzing {
namespace {

using Assignment = std::pair<std::string, std::string>;

struct ReadModel final : ModelFileTarget {
    ModelStore& store() override { return modelStore; }
    void clearModel() override {
        ++clearings;
        modelStore.clear();
    }
    void setModelName(std::string text) override { name = std::move(text); }
    void setParameter(std::string_view parameter, std::string_view value) override {
        parameters.emplace_back(parameter, value);
    }

    ModelStore modelStore;
    std::string name;
    std::vector<Assignment> parameters;
    int clearings = 0;
};

/// Not-a-number, which sums of very large coefficients may give, is itself here.
bool areSame(double left, double right) {
    return std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right);
}

/// The number behind " Line ", 0 where there is none.
std::size_t lineNumberIn(std::string_view message) {
    constexpr std::string_view label = " Line ";
    const std::size_t found = message.rfind(label);
    if (found == std::string_view::npos) return 0;
    std::size_t number = 0;
    const char* const end = message.data() + message.size();
    const auto [stop, error] = std::from_chars(message.data() + found + label.size(), end, number);
    return stop == end && error == std::errc{} ? number : 0;
}

void checkOutcome(const FormatRules& rules, const Outcome& outcome, std::string_view text) {
    const std::string& message = outcome.description();
    if (outcome.isOk()) {
        check(message.empty(), "a success has no message");
        return;
    }
    check(outcome.status() == status::syntaxError, "a text fails as a syntax error");
    const std::string prefix = std::string("Error parsing ").append(rules.name).append(" file: ");
    check(message.starts_with(prefix) && message.size() > prefix.size(), "the message begins with its format");
    const auto feeds = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    const std::size_t line = lineNumberIn(message);
    check(line >= 1 && line <= feeds + 2, "the message ends with a line of the text");
}

void checkName(const FormatRules& rules, std::string_view name, std::int32_t position, std::int32_t found) {
    check(name.size() <= rules.longestName, "no name is longer than its format allows");
    check(!name.empty() || !rules.allHaveNames, "all columns and rows have names");
    check(found == (name.empty() ? -1 : position), "a name leads to its record");
    const bool hasSmall = std::any_of(name.begin(), name.end(), [](char c) { return c >= 'a' && c <= 'z'; });
    check(!rules.namesAreInCapitals || !hasSmall, "names are in capitals");
}

void checkBounds(const FormatRules& rules, const ModelStore& store, double lower, double upper) {
    check(!std::isnan(lower) && !std::isnan(upper), "bounds are numbers");
    check(!rules.boundsAreOrdered || lower <= upper, "the lower bound isn't above the upper one");
    const double largest = std::max(std::abs(lower), std::abs(upper));
    check(!rules.boundsAreClamped || largest <= store.infinity(), "bounds end at infinity");
}

void checkRecords(const FormatRules& rules, const ModelStore& store) {
    for (std::int32_t position = 0; position < store.columnCount(); ++position) {
        const ColumnRecord& column = store.column(position);
        checkName(rules, column.name, position, store.findColumn(column.name));
        checkBounds(rules, store, column.lowerBound, column.upperBound);
        const bool isKnown = column.type == TARQColType::Continuous || column.type == TARQColType::Integer ||
                             column.type == TARQColType::Binary;
        check(isKnown, "a column has one of the three types");
    }
    for (std::int32_t position = 0; position < store.rowCount(); ++position) {
        const RowRecord& row = store.row(position);
        checkName(rules, row.name, position, store.findRow(row.name));
        checkBounds(rules, store, row.lowerBound, row.upperBound);
        check(!rules.rowsKeepType || (row.dual >= 1.0 && row.dual <= 4.0), "a row keeps its type");
    }
}

void checkNonzeros(const ModelStore& store) {
    std::int64_t seen = 0;
    std::pair<std::int32_t, std::int32_t> latest{0, 0};
    store.nonzeros().forEach([&](std::int32_t column, std::int32_t row, double value) {
        check(column >= 1 && column <= store.columnCount(), "a nonzero has a column of the model");
        check(row >= 1 && row <= store.rowCount(), "a nonzero has a row of the model");
        check(latest < std::pair{row, column}, "nonzeros stand row by row, columns ascending");
        check(value != 0.0, "no nonzero is zero");
        check(areSame(store.nonzeroAt(column, row), value), "a nonzero is found at its place");
        latest = {row, column};
        ++seen;
    });
    check(seen == store.nonzeros().size(), "the nonzeros are counted");
}

void checkSame(const ModelStore& left, const ModelStore& right) {
    check(left.columnCount() == right.columnCount() && left.rowCount() == right.rowCount(), "same counts");
    check(areSame(left.infinity(), right.infinity()), "same infinity");
    for (std::int32_t position = 0; position < left.columnCount(); ++position) {
        const ColumnRecord& one = left.column(position);
        const ColumnRecord& other = right.column(position);
        check(one.name == other.name && one.type == other.type && areSame(one.cost, other.cost) &&
                  areSame(one.lowerBound, other.lowerBound) && areSame(one.upperBound, other.upperBound),
              "same columns");
    }
    for (std::int32_t position = 0; position < left.rowCount(); ++position) {
        const RowRecord& one = left.row(position);
        const RowRecord& other = right.row(position);
        check(one.name == other.name && areSame(one.dual, other.dual) && areSame(one.lowerBound, other.lowerBound) &&
                  areSame(one.upperBound, other.upperBound),
              "same rows");
    }
    check(left.nonzeros().size() == right.nonzeros().size(), "same number of nonzeros");
    left.nonzeros().forEach([&](std::int32_t column, std::int32_t row, double value) {
        check(areSame(right.nonzeroAt(column, row), value), "same nonzeros");
    });
}

}  // namespace

void checkModelFile(const FormatRules& rules, const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    ReadModel model;
    const Outcome outcome = readModelText(text, rules.format, model);
    check(model.clearings == 1, "a reader empties the model once");
    checkOutcome(rules, outcome, text);
    checkRecords(rules, model.modelStore);
    checkNonzeros(model.modelStore);

    // A lone carriage return is a character like others, so only texts without any can change their line ends.
    if (text.find('\r') != std::string::npos) return;
    ReadModel other;
    const Outcome otherOutcome = readModelText(withReturns(text), rules.format, other);
    check(outcome.status() == otherOutcome.status() && outcome.description() == otherOutcome.description(),
          "line ends change no message");
    check(model.name == other.name && model.parameters == other.parameters, "line ends change no assignment");
    checkSame(model.modelStore, other.modelStore);
}

}  // namespace tarq::fuzzing
