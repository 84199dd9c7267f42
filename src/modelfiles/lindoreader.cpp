#include "modelfiles/lindoreader.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/numbertext.h"
#include "model/nonzeroloader.h"
#include "modelfiles/columnfinder.h"
#include "modelfiles/columnstatements.h"
#include "modelfiles/fixednametable.h"
#include "modelfiles/freetokenscanner.h"
#include "platform/largepages.h"

namespace tarq {
namespace {

constexpr std::size_t longestName = 8;
/// So many columns tell how many the objective has.
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
bool isSign(std::string_view token) { return token == "+" || token == "-"; }

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

class LindoReader {
public:
    LindoReader(std::string text, ModelFileTarget& model)
        : scanner_(std::move(text)), model_(model), store_(model.store()) {}

    std::optional<ParseFailure> read() {
        Message message = readDirection();
        if (message.empty()) message = readObjective();
        if (message.empty()) message = readRestrictions();
        // What stands before a failure stays in the model.
        storeTerms();
        storeRow();
        store_.loadNonzeros(nonzeros_);
        if (message.empty()) message = readStatements();
        if (message.empty()) return std::nullopt;
        return ParseFailure{std::move(message), scanner_.currentLineNumber()};
    }

private:
    struct Term {
        double coefficient = 1.0;
        FixedName variable;
    };
    struct RowEntry {
        std::int32_t column;
        double value;
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
        objectiveStart_ = scanner_.tokenStart();
        for (bool isFirst = true; !scanner_.isSubjectToHere(); isFirst = false) {
            Term term;
            if (Message message = readTerm(isFirst, objectiveMessages, term); !message.empty()) return message;
            takeTerm(term);
            if (!scanner_.nextToken()) return "Unexpected end of file, missing constraints.";
        }
        storeTerms();
        inObjective_ = false;
        placeInRow_.resize(static_cast<std::size_t>(store_.columnCount()));
        (void)scanner_.nextToken();
        return {};
    }

    /// Reads a term up to its variable.
    Message readTerm(bool isFirst, const SumMessages& messages, Term& term) {
        double sign = 1.0;
        if (isSign(scanner_.token())) {
            sign = scanner_.token() == "-" ? -1.0 : 1.0;
            if (!scanner_.nextToken()) return Message(messages.incomplete);
        } else if (!isFirst) {
            return "+ or - expected.";
        }
        if (parseReal(scanner_.token(), term.coefficient) && !scanner_.nextToken()) return "Expecting variable name.";
        term.coefficient *= sign;
        if (Message message = checkName(messages); !message.empty()) return message;
        term.variable = variableHere();
        return {};
    }

    Message checkName(const SumMessages& messages) {
        const std::string_view name = scanner_.token();
        if (name.size() > longestName) return "Variable names may not be longer than 8 characters.";
        if (name.front() >= '0' && name.front() <= '9') return Message(messages.digitFirst);
        // No other token begins with an operator, and no word has one inside.
        if (isOperator(name.front())) {
            if (messages.isObjective && isSign(name)) return "No constans allowed in objective function.";
            return std::string("Illegal character in variable name '").append(name).append("'.");
        }
        if (!messages.isObjective || !scanner_.isSubjectToHere()) return {};
        if (equalsInUpperCase(scanner_.token(), "ST")) {
            return "Token 'ST' appears after incomplete objective function. Don't use ST as a variable name.";
        }
        return "'SUBJECT TO' appears after incomplete objective function.";
    }

    [[nodiscard]] FixedName variableHere() const {
        const std::string_view token = scanner_.token();
        std::array<char, longestName> capitals{};
        token.copy(capitals.data(), token.size());
        for (char& character : capitals) character = upperCased(character);
        return FixedName(std::string_view(capitals.data(), token.size()));
    }

