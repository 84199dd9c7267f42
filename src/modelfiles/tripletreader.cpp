#include "modelfiles/tripletreader.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "frame/result.h"
#include "model/nonzeroloader.h"
#include "modelfiles/complaint.h"
#include "modelfiles/tripletscanner.h"

namespace tarq {
namespace {

// Lines of a column and of a row can't be shorter: what a file claims beyond that isn't made room for.
constexpr std::size_t shortestColumnLine = 8;
constexpr std::size_t shortestRowLine = 4;

// A line without a blank behind its last number borrows so many characters for the name.
constexpr std::size_t borrowedForColumn = 5;
constexpr std::size_t borrowedForRow = 3;

class TripletReader {
public:
    TripletReader(std::string text, ModelFileTarget& model) : scanner_(std::move(text)), store_(model.store()) {}

    std::optional<ParseFailure> read() {
        const Complaint complaint = readSections();
        // A failure leaves what stands before it in the model.
        store_.loadNonzeros(nonzeros_);
        return complaint.at(scanner_);
    }

private:
    Complaint readSections() {
        TARQ_TRY(readSizes());
        TARQ_TRY(readColumns());
        TARQ_TRY(readRows());
        return readNonzeros();
    }

    Complaint readSizes() {
        // A text without data fails here too: at its end there is no token.
        const bool found = scanner_.nextDataLine();
        const std::size_t count = scanner_.countTokens();
        if (!found || count < 4 || count > 5) return "Incorrect number of values in Section 2.";
        if (!scanner_.readInteger(rows_) || rows_ < 1) return "Bad number of rows in Section 2.";
        if (!scanner_.readInteger(columns_) || columns_ < 1) return "Bad number of cols in Section 2.";
        if (count == 5) {
            scanner_.skipToken();
            scanner_.skipToken();
            double infinity = 0.0;
            if (!scanner_.readReal(infinity) || infinity < 0.0) return "Bad value for xinf in Section 2.";
            store_.setInfinity(infinity);
        }
        store_.reserveColumns(plausible(columns_, shortestColumnLine));
        store_.reserveRows(plausible(rows_, shortestRowLine));
        return {};
    }

    [[nodiscard]] std::int32_t plausible(std::int32_t claimed, std::size_t shortestLine) const {
        return std::min(claimed, static_cast<std::int32_t>(scanner_.textLength() / shortestLine));
    }

    Complaint readColumns() {
        for (; store_.columnCount() < columns_ && scanner_.nextDataLine();) {
            store_.prefetchColumn(scanner_.nameAhead());
            TARQ_TRY(readColumn());
        }
        if (store_.columnCount() == columns_) return {};
        return "Number of cols found in section 3 does not fit value from section 2.";
    }

    Complaint readColumn() {
        ColumnRecord column;
        std::int32_t type = 0;
        std::string_view name;
        if (!scanner_.readReal(column.lowerBound)) return "Can't read LB in Section 3.";
        if (!scanner_.readReal(column.upperBound)) return "Can't read UB in Section 3.";
        if (!scanner_.readReal(column.cost)) return "Can't read cost in Section 3.";
        if (!scanner_.readInteger(type)) return "Can't read type in Section 3.";
        if (!scanner_.readRestOfLine(borrowedForColumn, name)) return "Can't read col name in Section 3.";
        if (column.lowerBound > column.upperBound) return "LB > UB in Section 3.";
        const bool isBinary = column.lowerBound == 0.0 && column.upperBound == 1.0;
        if (type != 0) column.type = isBinary ? TARQColType::Binary : TARQColType::Integer;
        column.lowerBound = store_.clampToInfinity(column.lowerBound);
        column.upperBound = store_.clampToInfinity(column.upperBound);
        column.name = name;
        if (store_.addColumnRecord(std::move(column)).isOk()) return {};
        return duplicate("col", name);
    }

    Complaint readRows() {
        for (; store_.rowCount() < rows_ && scanner_.nextDataLine();) {
            store_.prefetchRow(scanner_.nameAhead());
            TARQ_TRY(readRow());
        }
        if (store_.rowCount() == rows_) return {};
        return "Number of rows found in Section 4 does not fit value from Section 2.";
    }

    Complaint readRow() {
        double first = 0.0;
        double second = 0.0;
        std::string_view name;
        if (!scanner_.readReal(first)) return "Can't read LB in Section 4.";
        if (!scanner_.readReal(second)) return "Can't read UB in Section 4.";
        if (!scanner_.readRestOfLine(borrowedForRow, name)) return "Can't read row name in Section 4.";
        // The file holds the bounds of the row's slack. Subtracting from 0 makes no minus zero of a zero.
        RowRecord row;
        row.lowerBound = 0.0 - second;
        row.upperBound = 0.0 - first;
        if (row.lowerBound > row.upperBound) return "LB > UB in Section 4.";
        row.lowerBound = store_.clampToInfinity(row.lowerBound);
        row.upperBound = store_.clampToInfinity(row.upperBound);
        row.name = name;
        if (store_.addRowRecord(std::move(row)).isOk()) return {};
        return duplicate("row", name);
    }

    Complaint readNonzeros() {
        while (scanner_.nextDataLine()) {
            std::int32_t row = 0;
            std::int32_t column = 0;
            double value = 0.0;
            if (scanner_.countTokens() != 3) return "Incorrect number of values in Section 5.";
            if (!scanner_.readInteger(row)) return "Can't read row index in Section 5.";
            if (!scanner_.readInteger(column)) return "Can't read col index in Section 5.";
            if (!scanner_.readReal(value)) return "Can't read nz in Section 5.";
            if (row < 1 || row > rows_) return "Bad row index in Section 5.";
            if (column < 1 || column > columns_) return "Bad col index in Section 5.";
            if (value != 0.0) nonzeros_.append(column, row, value);
        }
        return {};
    }

    Complaint duplicate(std::string_view what, std::string_view name) {
        words_ = std::string("Duplicate ").append(what).append(" name '").append(name).append("'.");
        return std::string_view(words_);
    }

    TripletScanner scanner_;
    ModelStore& store_;
    NonzeroLoader nonzeros_;
    std::int32_t rows_ = 0;
    std::int32_t columns_ = 0;
    std::string words_;  ///< of a complaint that names something
};

}  // namespace

std::optional<ParseFailure> readTriplet(std::string text, ModelFileTarget& model) {
    model.clearModel();
    return TripletReader(std::move(text), model).read();
}

}  // namespace tarq
