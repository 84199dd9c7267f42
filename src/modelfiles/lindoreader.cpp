#include "modelfiles/lindoreader.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "frame/numbertext.h"
#include "frame/result.h"
#include "modelfiles/columnfinder.h"
#include "modelfiles/columnstatements.h"
#include "modelfiles/complaint.h"
#include "modelfiles/fixedname.h"
#include "modelfiles/lindoscanner.h"
#include "modelfiles/lindotarget.h"

namespace tarq {
namespace {

/// So many terms tell how many the objective has.
constexpr std::int32_t sampleLength = 1000;
/// No file makes the reader take much memory by what it seems to hold.
constexpr double largestGuess = 1e6;

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
        Complaint complaint = readSums();
        // What stands before a failure stays in the model.
        target_.finish();
        if (complaint.isOk()) complaint = readStatements();
        return complaint.at(scanner_);
    }

private:
    struct Term {
        double coefficient = 1.0;
        FixedName variable;
    };

    Complaint readSums() {
        TARQ_TRY(readDirection());
        TARQ_TRY(readObjective());
        return readRestrictions();
    }

    Complaint readDirection() {
        if (!scanner_.nextToken()) return "Unexpected end of file.";
        const std::string direction = inCapitals(scanner_.token());
        const bool isMaximum = direction == "MAX" || direction == "MAXIMIZE";
        if (!isMaximum && direction != "MIN" && direction != "MINIMIZE") {
            return "Optimization direction (MIN/MAX) expected.";
        }
        model_.setParameter("xminmx", isMaximum ? "max" : "min");
        return scanner_.nextToken() ? Complaint() : "Start of objective function expected.";
    }

