#include "modelfiles/lindoreader.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "frame/numbertext.h"
#include "modelfiles/columnfinder.h"
#include "modelfiles/columnstatements.h"
#include "modelfiles/fixedname.h"
#include "modelfiles/freetokenscanner.h"
#include "modelfiles/lindotarget.h"

namespace tarq {
namespace {

constexpr std::size_t longestName = 8;
/// So many terms tell how many the objective has.
constexpr std::int32_t sampleLength = 1000;
/// No file makes the reader take much memory by what it seems to hold.
constexpr double largestGuess = 1e6;

/// A token in capitals, which may be of any length.
std::string inCapitals(std::string_view token) {
    std::string text(token);
    for (char& character : text) character = upperCased(character);
    return text;
}

bool isOperator(char character) {
    return character == '+' || character == '-' || character == '<' || character == '>' || character == '=';
}

/// What a reader of sums says where the objective and a restriction differ.
struct SumMessages {
    std::string_view incomplete;
    std::string_view digitFirst;
    bool isObjective;
};
constexpr SumMessages objectiveMessages{"Incomplete objective function.", "Variable names may not start with a number.",
                                        true};
constexpr SumMessages restrictionMessages{"Incomplete restriction.", "Variable name may not start with a number.",
                                          false};

/// A message; empty where all went well.
using Message = std::string;

Message missing(std::string_view what, FixedName keyword) {
    return std::string("Missing ").append(what).append(" name after ").append(keyword.text()).append(".");
}

struct Keyword {
    FixedName name;
    ColumnStatement statement;
};
constexpr FixedName quadratic{"QCP"};
constexpr FixedName title{"TITLE"};
constexpr FixedName lowerBound{"SLB"};
constexpr FixedName upperBound{"SUB"};
constexpr std::array<Keyword, 3> columnKeywords{{{FixedName("GIN"), ColumnStatement::General},
                                                 {FixedName("INT"), ColumnStatement::Binary},
                                                 {FixedName("FREE"), ColumnStatement::Free}}};

class LindoReader {
public:
    LindoReader(std::string text, ModelFileTarget& model)
        : scanner_(std::move(text)), model_(model), store_(model.store()), target_(model.store()) {}

    std::optional<ParseFailure> read() {
        Message message = readDirection();
        if (message.empty()) message = readObjective();
        if (message.empty()) message = readRestrictions();
        // What stands before a failure stays in the model.
        target_.finish();
        if (message.empty()) message = readStatements();
        if (message.empty()) return std::nullopt;
        return ParseFailure{std::move(message), scanner_.currentLineNumber()};
    }

private:
    struct Term {
        double coefficient = 1.0;
        FixedName variable;
    };

    Message readDirection() {
        if (!scanner_.nextToken()) return "Unexpected end of file.";
        const std::string direction = inCapitals(scanner_.token());
        const bool isMaximum = direction == "MAX" || direction == "MAXIMIZE";
        if (!isMaximum && direction != "MIN" && direction != "MINIMIZE") {
            return "Optimization direction (MIN/MAX) expected.";
        }
        model_.setParameter("xminmx", isMaximum ? "max" : "min");
        return scanner_.nextToken() ? Message() : "Start of objective function expected.";
    }

    Message readObjective() {
        const std::size_t start = scanner_.tokenStart();
        for (std::int32_t count = 0; !scanner_.isSubjectToHere(); ++count) {
            if (count == sampleLength) reserveColumns(start);
            Term term;
            if (!readTerm(count == 0, objectiveMessages, term)) return termFailure_;
            target_.addCost(term.variable, term.coefficient);
            if (!scanner_.nextToken()) return "Unexpected end of file, missing constraints.";
        }
        target_.endObjective();
        (void)scanner_.nextToken();
        return {};
    }

