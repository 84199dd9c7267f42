#include "modelfiles/lindowriter.h"

#include <algorithm>
#include <string_view>

#include "frame/result.h"
#include "modelfiles/fixednametable.h"
#include "modelfiles/modelfilefailures.h"
#include "modelfiles/modeltext.h"
#include "modelfiles/numberforms.h"
#include "modelfiles/termwriter.h"
#include "platform/localtime.h"
#include "platform/outputfile.h"

namespace tarq {
namespace {

constexpr std::string_view signs = "!)+-><= ";

bool isDigit(char character) { return character >= '0' && character <= '9'; }
bool hasSign(std::string_view name) { return name.find_first_of(signs) != std::string_view::npos; }

Outcome refusedColumn(const std::string& name, std::string_view reason) {
    return {status::badColumnName, std::string("Variable name '").append(name).append("'").append(reason)};
}

Outcome checkColumns(const ModelStore& store) {
    for (std::int32_t i = 0; i < store.columnCount(); ++i) {
        if (store.column(i).name.empty()) return unnamedColumns();
    }
    FixedNameTable known;
    known.reserve(static_cast<std::size_t>(store.columnCount()));
    for (std::int32_t i = 0; i < store.columnCount(); ++i) {
        const std::string& name = store.column(i).name;
        if (name.size() > FixedName::longest) return columnNameTooLong(name);
        if (isDigit(name.front())) return refusedColumn(name, " may not start with a digit.");
        if (hasSign(name)) return refusedColumn(name, " contains illegal characters.");
        if (known.insert(FixedName(inCapitals(name)), i) != i) {
            return {status::badColumnName,
                    "Duplicate variable name '" + name + "'. Lindo names are not case sensitive."};
        }
    }
    return {};
}

bool isRanged(const RowRecord& row, double infinity) {
    return row.lowerBound > -infinity && row.upperBound < infinity && row.lowerBound != row.upperBound;
}

Outcome checkRows(const ModelStore& store) {
    for (std::int32_t i = 0; i < store.rowCount(); ++i) {
        const RowRecord& row = store.row(i);
        if (row.name.size() > FixedName::longest) {
            return {status::badRowName, "Row name '" + row.name + "' is longer than 8 characters."};
        }
        if (hasSign(row.name)) return {status::badRowName, "Row name '" + row.name + "' contains illegal characters."};
        if (isRanged(row, store.infinity())) {
            return {status::componentFailure, "Row number " + std::to_string(i + 1) +
                                                  " is ranged. Split into two restrictions for Lindo compatibility."};
        }
    }
    return {};
}

class LindoWriter {
public:
    LindoWriter(const ModelStore& store, OutputFile& file) : store_(store), file_(file), terms_(file) {}

    void write(bool isMaximum) {
        file_.write("! Lindo(c) format file written by TARQ Component at ");
        file_.write(localTimeStamp());
        file_.write('\n');
        writeObjective(isMaximum);
        file_.write("\n\nSUBJECT TO\n");
        for (std::int32_t i = 0; i < store_.rowCount(); ++i) writeRow(i);
        file_.write("END\n\n");
        for (std::int32_t i = 0; i < store_.columnCount(); ++i) writeStatements(store_.column(i));
    }

private:
    void writeObjective(bool isMaximum) {
        terms_.beginObjective(isMaximum);
        for (std::int32_t i = 0; i < store_.columnCount(); ++i) {
            const ColumnRecord& column = store_.column(i);
            if (column.cost != 0.0) terms_.put(column.cost, column.name);
        }
    }

    void writeRow(std::int32_t position) {
        constexpr std::string_view behindName = ")  ";
        const RowRecord& row = store_.row(position);
        file_.write(row.name);
        file_.write(behindName);
        terms_.begin(row.name.size() + behindName.size());
        store_.nonzeros().forEachInRow(position + 1, [&](std::int32_t column, double value) {
            terms_.put(value, store_.column(column - 1).name);
        });
        if (row.lowerBound == row.upperBound) {
            putLine(" = ", row.upperBound);
        } else if (row.lowerBound <= -store_.infinity()) {
            putLine(" <= ", row.upperBound);
        } else {
            putLine(" >= ", row.lowerBound);
        }
    }

    void writeStatements(const ColumnRecord& column) {
        if (column.type == TARQColType::Binary) {
            putStatement("INT ", column.name);
            file_.write('\n');
            return;
        }
        if (column.lowerBound != 0.0) {
            putStatement("SLB ", column.name);
            putLine(" ", column.lowerBound);
        }
        if (column.upperBound < store_.infinity()) {
            putStatement("SUB ", column.name);
            putLine(" ", column.upperBound);
        }
        if (column.type == TARQColType::Integer) {
            putStatement("GIN ", column.name);
            file_.write('\n');
        }
    }

    void putStatement(std::string_view word, std::string_view name) {
        file_.write(word);
        file_.write(name);
    }
    void putLine(std::string_view sign, double value) {
        file_.write(sign);
        char* const end = writePlainDecimal(file_.room(longestNumberForm + 1), value);
        *end = '\n';
        file_.wroteTo(end + 1);
    }

    const ModelStore& store_;
    OutputFile& file_;
    TermWriter terms_;
};

}  // namespace

Outcome writeLindo(const std::string& fileName, const WrittenModel& model) {
    TARQ_TRY(checkColumns(model.store));
    TARQ_TRY(checkRows(model.store));
    OutputFile file(fileName);
    if (!file.isOpen()) return openFailureOfLindo();
    LindoWriter(model.store, file).write(model.isMaximum());
    return file.close() ? Outcome() : fileFailure();
}

}  // namespace tarq