    /// Keeps a term until its column is on its way from memory.
    void takeTerm(const Term& term) {
        if (termCount_ == terms_.size()) storeTerms();
        columns_.prefetch(term.variable);
        if (inObjective_) store_.prefetchColumn(term.variable.text());
        terms_[termCount_++] = term;
    }

    /// Adds the terms kept to the objective or to the restriction. New variables become columns, in their order.
    void storeTerms() {
        const std::size_t count = std::exchange(termCount_, 0);
        std::array<std::int32_t, termsKept> positions;
        for (std::size_t i = 0; i < count; ++i) {
            positions[i] = findOrAddColumn(terms_[i].variable);
            if (!inObjective_) prefetchPlace(positions[i]);
        }
        for (std::size_t i = 0; i < count; ++i) {
            if (inObjective_) {
                store_.column(positions[i]).cost += terms_[i].coefficient;
            } else {
                addToRow(positions[i], terms_[i].coefficient);
            }
        }
    }

    std::int32_t findOrAddColumn(FixedName name) {
        const std::int32_t next = store_.columnCount();
        const std::int32_t position = columns_.insert(name, next);
        if (position != next) return position;
        ColumnRecord column;
        column.name = name.text();
        column.upperBound = store_.infinity();
        (void)store_.addColumnRecord(std::move(column));
        if (inObjective_ && next == sampleLength) reserveColumns();
        return position;
    }

    /// Guesses the columns from the length of the objective, which ends before the first name of a restriction.
    void reserveColumns() {
        const auto read = static_cast<double>(scanner_.tokenStart() - objectiveStart_);
        const auto rest = static_cast<double>(scanner_.distanceTo(')'));
        const double count = std::min(sampleLength * (1.0 + rest / read), largestGuess);
        columns_.reserve(static_cast<std::size_t>(count));
        // The first columns may be longer than most. What is reserved in vain is never filled.
        constexpr double margin = 1.05;
        store_.reserveColumns(static_cast<std::int32_t>(margin * count));
    }

    Message readRestrictions() {
        for (;;) {
            if (scanner_.token().empty()) return "Unexpected end of file, 'END' missing.";
            if (equalsInUpperCase(scanner_.token(), "END")) {
                (void)scanner_.nextToken();
                return {};
            }
            if (Message message = readRestriction(); !message.empty()) return message;
            storeTerms();
            storeRow();
            (void)scanner_.nextToken();
        }
    }

    Message readRestriction() {
        if (scanner_.token().size() > longestName) {
            return "Name of restriction or variable is longer than 8 characters.";
        }
        RowRecord row;
        const std::string first = inCapitals(scanner_.token());
        if (scanner_.peekIsCloseParen()) {
            if (store_.findRow(first) >= 0) return "Duplicate row name.";
            if (!scanner_.nextToken()) return "Start of restriction expected.";
            row.name = first;
        }
        (void)store_.addRowRecord(std::move(row));
        for (bool isFirst = true; isFirst || !scanner_.isRelation(); isFirst = false) {
            Term term;
            if (Message message = readTerm(isFirst, restrictionMessages, term); !message.empty()) return message;
            takeTerm(term);
            if (!scanner_.nextToken()) return Message(restrictionMessages.incomplete);
        }
        return readRightHandSide();
    }

    void prefetchPlace([[maybe_unused]] std::int32_t position) const {
#if defined(__GNUC__)
        const auto index = static_cast<std::size_t>(position);
        if (index < placeInRow_.size()) __builtin_prefetch(&placeInRow_[index]);
#endif
    }

    void addToRow(std::int32_t position, double coefficient) {
        const auto index = static_cast<std::size_t>(position);
        if (index >= placeInRow_.size()) placeInRow_.resize(std::max(index + 1, 2 * placeInRow_.size()));
        std::uint32_t& place = placeInRow_[index];
        // Places left by earlier rows don't hold this column.
        if (place < row_.size() && row_[place].column == position + 1) {
            row_[place].value += coefficient;
            return;
        }
        place = static_cast<std::uint32_t>(row_.size());
        row_.push_back({position + 1, coefficient});
    }

