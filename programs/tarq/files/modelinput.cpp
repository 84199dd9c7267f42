#include "files/modelinput.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>

#include "files/languageinput.h"
#include "files/temporaryfile.h"
#include "model/modelobject.h"
#include "printing/console.h"
#include "printing/text.h"
#include "tarq/interfaces/mpscomplaints.h"
#include "tarq/interfaces/parsefailure.h"

namespace tarq::command {

namespace {

/// True for a text in which the keyword NAME is followed by a name too early for fixed columns.
bool looksLikeFreeColumns(const std::string& file) {
    constexpr std::size_t nameColumn = 14;
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(file, ignored)) return false;
    std::ifstream input(file, std::ios::binary);
    std::string line;
    for (int count = 0; count < 1000 && std::getline(input, line); ++count) {
        if (line.compare(0, 4, "NAME") != 0) continue;
        const std::size_t name = line.find_first_not_of(" \t\r", 4);
        return name != std::string::npos && name < nameColumn;
    }
    return false;
}

struct Hint {
    std::string_view complaint;
    std::string_view text;
};

constexpr std::string_view fixedColumns =
    "MPS is read in fixed columns: names in columns 5-12, 15-22 and 40-47, numbers in 25-36 and 50-61.";
constexpr std::string_view keywordAlone = "A section's keyword stands alone in its line and begins in column 1.";
constexpr std::string_view caseCounts = "Names are compared with their case, in fixed columns of 8 characters.";
constexpr Hint mpsHints[] = {
    {mpscomplaint::rowsExpected, keywordAlone},
    {mpscomplaint::columnsExpected, keywordAlone},
    {mpscomplaint::coefficientNotNumeric, fixedColumns},
    {mpscomplaint::rightHandSideNotNumeric, fixedColumns},
    {mpscomplaint::rangeNotNumeric, fixedColumns},
    {mpscomplaint::boundNotNumeric, fixedColumns},
    {mpscomplaint::emptyNewRowName, fixedColumns},
    {mpscomplaint::emptyRowName, fixedColumns},
    {mpscomplaint::emptyColumnName, fixedColumns},
    {mpscomplaint::emptyBoundColumnName, fixedColumns},
    {mpscomplaint::emptyCoefficient, fixedColumns},
    {mpscomplaint::emptyRightHandSide, fixedColumns},
    {mpscomplaint::emptyRange, fixedColumns},
    {mpscomplaint::unknownRow, caseCounts},
    {mpscomplaint::unknownColumn, caseCounts},
    {mpscomplaint::badRowType, "A row's type is E, L, G or N, in column 2 or 3."},
    {mpscomplaint::badBoundType, "The types of bounds are LO, UP, FX, FR, MI, PL, BV, LI and UI, in columns 2-3."},
    {mpscomplaint::unexpectedEnd, "The file ends before its sections do: is it complete?"},
};

/// What the user can do about a complaint of the reader of MPS files; empty where it tells all.
std::string_view mpsHint(const std::string& file, std::string_view complaint) {
    if (complaint == mpscomplaint::nameExpected && looksLikeFreeColumns(file)) {
        return "This looks like free format; the reader takes fixed columns only, with the name from column 15 on.";
    }
    const auto* const found = std::ranges::find(mpsHints, complaint, &Hint::complaint);
    return found == std::end(mpsHints) ? std::string_view() : found->text;
}

/// "FILE, line 3: ROWS indicator expected.", and behind it a hint.
Failure explainParseFailure(const std::string& shown, const std::string& file, TARQFileFormatType format,
                            const ParseFailure& failure) {
    std::string text = fmt::format("{}, line {}: {}", shown, failure.lineNumber, failure.message);
    const std::string_view hint = format == TARQFileFormatType::MPS ? mpsHint(file, failure.message) : "";
    if (!hint.empty()) text.append("\n").append(hint);
    return {ExitCode::InputRejected, text, status::syntaxError, static_cast<std::int32_t>(failure.lineNumber)};
}

Failure explain(Status status, const std::string& shown, const std::string& file, TARQFileFormatType format) {
    const std::string complaint = status == status::textTooLong ? fileErrorText(status) : lastErrorText(status);
    if (const auto failure = parseFailureIn(complaint)) return explainParseFailure(shown, file, format, *failure);
    if (status == status::fileAccess) return cannotRead(shown, reasonNotReadable(file), status);
    return {ExitCode::InputRejected, fmt::format("{}: {}", shown, complaint), status};
}

struct NoteRow {
    std::int32_t ReadingNotes::*count;
    std::string_view noun;
    std::string_view text;
};

constexpr NoteRow noteRows[] = {
    {&ReadingNotes::upperBoundsSetByMi, "MI bound",
     "also set the upper bound to 0; other programs leave it infinite.\n"
     "FR in place of MI means no bounds everywhere, and UP 0 behind MI an upper bound of 0."},
    {&ReadingNotes::lowerBoundsAboveUpper, "upper bound",
     "below 0 left the lower bound at 0, and no value between; other programs lower it to minus infinity.\n"
     "MI before UP means that everywhere."},
    {&ReadingNotes::integersUpToOne, "integer column",
     "without an upper bound got 1; some other programs set none.\n"
     "UP 1 means 1 everywhere, and UP 1e30 no upper bound."},
};

}  // namespace

std::string reasonNotReadable(const std::string& file) {
    constexpr auto unreadable = "it could not be read to its end, or has 2 gigabytes or more";
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) return "it is a directory";
    // Another open of a pipe would wait for another writer.
    if (std::filesystem::exists(file, ignored) && !std::filesystem::is_regular_file(file, ignored)) return unreadable;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> opened(std::fopen(file.c_str(), "rb"), std::fclose);
    if (opened == nullptr) return std::strerror(errno);
    return unreadable;
}

void readModel(ITARQModel& model, const std::string& file, const InputFormat& format, const LanguageOptions& options) {
    checkDataFiles(format.language, options);
    if (format.language != nullptr) return readModelText(model, file, *format.language, options);
    std::optional<TemporaryFile> spooled;
    if (file == "-") spooled.emplace(StandardStream::Input).copyStandardInput();
    const std::string path = spooled ? spooled->path() : file;
    const Status status = model.ReadModel(path, format.file);
    if (!status.isOk()) throw explain(status, shownName(file, standardInput), path, format.file);
}

void showReadingNotes(ITARQModel& model) {
    const auto source = Ref<ITARQModel>(&model).query<IReadingNotes>();
    if (!source) return;
    const ReadingNotes notes = source->readingNotes();
    for (const NoteRow& row : noteRows) {
        if (notes.*row.count > 0)
            showMessage(fmt::format("note: {} {}", counted(notes.*row.count, row.noun), row.text));
    }
}

}  // namespace tarq::command