    Complaint readObjective() {
        const std::size_t start = scanner_.tokenStart();
        for (std::int32_t count = 0; !scanner_.isSubjectToHere(); ++count) {
            if (count == sampleLength) reserveColumns(start);
            Term term;
            TARQ_TRY(readTerm(count == 0, objectiveMessages, term));
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

    /// Reads a sign where there is one: 1 or -1, or 0 when nothing stands behind it.
    [[nodiscard]] double readSign() {
        if (!scanner_.isSign()) return 1.0;
        const double sign = scanner_.firstCharacter() == '-' ? -1.0 : 1.0;
        return scanner_.nextToken() ? sign : 0.0;
    }

    /// Reads a term up to its variable.
    Complaint readTerm(bool isFirst, const SumMessages& messages, Term& term) {
        if (!isFirst && !scanner_.isSign()) return "+ or - expected.";
        const double sign = readSign();
        if (sign == 0.0) return messages.incomplete;
        if (scanner_.readNumber(term.coefficient) && !scanner_.nextToken()) return "Expecting variable name.";
        term.coefficient *= sign;
        TARQ_TRY(checkName(messages));
        term.variable = scanner_.shortToken();
        return {};
    }

    Complaint checkName(const SumMessages& messages) {
        const std::string_view name = scanner_.token();
        if (name.size() > FixedName::longest) return "Variable names may not be longer than 8 characters.";
        if (name.front() >= '0' && name.front() <= '9') return messages.digitFirst;
        // No other token begins with an operator, and no word has one inside.
        if (isOperator(name.front())) {
            if (messages.isObjective && scanner_.isSign()) return "No constans allowed in objective function.";
            return complain({"Illegal character in variable name '", name, "'."});
        }
        if (!messages.isObjective || !scanner_.isSubjectToHere()) return {};
        if (equalsInUpperCase(scanner_.token(), "ST")) {
            return "Token 'ST' appears after incomplete objective function. Don't use ST as a variable name.";
        }
        return "'SUBJECT TO' appears after incomplete objective function.";
    }

    Complaint readRestrictions() {
        for (;;) {
            if (scanner_.token().empty()) return "Unexpected end of file, 'END' missing.";
            if (equalsInUpperCase(scanner_.token(), "END")) {
                (void)scanner_.nextToken();
                return {};
            }
            TARQ_TRY(readRestriction());
            (void)scanner_.nextToken();
        }
    }

    Complaint readRestriction() {
        if (scanner_.token().size() > FixedName::longest) {
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
            TARQ_TRY(readTerm(isFirst, restrictionMessages, term));
            target_.addToRow(term.variable, term.coefficient);
            if (!scanner_.nextToken()) return restrictionMessages.incomplete;
        }
        return readRightHandSide();
    }

    /// Fetches what the name of the next row will look at.
    void fetchNextRow() const {
        const std::string_view name = scanner_.wordBeforeCloseParen();
        if (name.size() <= FixedName::longest) store_.prefetchRow(FixedName::inCapitals(name.size(), name).text());
    }

    Complaint readRightHandSide() {
        const char relation = scanner_.token().find('<') != std::string_view::npos   ? '<'
                              : scanner_.token().find('>') != std::string_view::npos ? '>'
                                                                                     : '=';
        if (!scanner_.nextToken()) return "RHS of restriction is missing.";
        const double sign = readSign();
        if (sign == 0.0) return "Incomplete RHS.";
        double value = 0.0;
        if (!scanner_.readNumber(value)) return "RHS is no valid number.";
        value = store_.clampToInfinity(sign * value);
        RowRecord& row = store_.row(store_.rowCount() - 1);
        row.lowerBound = relation == '<' ? -store_.infinity() : value;
        row.upperBound = relation == '>' ? store_.infinity() : value;
        return {};
    }

    Complaint readStatements() {
        ColumnStatements statements(store_);
        Complaint complaint;
        while (complaint.isOk() && !scanner_.token().empty()) {
            complaint = readStatement(statements);
            if (complaint.isOk()) (void)scanner_.nextToken();
        }
        statements.finish();
        return complaint;
    }

    Complaint readStatement(ColumnStatements& statements) {
        const std::string_view token = scanner_.token();
        const FixedName keyword = token.size() <= FixedName::longest ? scanner_.shortToken() : FixedName();
        if (keyword == lowerBound || keyword == upperBound) return readBound(keyword, statements);
        for (const auto& [name, statement] : columnKeywords) {
            if (keyword == name) return readTarget(keyword, statement, statements);
        }
        if (keyword == quadratic) return "TARQ does not support quadratic models.";
        if (keyword != title) return "Unknown Lindo Statement.";
        model_.setModelName(std::string(scanner_.titleText()));
        return {};
    }

    Complaint readTarget(FixedName keyword, ColumnStatement statement, ColumnStatements& statements) {
        if (!scanner_.nextToken()) return missing("variable", keyword);
        std::int32_t count = 0;
        if (parseInteger(scanner_.token(), count)) {
            statements.applyToFirst(statement, std::min(count, store_.columnCount()));
            return {};
        }
        const std::int32_t position = findColumn();
        if (position < 0) return unknownVariable();
        statements.apply(statement, position);
        return {};
    }

    Complaint readBound(FixedName keyword, ColumnStatements& statements) {
        if (!scanner_.nextToken()) return missing("variable", keyword);
        const std::int32_t position = findColumn();
        if (position < 0) return unknownVariable();
        if (!scanner_.nextToken()) return missing("value", keyword);
        const double sign = readSign();
        if (sign == 0.0) {
            return complain({"Missing value name after ", keyword.text(), " ", store_.column(position).name, "."});
        }
        double value = 0.0;
        if (!scanner_.readNumber(value)) return complain({"Bad numeric value for ", keyword.text(), "."});
        ColumnRecord& column = statements.column(position);
        (keyword == lowerBound ? column.lowerBound : column.upperBound) = store_.clampToInfinity(sign * value);
        return {};
    }

    /// The position of the column that the token names, below 0 where there is none.
    [[nodiscard]] std::int32_t findColumn() {
        if (scanner_.token().size() <= FixedName::longest) {
            const std::int32_t position = target_.numberedColumn(scanner_.shortToken());
            if (position >= 0) return position;
        }
        const std::string name = inCapitals(scanner_.token());
        return finder_.find(name, [&] { return store_.findColumn(name); });
    }

    Complaint unknownVariable() {
        return complain({"Variable name '", inCapitals(scanner_.token()), "' does not exist."});
    }
    Complaint missing(std::string_view what, FixedName keyword) {
        return complain({"Missing ", what, " name after ", keyword.text(), "."});
    }
    Complaint complain(std::initializer_list<std::string_view> parts) {
        words_.clear();
        for (const std::string_view part : parts) words_ += part;
        return std::string_view(words_);
    }

    LindoScanner scanner_;
    ModelFileTarget& model_;
    ModelStore& store_;
    LindoTarget target_;
    std::string words_;            ///< of a complaint that names something
    ColumnFinder finder_{store_};  ///< of the statements
};

}  // namespace

std::optional<ParseFailure> readLindo(std::string text, ModelFileTarget& model) {
    model.clearModel();
    return LindoReader(std::move(text), model).read();
}

}  // namespace tarq