    /// Guesses the columns from the length of the objective, which ends before the first name of a restriction.
    void reserveColumns(std::size_t objectiveStart) {
        const auto read = static_cast<double>(scanner_.tokenStart() - objectiveStart);
        const auto rest = static_cast<double>(scanner_.distanceTo(')'));
        // The first terms may be longer than most. What is reserved in vain is never filled.
        constexpr double margin = 1.05;
        target_.reserveColumns(
            static_cast<std::size_t>(std::min(margin * sampleLength * (1.0 + rest / read), largestGuess)));
    }

    /// Reads a term up to its variable. As terms are many, the message of a failure is left behind instead of handed
    /// back.
    [[nodiscard]] bool readTerm(bool isFirst, const SumMessages& messages, Term& term) {
        double sign = 1.0;
        if (scanner_.isSign()) {
            sign = scanner_.firstCharacter() == '-' ? -1.0 : 1.0;
            if (!scanner_.nextToken()) return fail(messages.incomplete);
        } else if (!isFirst) {
            return fail("+ or - expected.");
        }
        if (scanner_.readNumber(term.coefficient) && !scanner_.nextToken()) return fail("Expecting variable name.");
        term.coefficient *= sign;
        if (!checkName(messages)) return false;
        term.variable = scanner_.shortToken();
        return true;
    }

    [[nodiscard]] bool checkName(const SumMessages& messages) {
        const std::string_view name = scanner_.token();
        if (name.size() > longestName) return fail("Variable names may not be longer than 8 characters.");
        if (name.front() >= '0' && name.front() <= '9') return fail(messages.digitFirst);
        // No other token begins with an operator, and no word has one inside.
        if (isOperator(name.front())) {
            if (messages.isObjective && scanner_.isSign()) return fail("No constans allowed in objective function.");
            return fail(std::string("Illegal character in variable name '").append(name).append("'."));
        }
        if (!messages.isObjective || !scanner_.isSubjectToHere()) return true;
        if (equalsInUpperCase(scanner_.token(), "ST")) {
            return fail("Token 'ST' appears after incomplete objective function. Don't use ST as a variable name.");
        }
        return fail("'SUBJECT TO' appears after incomplete objective function.");
    }

    bool fail(std::string_view message) {
        termFailure_ = message;
        return false;
    }

    Message readRestrictions() {
        for (;;) {
            if (scanner_.token().empty()) return "Unexpected end of file, 'END' missing.";
            if (equalsInUpperCase(scanner_.token(), "END")) {
                (void)scanner_.nextToken();
                return {};
            }
            if (Message message = readRestriction(); !message.empty()) return message;
            (void)scanner_.nextToken();
        }
    }

    Message readRestriction() {
        if (scanner_.token().size() > longestName) {
            return "Name of restriction or variable is longer than 8 characters.";
        }
        RowRecord row;
        const FixedName first = scanner_.shortToken();
        if (scanner_.peekIsCloseParen()) {
            if (store_.findRow(first.text()) >= 0) return "Duplicate row name.";
            if (!scanner_.nextToken()) return "Start of restriction expected.";
            row.name = first.text();
            fetchNextRow();
        }
        (void)store_.addRowRecord(std::move(row));
        for (bool isFirst = true; isFirst || !scanner_.isRelation(); isFirst = false) {
            Term term;
            if (!readTerm(isFirst, restrictionMessages, term)) return termFailure_;
            target_.addToRow(term.variable, term.coefficient);
            if (!scanner_.nextToken()) return Message(restrictionMessages.incomplete);
        }
        return readRightHandSide();
    }

    /// Fetches what the name of the next row will look at.
    void fetchNextRow() const {
        const std::string_view name = scanner_.wordBeforeCloseParen();
        if (name.size() <= longestName) store_.prefetchRow(FixedName::inCapitals(name.size(), name).text());
    }

