#include "modelfiles/mpswriter.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include "frame/result.h"
#include "modelfiles/columnorder.h"
#include "modelfiles/fixedfields.h"
#include "modelfiles/modelfilefailures.h"
#include "modelfiles/numberforms.h"
#include "platform/localtime.h"
#include "platform/outputfile.h"

namespace tarq {
namespace {

Outcome checkNames(const ModelStore& store) {
    for (std::int32_t i = 0; i < store.columnCount(); ++i) {
        if (store.column(i).name.empty()) return unnamedColumns();
    }
    for (std::int32_t i = 0; i < store.columnCount(); ++i) {
        if (store.column(i).name.size() > FixedName::longest) return columnNameTooLong(store.column(i).name);
    }
    for (std::int32_t i = 0; i < store.rowCount(); ++i) {
        if (store.row(i).name.empty()) return {status::badRowName, "One or more rows have no name."};
    }
    for (std::int32_t i = 0; i < store.rowCount(); ++i) {
        const std::string& name = store.row(i).name;
        if (name.size() > FixedName::longest) {
            return {status::badRowName, "Row name " + name + " is longer than 8 characters."};
        }
    }
    return {};
}

/// At most `length` bytes, and no part of a character.
std::string_view firstBytes(std::string_view text, std::size_t length) {
    if (text.size() <= length) return text;
    const auto continues = [&](std::size_t at) { return (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U; };
    while (length > 0 && continues(length)) --length;
    return text.substr(0, length);
}

/// One line, put together by columns and padded with blanks in between.
class MpsLine {
public:
    void put(std::size_t field, std::string_view text) { putAt(fixedFieldPlaces[field].firstColumn, text); }
    /// Right-aligned; a longer number runs to the left.
    void putNumber(std::size_t field, double value) {
        std::array<char, longestNumberForm> digits;
        const auto length = static_cast<std::size_t>(writeFixedFieldNumber(digits.data(), value) - digits.data());
        const FixedFieldPlace place = fixedFieldPlaces[field];
        putAt(place.firstColumn + place.width - length, {digits.data(), length});
    }
    void putAt(std::size_t column, std::string_view text) {
        const std::size_t start = column - 1;
        if (start + text.size() > text_.size()) text_.resize(start + text.size(), ' ');
        if (!text.empty()) std::memcpy(text_.data() + start, text.data(), text.size());
    }
    [[nodiscard]] bool empty() const { return text_.empty(); }
    void writeTo(OutputFile& file) {
        text_ += '\n';
        file.write(text_);
        text_.clear();
    }

private:
    std::string text_;
};

class MpsWriter {
public:
    MpsWriter(const WrittenModel& model, const ColumnOrder& nonzeros, OutputFile& file)
        : store_(model.store),
          model_(model),
          nonzeros_(nonzeros),
          file_(file),
          objective_(parameter("xobj", "OBJ-FUNC")) {}

    void write() {
        writeHead();
        writeRows();
        writeColumns();
        writeRightHandSides();
        if (hasRanges_) writeRanges();
        writeBounds();
        file_.write("ENDATA\n");
    }

private:
    enum class BoundForm { Equal, AtMost, AtLeast, Ranged, Free };

    [[nodiscard]] std::string_view parameter(std::string_view name, std::string_view ifEmpty) const {
        const std::string_view text = model_.parameters.stringValue(parameterIndex(name));
        return text.empty() ? ifEmpty : text;
    }

    [[nodiscard]] bool isFiniteBelow(double bound) const { return bound > -store_.infinity(); }
    [[nodiscard]] bool isFiniteAbove(double bound) const { return bound < store_.infinity(); }

    [[nodiscard]] BoundForm formOf(const RowRecord& row) const {
        if (row.lowerBound == row.upperBound) return BoundForm::Equal;
        const bool below = isFiniteBelow(row.lowerBound);
        const bool above = isFiniteAbove(row.upperBound);
        if (below && above) return BoundForm::Ranged;
        if (!below && !above) return BoundForm::Free;
        return above ? BoundForm::AtMost : BoundForm::AtLeast;
    }

    void writeHead() {
        file_.write("* TARQ MPS file written by TARQ Component at ");
        file_.write(localTimeStamp());
        file_.write("\n* Direction: ");
        file_.write(model_.direction());
        file_.write('\n');
        line_.putAt(1, "NAME");
        const std::string_view name = model_.name.empty() ? std::string_view("NONAME") : model_.name;
        line_.putAt(modelNamePlace.firstColumn, firstBytes(name, modelNamePlace.width));
        line_.writeTo(file_);
    }

    void writeRows() {
        file_.write("ROWS\n");
        line_.putAt(2, "N");
        line_.put(2, objective_);
        line_.writeTo(file_);
        for (std::int32_t i = 0; i < store_.rowCount(); ++i) {
            const RowRecord& row = store_.row(i);
            // A free row has no type of its own that would read back as one.
            constexpr std::string_view types = "ELGLG";
            const BoundForm form = formOf(row);
            hasRanges_ = hasRanges_ || form == BoundForm::Ranged;
            line_.putAt(2, types.substr(static_cast<std::size_t>(form), 1));
            line_.put(2, row.name);
            line_.writeTo(file_);
        }
    }

    /// Adds an entry to the line, and writes the line when it is its second.
    void putPair(std::string_view leader, std::string_view name, double value) {
        const bool isSecond = !line_.empty();
        if (!isSecond) line_.put(2, leader);
        line_.put(isSecond ? 5 : 3, name);
        line_.putNumber(isSecond ? 6 : 4, value);
        if (isSecond) line_.writeTo(file_);
    }
    void endPairs() {
        if (!line_.empty()) line_.writeTo(file_);
    }

    void writeMarker(bool opens) {
        file_.write(opens ? "    INTVARS   'MARKER'                 'INTORG'\n"
                          : "    INTVARS   'MARKER'                 'INTEND'\n");
    }

    void writeColumns() {
        file_.write("COLUMNS\n");
        bool inBlock = false;
        for (std::int32_t i = 0; i < store_.columnCount(); ++i) {
            const ColumnRecord& column = store_.column(i);
            const bool isInteger = column.type != TARQColType::Continuous;
            if (isInteger != inBlock) writeMarker(isInteger);
            inBlock = isInteger;
            if (column.cost != 0.0) putPair(column.name, objective_, column.cost);
            const auto rows = nonzeros_.rowNumbers(i);
            const auto values = nonzeros_.values(i);
            for (std::size_t k = 0; k < rows.size(); ++k) putPair(column.name, store_.row(rows[k] - 1).name, values[k]);
            endPairs();
        }
        if (inBlock) writeMarker(false);
    }

    void writeRightHandSides() {
        file_.write("RHS\n");
        const std::string_view set = parameter("xrhs", "RHS");
        for (std::int32_t i = 0; i < store_.rowCount(); ++i) {
            const RowRecord& row = store_.row(i);
            const BoundForm form = formOf(row);
            const bool isLower = form == BoundForm::AtLeast || form == BoundForm::Free;
            const double value = isLower ? row.lowerBound : row.upperBound;
            const bool always = form == BoundForm::Ranged || form == BoundForm::Free;
            if (always || value != 0.0) putPair(set, row.name, value);
        }
        endPairs();
    }

    void writeRanges() {
        file_.write("RANGES\n");
        const std::string_view set = parameter("xrange", "RANGE");
        for (std::int32_t i = 0; i < store_.rowCount(); ++i) {
            const RowRecord& row = store_.row(i);
            if (formOf(row) == BoundForm::Ranged) putPair(set, row.name, row.upperBound - row.lowerBound);
        }
        endPairs();
    }

    void writeBounds() {
        file_.write("BOUNDS\n");
        const std::string_view set = parameter("xbound", "BND");
        for (std::int32_t i = 0; i < store_.columnCount(); ++i) writeBoundsOf(store_.column(i), set);
    }

    void startBound(std::string_view type, std::string_view set, const ColumnRecord& column) {
        line_.put(1, type);
        line_.put(2, set);
        line_.put(3, column.name);
    }
    void putBound(std::string_view type, std::string_view set, const ColumnRecord& column) {
        startBound(type, set, column);
        line_.writeTo(file_);
    }
    void putBound(std::string_view type, std::string_view set, const ColumnRecord& column, double value) {
        startBound(type, set, column);
        line_.putNumber(4, value);
        line_.writeTo(file_);
    }

    void writeBoundsOf(const ColumnRecord& column, std::string_view set) {
        // A bound that is not a number is not without a bound.
        const bool noLower = column.lowerBound <= -store_.infinity();
        const bool noUpper = column.upperBound >= store_.infinity();
        const bool isInteger = column.type == TARQColType::Integer;
        if (column.type == TARQColType::Binary) return putBound("BV", set, column);
        if (noLower && noUpper) return putBound("FR", set, column);
        if (column.lowerBound == column.upperBound) return putBound("FX", set, column, column.lowerBound);
        if (noLower) {
            putBound("MI", set, column);
        } else if (column.lowerBound != 0.0) {
            putBound(isInteger ? "LI" : "LO", set, column, column.lowerBound);
        }
        // Without one, a reader would give an integer column the upper bound 1.
        if (isFiniteAbove(column.upperBound) || (noUpper && isInteger)) {
            putBound(isInteger ? "UI" : "UP", set, column, column.upperBound);
        }
    }

    const ModelStore& store_;
    const WrittenModel& model_;
    const ColumnOrder& nonzeros_;
    OutputFile& file_;
    std::string_view objective_;
    MpsLine line_;
    bool hasRanges_ = false;
};

}  // namespace

Outcome writeMps(const std::string& fileName, const WrittenModel& model) {
    TARQ_TRY(checkNames(model.store));
    // Before the file is touched, as memory may run out here.
    const ColumnOrder nonzeros(model.store);
    OutputFile file(fileName);
    if (!file.isOpen()) return fileFailure();
    MpsWriter(model, nonzeros, file).write();
    return file.close() ? Outcome() : fileFailure();
}

}  // namespace tarq