    void storeRow() {
        for (const RowEntry& entry : row_) {
            if (entry.value != 0.0) nonzeros_.append(entry.column, store_.rowCount(), entry.value);
        }
        row_.clear();
    }

    Message readRightHandSide() {
        const char relation = scanner_.token().find('<') != std::string_view::npos   ? '<'
                              : scanner_.token().find('>') != std::string_view::npos ? '>'
                                                                                     : '=';
        if (!scanner_.nextToken()) return "RHS of restriction is missing.";
        double sign = 1.0;
        if (isSign(scanner_.token())) {
            sign = scanner_.token() == "-" ? -1.0 : 1.0;
            if (!scanner_.nextToken()) return "Incomplete RHS.";
        }
        double value = 0.0;
        if (!parseReal(scanner_.token(), value)) return "RHS is no valid number.";
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
        const std::string word = inCapitals(scanner_.token());
        if (word == "QCP") return "TARQ does not support quadratic models.";
        if (word == "TITLE") {
            model_.setModelName(std::string(scanner_.titleText()));
            return {};
        }
        if (word == "SLB" || word == "SUB") return readBound(word, statements);
        constexpr std::pair<std::string_view, ColumnStatement> kinds[] = {
            {"FREE", ColumnStatement::Free}, {"GIN", ColumnStatement::General}, {"INT", ColumnStatement::Binary}};
        for (const auto& [name, statement] : kinds) {
            if (word == name) return readTarget(word, statement, statements);
        }
        return "Unknown Lindo Statement.";
    }

    Message readTarget(const std::string& word, ColumnStatement statement, ColumnStatements& statements) {
        if (!scanner_.nextToken()) return "Missing variable name after " + word + ".";
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

    Message readBound(const std::string& word, ColumnStatements& statements) {
        if (!scanner_.nextToken()) return "Missing variable name after " + word + ".";
        std::int32_t position = 0;
        if (Message message = findColumn(position); !message.empty()) return message;
        const std::string& name = store_.column(position).name;
        if (!scanner_.nextToken()) return "Missing value name after " + word + ".";
        double sign = 1.0;
        if (isSign(scanner_.token())) {
            sign = scanner_.token() == "-" ? -1.0 : 1.0;
            if (!scanner_.nextToken()) return "Missing value name after " + word + " " + name + ".";
        }
        double value = 0.0;
        if (!parseReal(scanner_.token(), value)) return "Bad numeric value for " + word + ".";
        ColumnRecord& column = statements.column(position);
        (word == "SLB" ? column.lowerBound : column.upperBound) = store_.clampToInfinity(sign * value);
        return {};
    }

    Message findColumn(std::int32_t& position) {
        const std::string name = inCapitals(scanner_.token());
        position = finder_.find(
            name, [&] { return name.size() > longestName ? FixedNameTable::absent : columns_.find(variableHere()); });
        return position >= 0 ? Message() : "Variable name '" + name + "' does not exist.";
    }

    FreeTokenScanner scanner_;
    ModelFileTarget& model_;
    ModelStore& store_;
    NonzeroLoader nonzeros_;
    FixedNameTable columns_;  ///< exactly the columns of the store, which every term asks for
    bool inObjective_ = true;
    std::size_t objectiveStart_ = 0;
    static constexpr std::size_t termsKept = 32;
    std::array<Term, termsKept> terms_{};
    std::size_t termCount_ = 0;
    ColumnFinder finder_{store_};  ///< of the statements
    std::vector<RowEntry> row_;    ///< of the restriction that is read
    std::vector<std::uint32_t, LargePageAllocator<std::uint32_t>>
        placeInRow_;  ///< by column, where it stood in the latest row that had it
};

}  // namespace

std::optional<ParseFailure> readLindo(std::string text, ModelFileTarget& model) {
    model.clearModel();
    return LindoReader(std::move(text), model).read();
}

}  // namespace tarq