    Message readRightHandSide() {
        const char relation = scanner_.token().find('<') != std::string_view::npos   ? '<'
                              : scanner_.token().find('>') != std::string_view::npos ? '>'
                                                                                     : '=';
        if (!scanner_.nextToken()) return "RHS of restriction is missing.";
        double sign = 1.0;
        if (scanner_.isSign()) {
            sign = scanner_.firstCharacter() == '-' ? -1.0 : 1.0;
            if (!scanner_.nextToken()) return "Incomplete RHS.";
        }
        double value = 0.0;
        if (!scanner_.readNumber(value)) return "RHS is no valid number.";
        value = store_.clampToInfinity(sign * value);
        RowRecord& row = store_.row(store_.rowCount() - 1);
        row.lowerBound = relation == '<' ? -store_.infinity() : value;
        row.upperBound = relation == '>' ? store_.infinity() : value;
        return {};
    }

    Message readStatements() {
        ColumnStatements statements(store_);
        Message message;
        while (message.empty() && !scanner_.token().empty()) {
            message = readStatement(statements);
            if (message.empty()) (void)scanner_.nextToken();
        }
        statements.finish();
        return message;
    }

    Message readStatement(ColumnStatements& statements) {
        const std::string_view token = scanner_.token();
        const FixedName keyword = token.size() <= longestName ? scanner_.shortToken() : FixedName();
        if (keyword == lowerBound || keyword == upperBound) return readBound(keyword, statements);
        for (const auto& [name, statement] : columnKeywords) {
            if (keyword == name) return readTarget(keyword, statement, statements);
        }
        if (keyword == quadratic) return "TARQ does not support quadratic models.";
        if (keyword != title) return "Unknown Lindo Statement.";
        model_.setModelName(std::string(scanner_.titleText()));
        return {};
    }

    Message readTarget(FixedName keyword, ColumnStatement statement, ColumnStatements& statements) {
        if (!scanner_.nextToken()) return missing("variable", keyword);
        std::int32_t count = 0;
        if (parseInteger(scanner_.token(), count)) {
            statements.applyToFirst(statement, std::min(count, store_.columnCount()));
            return {};
        }
        std::int32_t position = 0;
        Message message = findColumn(position);
        if (message.empty()) statements.apply(statement, position);
        return message;
    }

    Message readBound(FixedName keyword, ColumnStatements& statements) {
        if (!scanner_.nextToken()) return missing("variable", keyword);
        std::int32_t position = 0;
        if (Message message = findColumn(position); !message.empty()) return message;
        if (!scanner_.nextToken()) return missing("value", keyword);
        double sign = 1.0;
        if (scanner_.isSign()) {
            sign = scanner_.firstCharacter() == '-' ? -1.0 : 1.0;
            if (!scanner_.nextToken()) {
                const std::string both = std::string(keyword.text()).append(" ").append(store_.column(position).name);
                return std::string("Missing value name after ").append(both).append(".");
            }
        }
        double value = 0.0;
        if (!scanner_.readNumber(value)) {
            return std::string("Bad numeric value for ").append(keyword.text()).append(".");
        }
        ColumnRecord& column = statements.column(position);
        (keyword == lowerBound ? column.lowerBound : column.upperBound) = store_.clampToInfinity(sign * value);
        return {};
    }

    Message findColumn(std::int32_t& position) {
        if (scanner_.token().size() <= longestName) {
            position = target_.numberedColumn(scanner_.shortToken());
            if (position >= 0) return {};
        }
        const std::string name = inCapitals(scanner_.token());
        position = finder_.find(name, [&] { return store_.findColumn(name); });
        return position >= 0 ? Message() : "Variable name '" + name + "' does not exist.";
    }

    FreeTokenScanner scanner_;
    ModelFileTarget& model_;
    ModelStore& store_;
    LindoTarget target_;
    Message termFailure_;
    ColumnFinder finder_{store_};  ///< of the statements
};

}  // namespace

std::optional<ParseFailure> readLindo(std::string text, ModelFileTarget& model) {
    model.clearModel();
    return LindoReader(std::move(text), model).read();
}

}  // namespace tarq
