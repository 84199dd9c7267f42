#include "modelinput.h"

#include <fmt/format.h>

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>

#include "languageinput.h"
#include "lasterror.h"
#include "temporaryfile.h"

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
constexpr Hint mpsHints[] = {
    {"ROWS indicator expected", "A section's keyword stands alone in its line and begins in column 1."},
    {"COLUMNS indicator expected", "A section's keyword stands alone in its line and begins in column 1."},
    {"not numeric", fixedColumns},
    {"Empty", fixedColumns},
    {"does not exist", "Names are compared with their case, in fixed columns of 8 characters."},
    {"Bad row type", "A row's type is E, L, G or N, in column 2 or 3."},
    {"Bad type in BOUNDS", "The types of bounds are LO, UP, FX, FR, MI, PL, BV, LI and UI, in columns 2-3."},
    {"Unexpected end of file", "The file ends before its sections do: is it complete?"},
};

std::string mpsHint(const std::string& file, std::string_view complaint) {
    if (complaint.find("NAME indicator") != std::string_view::npos && looksLikeFreeColumns(file)) {
        return "This looks like free format; the reader takes fixed columns only, with the name from column 15 on.";
    }
    for (const Hint& hint : mpsHints) {
        if (complaint.find(hint.complaint) != std::string_view::npos) return std::string(hint.text);
    }
    return {};
}

/// "FILE, line 3: ROWS indicator expected." from "Error parsing MPS file: ROWS indicator expected. Line 3".
Failure parseFailure(const std::string& shown, const std::string& file, TARQFileFormatType format,
                     std::string complaint) {
    Failure failure{ExitCode::InputRejected, shown, status::syntaxError};
    // The component's prefix tells the format, which the user knows.
    if (const std::size_t prefix = complaint.find(" file: "); prefix != std::string::npos)
        complaint.erase(0, prefix + 7);
    if (const std::size_t line = complaint.rfind(" Line "); line != std::string::npos) {
        const std::string number = complaint.substr(line + 6);
        failure.text += ", line " + number;
        std::from_chars(number.data(), number.data() + number.size(), failure.line);
        complaint.erase(line);
    }
    failure.text += ": " + complaint;
    const std::string hint = format == TARQFileFormatType::MPS ? mpsHint(file, complaint) : std::string();
    if (!hint.empty()) failure.text += "\n" + hint;
    return failure;
}

Failure explain(Status status, const std::string& shown, const std::string& file, TARQFileFormatType format) {
    const std::string complaint = lastErrorText(status);
    if (status == status::syntaxError) return parseFailure(shown, file, format, complaint);
    std::string text;
    if (status == status::fileAccess) {
        text = fmt::format("{} can't be read: {}.", shown, reasonNotReadable(file));
    } else if (status == status::textTooLong) {
        text = fmt::format("{}: {} A file's name may have 255 characters.", shown, complaint);
    } else {
        text = fmt::format("{}: {}", shown, complaint);
    }
    return {ExitCode::InputRejected, text, status};
}

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

std::optional<Failure> readModel(ITARQModel& model, const std::string& file, const InputFormat& format,
                                 const LanguageOptions& options) {
    if (auto failure = checkDataFiles(format.language, options)) return failure;
    if (format.language != nullptr) return readModelText(model, file, *format.language, options);
    std::optional<TemporaryFile> spooled;
    std::string path = file;
    if (file == "-") {
        spooled.emplace().copyStandardInput();
        if (!spooled->failure().empty()) {
            return Failure{ExitCode::InputRejected,
                           fmt::format("standard input can't be read: {}.", spooled->failure())};
        }
        path = spooled->path();
    }
    const Status status = model.ReadModel(path, format.file);
    if (status.isOk()) return std::nullopt;
    return explain(status, shownName(file), path, format.file);
}

}  // namespace tarq::command
