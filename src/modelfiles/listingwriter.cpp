// The listing of a model for people, which looks like a Lindo file and takes every model.
#include <fmt/format.h>

#include <string_view>

#include "frame/text.h"
#include "modelfiles/modelfilefailures.h"
#include "modelfiles/modelwriter.h"
#include "modelfiles/numberforms.h"
#include "modelfiles/termwriter.h"
#include "platform/localtime.h"
#include "platform/outputfile.h"

namespace tarq {
namespace {

class ListingWriter {
public:
    ListingWriter(const WrittenModel& model, const ModelCutout& cutout, OutputFile& file)
        : store_(model.store), cutout_(cutout), isMaximum_(model.isMaximum()), file_(file), terms_(file) {
        if (cutout.firstColumn > 1) columnsBefore_ = fmt::format("[1..{}]... ", cutout.firstColumn - 1);
        if (cutout.lastColumn < store_.columnCount()) {
            columnsBehind_ = fmt::format("...[{}..{}]", cutout.lastColumn + 1, store_.columnCount());
        }
    }

    void write() {
        file_.write("! Debug model written by TARQ Component at ");
        file_.write(localTimeStamp());
        file_.write('\n');
        writeCutout();
        writeObjective();
        file_.write("\n\nRESTRICTIONS\n");
        writeHidden(1, cutout_.firstRow - 1, "\n");
        for (std::int32_t number = cutout_.firstRow; number <= cutout_.lastRow; ++number) writeRow(number);
        writeHidden(cutout_.lastRow + 1, store_.rowCount(), "\n");
        file_.write("\nVARIABLE TYPES AND BOUNDS\n");
        writeHidden(1, cutout_.firstColumn - 1, "\n");
        for (std::int32_t number = cutout_.firstColumn; number <= cutout_.lastColumn; ++number) writeColumn(number);
        writeHidden(cutout_.lastColumn + 1, store_.columnCount(), "");
    }

private:
    /// A name, or the number in brackets where there is none. Valid until the next call.
    std::string_view shown(std::string_view name, std::int32_t number) {
        if (!name.empty()) return name;
        numberText_ = fmt::format("[{}]", number);
        return numberText_;
    }

    void writeCutout() {
        const bool isWhole = cutout_.firstRow == 1 && cutout_.lastRow == store_.rowCount() &&
                             cutout_.firstColumn == 1 && cutout_.lastColumn == store_.columnCount();
        if (isWhole) return;
        file_.write(fmt::format("! Model cutout: Rows [{}..{}]  Cols [{}..{}]\n\n", cutout_.firstRow, cutout_.lastRow,
                                cutout_.firstColumn, cutout_.lastColumn));
    }

    void writeHidden(std::int32_t first, std::int32_t last, std::string_view end) {
        if (first <= last) file_.write(fmt::format("[{}..{}]: Hidden{}", first, last, end));
    }

    void putTerm(std::int32_t number, double coefficient) {
        const std::string& name = store_.column(number - 1).name;
        terms_.put(coefficient, shown(name, number), name.empty() ? " " : "");
    }

    void writeObjective() {
        terms_.beginObjective(isMaximum_, columnsBefore_);
        for (std::int32_t number = cutout_.firstColumn; number <= cutout_.lastColumn; ++number) {
            if (const double cost = store_.column(number - 1).cost; cost != 0.0) putTerm(number, cost);
        }
        file_.write(columnsBehind_);
    }

    std::size_t putDecimal(double value) {
        char* const start = file_.room(longestNumberForm);
        char* const end = writePlainDecimal(start, value);
        file_.wroteTo(end);
        return static_cast<std::size_t>(end - start);
    }

    void writeRow(std::int32_t number) {
        constexpr std::string_view behindName = ":  ";
        constexpr std::string_view atMost = " <= ";
        const RowRecord& row = store_.row(number - 1);
        const bool below = row.lowerBound > -store_.infinity();
        const bool above = row.upperBound < store_.infinity();
        const bool isEqual = row.lowerBound == row.upperBound;
        const std::string_view name = shown(row.name, number);
        file_.write(name);
        file_.write(behindName);
        std::size_t length = name.size() + behindName.size();
        if (below && above && !isEqual) {
            length += putDecimal(row.lowerBound) + atMost.size();
            file_.write(atMost);
        }
        file_.write(columnsBefore_);
        terms_.begin(length + columnsBefore_.size());
        store_.nonzeros().forEachInRow(number, [&](std::int32_t column, double value) {
            if (column >= cutout_.firstColumn && column <= cutout_.lastColumn) putTerm(column, value);
        });
        file_.write(columnsBehind_);
        if (isEqual || above || below) {
            file_.write(isEqual ? " = " : above ? atMost : " >= ");
            putDecimal(isEqual || above ? row.upperBound : row.lowerBound);
        }
        file_.write('\n');
    }

    void putBound(double value, bool isFinite, std::string_view infinite) {
        if (isFinite) {
            file_.wroteTo(writeRealToken(file_.room(longestNumberForm), value));
        } else {
            file_.write(infinite);
        }
        file_.write("  ");
    }

    /// AddCol keeps any number as a type; all but 0 count as integer.
    static std::string_view shownType(TARQColType type) {
        if (type == TARQColType::Continuous) return "Con  ";
        return type == TARQColType::Binary ? "Bin  " : "Int  ";
    }

    void writeColumn(std::int32_t number) {
        const ColumnRecord& column = store_.column(number - 1);
        file_.write(shown(column.name, number));
        file_.write(": ");
        file_.write(shownType(column.type));
        putBound(column.lowerBound, column.lowerBound > -store_.infinity(), "-INF");
        putBound(column.upperBound, column.upperBound < store_.infinity(), "INF");
        file_.write('\n');
    }

    const ModelStore& store_;
    const ModelCutout cutout_;
    const bool isMaximum_;
    OutputFile& file_;
    TermWriter terms_;
    std::string columnsBefore_;  ///< the mark for the columns left out
    std::string columnsBehind_;
    std::string numberText_;
};

}  // namespace

Outcome writeModelListing(const std::string& fileName, const WrittenModel& model, const ModelCutout& cutout) {
    OutputFile file(fileName);
    if (!file.isOpen()) return openFailureOfLindo();
    ListingWriter(model, cutout, file).write();
    return file.close() ? Outcome() : fileFailure();
}

}  // namespace tarq
