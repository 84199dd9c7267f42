#include "modelfiles/tripletwriter.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include "modelfiles/modelfilefailures.h"
#include "modelfiles/numberforms.h"
#include "platform/localtime.h"
#include "platform/outputfile.h"

namespace tarq {
namespace {

class TripletWriter {
public:
    TripletWriter(const ModelStore& store, OutputFile& file) : store_(store), file_(file) {}

    void write(std::string_view direction) {
        file_.write("* TARQ triplet file written by TARQ Component at ");
        file_.write(localTimeStamp());
        file_.write("\n* Direction: ");
        file_.write(direction);
        file_.write('\n');
        writeSizes();
        for (std::int32_t i = 0; i < store_.columnCount(); ++i) writeColumn(store_.column(i));
        for (std::int32_t i = 0; i < store_.rowCount(); ++i) writeRow(store_.row(i));
        store_.nonzeros().forEach([&](std::int32_t column, std::int32_t row, double value) {
            char* end = writeIntegerToken(file_.room(3 * longestNumberForm + 1), row);
            end = writeIntegerToken(end, column);
            end = writeRealToken(end, value);
            *end = '\n';
            file_.wroteTo(end + 1);
        });
    }

private:
    /// With a tenth to spare, for readers that make room beforehand.
    static void put(OutputFile& file, std::int64_t count) {
        constexpr double spare = 1.1;
        const double room =
            std::min<double>(spare * static_cast<double>(count), std::numeric_limits<std::int32_t>::max());
        file.wroteTo(writeIntegerToken(file.room(longestNumberForm), static_cast<std::int32_t>(room)));
    }

    void writeSizes() {
        std::int64_t nameLength = 0;
        for (std::int32_t i = 0; i < store_.columnCount(); ++i) nameLength += std::ssize(store_.column(i).name);
        for (std::int32_t i = 0; i < store_.rowCount(); ++i) nameLength += std::ssize(store_.row(i).name);
        char* const end = writeIntegerToken(file_.room(2 * longestNumberForm), store_.rowCount());
        file_.wroteTo(writeIntegerToken(end, store_.columnCount()));
        put(file_, store_.nonzeros().size());
        put(file_, nameLength);
        char* const line = writeRealToken(file_.room(longestNumberForm + 1), store_.infinity());
        *line = '\n';
        file_.wroteTo(line + 1);
    }

    void endLine(std::string_view name) {
        file_.write(name);
        file_.write('\n');
    }

    void writeColumn(const ColumnRecord& column) {
        char* end = writeRealToken(file_.room(4 * longestNumberForm), column.lowerBound);
        end = writeRealToken(end, column.upperBound);
        end = writeRealToken(end, column.cost);
        file_.wroteTo(writeIntegerToken(end, static_cast<std::int32_t>(column.type)));
        endLine(column.name);
    }

    /// The format holds a row as the bounds of its slack.
    void writeRow(const RowRecord& row) {
        char* const end = writeRealToken(file_.room(2 * longestNumberForm), -row.upperBound);
        file_.wroteTo(writeRealToken(end, -row.lowerBound));
        endLine(row.name);
    }

    const ModelStore& store_;
    OutputFile& file_;
};

}  // namespace

Outcome writeTriplet(const std::string& fileName, const WrittenModel& model) {
    OutputFile file(fileName);
    if (!file.isOpen()) return fileFailure();
    TripletWriter(model.store, file).write(model.direction());
    return file.close() ? Outcome() : fileFailure();
}

}  // namespace tarq
