#include "modelfiles/mpsreader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "frame/result.h"
#include "modelfiles/complaint.h"
#include "modelfiles/fixedfields.h"
#include "modelfiles/fixedname.h"
#include "modelfiles/modeltextscanner.h"
#include "modelfiles/mpstarget.h"
#include "tarq/interfaces/mpscomplaints.h"

namespace tarq {
namespace {

struct RowTypeCode {
    std::string_view characters;  ///< columns 2 and 3 in upper case
    MpsRowType type;
};

constexpr std::array<RowTypeCode, 11> rowTypeCodes{{{"E ", MpsRowType::Equal},
                                                    {"EQ", MpsRowType::Equal},
                                                    {" E", MpsRowType::Equal},
                                                    {"L ", MpsRowType::AtMost},
                                                    {"LE", MpsRowType::AtMost},
                                                    {" L", MpsRowType::AtMost},
                                                    {"G ", MpsRowType::AtLeast},
                                                    {"GE", MpsRowType::AtLeast},
                                                    {" G", MpsRowType::AtLeast},
                                                    {"N ", MpsRowType::Free},
                                                    {" N", MpsRowType::Free}}};

/// The fields of the two name and number pairs of a line.
struct PairFields {
    std::size_t name;
    std::size_t number;
};

constexpr PairFields firstPair{3, 4};
constexpr PairFields secondPair{5, 6};

/// What the sections of row values say about their numbers.
struct NumberMessages {
    std::string_view empty;
    std::string_view notNumeric;
};

constexpr NumberMessages coefficientMessages{mpscomplaint::emptyCoefficient, mpscomplaint::coefficientNotNumeric};
constexpr NumberMessages rightHandSideMessages{mpscomplaint::emptyRightHandSide, mpscomplaint::rightHandSideNotNumeric};
constexpr NumberMessages rangeMessages{mpscomplaint::emptyRange, mpscomplaint::rangeNotNumeric};

/// A row name and its number. An empty name with an empty number, where a line has no second pair, is `absent`.
struct Pair {
    FixedName rowName;
    double value = 0.0;
    bool absent = false;
};

/// So many columns tell how many there will be.
constexpr std::int32_t sampleLength = 1000;

class MpsReader {
public:
    MpsReader(std::string text, ModelFileTarget& model)
        : scanner_(std::move(text)), model_(model), target_(model.store()) {}

    std::optional<ParseFailure> read() { return readSections().at(scanner_); }
    void dropText() { scanner_.dropText(); }
    void storeNonzeros() { target_.storeNonzeros(); }
    ReadingNotes readingNotes() const { return target_.readingNotes(); }

private:
    using ApplyToRow = void (MpsTarget::*)(std::int32_t rowPosition, double value);
    struct OptionalSection {
        std::string_view keyword;
        std::string_view expected;
        Complaint (MpsReader::*read)();
    };
    static const std::array<OptionalSection, 3> optionalSections;

    Complaint readSections();
    /// Every section method begins on its keyword's line and ends on the line that isn't its own, or on the failure.
    Complaint readName();
    Complaint readRows();
    Complaint readColumns();
    Complaint readOptionalSections();
    Complaint readRightHandSides() {
        return readRowValues("xrhs", rightHandSideMessages, &MpsTarget::applyRightHandSide);
    }
    Complaint readRanges() { return readRowValues("XRANGE", rangeMessages, &MpsTarget::applyRange); }
    Complaint readBounds();

    Complaint readRow();
    Complaint readColumnLine();
    Complaint readMarker();
    void enterColumn(FixedName name);
    Complaint readColumnPair(FixedName columnName, PairFields fields, Pair& pair);
    Complaint readRowValues(std::string_view vectorParameter, const NumberMessages& messages, ApplyToRow apply);
    Complaint readRowValuePair(PairFields fields, const NumberMessages& messages, ApplyToRow apply, Pair& pair);
    Complaint readPair(PairFields fields, const NumberMessages& messages, Pair& pair) const;
    Complaint readBound();

    void fetchRowsAhead(std::string_view lineAhead) const;
    void fetchColumnAhead(std::string_view lineAhead);
    bool nextLineOfSection() { return scanner_.nextFixedLine() && scanner_.startsWithBlank(); }
    FixedName fixedName(std::size_t field) const { return FixedName(scanner_.rawField(fixedFieldPlaces[field])); }
    bool sectionIs(std::string_view keyword) const { return equalsInUpperCase(scanner_.fixedField(0), keyword); }
    bool isMarkerLine() const { return equalsInUpperCase(scanner_.rawField(fixedFieldPlaces[3]), "'MARKER'"); }

    ModelTextScanner scanner_;
    ModelFileTarget& model_;
    MpsTarget target_;
    FixedName objectiveRowName_;
    bool integerBlock_ = false;
    FixedName columnName_;  ///< of the line before; columns mostly stand together
    std::int32_t columnPosition_ = MpsTarget::absent;
    FixedName columnNameAhead_;
    std::size_t columnsStart_ = 0;
    double boundValue_ = 0.0;  ///< what a bound without a number takes: the last one read
};

constexpr std::array<MpsReader::OptionalSection, 3> MpsReader::optionalSections{
    {{"RHS", "RHS, RANGES, BOUNDS or ENDDATA indicator expected.", &MpsReader::readRightHandSides},
     {"RANGES", "RANGES, BOUNDS or ENDDATA indicator expected.", &MpsReader::readRanges},
     {"BOUNDS", "BOUNDS or ENDDATA indicator expected.", &MpsReader::readBounds}}};

Complaint MpsReader::readSections() {
    if (scanner_.hasLaterLineWith("QSECTION")) {
        return "QSECTION found. Quadratic models are not supported by TARQ.";
    }
    for (const auto section :
         {&MpsReader::readName, &MpsReader::readRows, &MpsReader::readColumns, &MpsReader::readOptionalSections}) {
        TARQ_TRY((this->*section)());
    }
    return sectionIs("ENDATA") ? Complaint() : "ENDDATA indicator expected.";
}

Complaint MpsReader::readName() {
    if (!scanner_.nextFixedLine()) return mpscomplaint::unexpectedEnd;
    if (!sectionIs("NAME")) return mpscomplaint::nameExpected;
    const std::string_view name = trimBlanks(scanner_.rawField(modelNamePlace));
    model_.setModelName(std::string(name));
    model_.setParameter("xdata", name);
    return scanner_.nextFixedLine() ? Complaint() : Complaint(mpscomplaint::unexpectedEnd);
}

Complaint MpsReader::readRows() {
    if (!sectionIs("ROWS")) return mpscomplaint::rowsExpected;
    target_.reserveRows(scanner_.countIndentedLines());
    while (nextLineOfSection()) {
        const FixedName ahead(ModelTextScanner::rawField(scanner_.nextLineAhead(), fixedFieldPlaces[2]));
        target_.prefetchNewRow(ahead);
        TARQ_TRY(readRow());
    }
    return {};
}

Complaint MpsReader::readRow() {
    const FixedName name = fixedName(2);
    if (name.empty()) return mpscomplaint::emptyNewRowName;
    const std::array<char, 2> characters = scanner_.rowTypeCharacters();
    const auto code = std::find_if(rowTypeCodes.begin(), rowTypeCodes.end(), [&](const RowTypeCode& candidate) {
        return candidate.characters == std::string_view(characters.data(), characters.size());
    });
    if (code == rowTypeCodes.end()) return mpscomplaint::badRowType;
    if (code->type == MpsRowType::Free && (objectiveRowName_.empty() || objectiveRowName_ == name)) {
        objectiveRowName_ = name;
        model_.setParameter("xobj", name.text());
        return {};
    }
    target_.addRow(name, code->type);
    return {};
}

Complaint MpsReader::readColumns() {
    if (!sectionIs("COLUMNS")) return mpscomplaint::columnsExpected;
    columnsStart_ = scanner_.lineStart();
    while (nextLineOfSection()) {
        const std::string_view ahead = scanner_.nextLineAhead();
        fetchColumnAhead(ahead);
        fetchRowsAhead(ahead);
        TARQ_TRY(readColumnLine());
    }
    return {};
}

void MpsReader::fetchColumnAhead(std::string_view lineAhead) {
    const FixedName name(ModelTextScanner::rawField(lineAhead, fixedFieldPlaces[2]));
    if (name == columnNameAhead_) return;
    columnNameAhead_ = name;
    target_.store().prefetchColumn(name.text());
}

void MpsReader::fetchRowsAhead(std::string_view lineAhead) const {
    for (const PairFields fields : {firstPair, secondPair}) {
        const std::string_view field = ModelTextScanner::rawField(lineAhead, fixedFieldPlaces[fields.name]);
        if (field.empty()) return;
        target_.prefetchRow(FixedName(field));
    }
}

Complaint MpsReader::readColumnLine() {
    if (isMarkerLine()) return readMarker();
    const FixedName columnName = fixedName(2);
    Pair pair;
    for (const PairFields fields : {firstPair, secondPair}) {
        TARQ_TRY(readColumnPair(columnName, fields, pair));
        if (pair.absent) break;
    }
    return {};
}

Complaint MpsReader::readMarker() {
    const std::string_view keyword = scanner_.fixedField(5);
    if (equalsInUpperCase(keyword, "'INTORG'")) {
        integerBlock_ = true;
    } else if (equalsInUpperCase(keyword, "'INTEND'")) {
        integerBlock_ = false;
    } else if (equalsInUpperCase(keyword, "'SOSORG'") || equalsInUpperCase(keyword, "'SOSEND'")) {
        return "Special ordered sets are not supported.";
    } else if (!keyword.empty()) {
        return "Unknown Marker found.";
    }
    return {};
}

Complaint MpsReader::readColumnPair(FixedName columnName, PairFields fields, Pair& pair) {
    if (columnName.empty()) return mpscomplaint::emptyColumnName;
    TARQ_TRY(readPair(fields, coefficientMessages, pair));
    if (pair.absent) return {};
    // The column comes first: a line whose row is unknown leaves a new column behind.
    if (columnPosition_ == MpsTarget::absent || columnName != columnName_) enterColumn(columnName);
    if (pair.rowName == objectiveRowName_) {
        target_.store().column(columnPosition_).cost = pair.value;
        return {};
    }
    const std::int32_t row = target_.findRow(pair.rowName);
    if (row == MpsTarget::absent) return mpscomplaint::unknownRow;
    target_.setNonzero(columnPosition_, row, pair.value);
    return {};
}

void MpsReader::enterColumn(FixedName name) {
    columnName_ = name;
    const bool sampleIsFull = target_.store().columnCount() == sampleLength;
    columnPosition_ = target_.findOrAddColumn(name, integerBlock_);
    // Once, when the column is new: a column can be met again any number of times, and each room costs a pass.
    if (sampleIsFull && columnPosition_ == sampleLength) {
        const std::size_t read = scanner_.lineStart() - columnsStart_;
        const std::size_t rest = scanner_.textLength() - columnsStart_;
        target_.reserveColumns(
            static_cast<std::size_t>(sampleLength * (static_cast<double>(rest) / static_cast<double>(read))));
    }
}

Complaint MpsReader::readPair(PairFields fields, const NumberMessages& messages, Pair& pair) const {
    pair.rowName = fixedName(fields.name);
    const FieldNumber number = scanner_.fixedNumber(fields.number, pair.value);
    if (pair.rowName.empty()) {
        pair.absent = fields.name == secondPair.name && number == FieldNumber::Empty;
        return pair.absent ? Complaint() : mpscomplaint::emptyRowName;
    }
    if (number == FieldNumber::Empty) return messages.empty;
    return number == FieldNumber::Read ? Complaint() : messages.notNumeric;
}

Complaint MpsReader::readOptionalSections() {
    for (std::size_t index = 0; index < optionalSections.size(); ++index) {
        const OptionalSection& section = optionalSections[index];
        const bool expected =
            std::any_of(optionalSections.begin() + static_cast<std::ptrdiff_t>(index), optionalSections.end(),
                        [this](const OptionalSection& later) { return sectionIs(later.keyword); });
        if (!expected && !sectionIs("ENDATA")) return section.expected;
        if (!sectionIs(section.keyword)) continue;
        TARQ_TRY((this->*section.read)());
    }
    return {};
}

Complaint MpsReader::readRowValues(std::string_view vectorParameter, const NumberMessages& messages, ApplyToRow apply) {
    bool vectorSeen = false;
    while (nextLineOfSection()) {
        if (!std::exchange(vectorSeen, true)) model_.setParameter(vectorParameter, scanner_.fixedField(2));
        fetchRowsAhead(scanner_.nextLineAhead());
        Pair pair;
        for (const PairFields fields : {firstPair, secondPair}) {
            TARQ_TRY(readRowValuePair(fields, messages, apply, pair));
            if (pair.absent) break;
        }
    }
    return {};
}

Complaint MpsReader::readRowValuePair(PairFields fields, const NumberMessages& messages, ApplyToRow apply, Pair& pair) {
    TARQ_TRY(readPair(fields, messages, pair));
    if (pair.absent) return {};
    const std::int32_t row = target_.findRow(pair.rowName);
    if (row == MpsTarget::absent) return mpscomplaint::unknownRow;
    (target_.*apply)(row, pair.value);
    return {};
}

Complaint MpsReader::readBounds() {
    bool vectorSeen = false;
    while (nextLineOfSection()) {
        if (!std::exchange(vectorSeen, true)) model_.setParameter("XBOUND", scanner_.fixedField(2));
        TARQ_TRY(readBound());
    }
    return {};
}

Complaint MpsReader::readBound() {
    const FixedName name = fixedName(3);
    if (name.empty()) return mpscomplaint::emptyBoundColumnName;
    const std::int32_t position = target_.findNextColumn(name);
    if (position == MpsTarget::absent) return mpscomplaint::unknownColumn;
    const std::array<char, 2> characters = scanner_.rowTypeCharacters();
    const MpsBoundType* const type = findMpsBoundType({characters.data(), characters.size()});
    if (type == nullptr) return mpscomplaint::badBoundType;
    if (type->takesValue && scanner_.fixedNumber(4, boundValue_) == FieldNumber::NotNumeric) {
        return mpscomplaint::boundNotNumeric;
    }
    target_.applyBound(position, *type, boundValue_);
    return {};
}

}  // namespace

std::optional<ParseFailure> readMps(std::string text, ModelFileTarget& model) {
    model.clearModel();
    MpsReader reader(std::move(text), model);
    std::optional<ParseFailure> failure = reader.read();
    if (!failure) model.setReadingNotes(reader.readingNotes());
    // The nonzeros take their room in the store when the text has given its room back.
    reader.dropText();
    reader.storeNonzeros();
    return failure;
}

}  // namespace tarq
