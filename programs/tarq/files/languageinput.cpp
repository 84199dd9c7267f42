#include "files/languageinput.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>
#include <system_error>

#include "files/modelinput.h"
#include "files/temporaryfile.h"
#include "model/modelobject.h"
#include "printing/text.h"
#include "tarq/interfaces/failuretexts.h"

namespace tarq::command {

namespace {

/// A translator's complaint: "plan.mod:12: syntax error".
struct Complaint {
    std::string file;
    std::int32_t line = 0;
    std::string words;
};

/// Reads a line of a listing as a complaint about one of the files.
std::optional<Complaint> complaintIn(std::string_view line, const std::vector<std::string>& files) {
    for (const std::string& file : files) {
        if (!line.starts_with(file) || line.substr(file.size(), 1) != ":") continue;
        Complaint complaint{.file = file, .line = 0, .words = {}};
        const char* const end = line.data() + line.size();
        const auto [stop, error] = std::from_chars(line.data() + file.size() + 1, end, complaint.line);
        if (error != std::errc{} || !std::string_view(stop, end).starts_with(": ")) continue;
        complaint.words.assign(stop + 2, end);
        return complaint;
    }
    return std::nullopt;
}

/// The last complaint of a listing, as warnings come before what ends the translation.
std::optional<Complaint> lastComplaint(std::string_view listing, const std::vector<std::string>& files) {
    std::optional<Complaint> last;
    while (!listing.empty()) {
        const std::size_t end = std::min(listing.find('\n'), listing.size());
        if (auto found = complaintIn(listing.substr(0, end), files)) last = std::move(found);
        listing.remove_prefix(std::min(end + 1, listing.size()));
    }
    return last;
}

/// What the MPL server has said, which has no listing.
std::optional<Complaint> serverComplaint(ITARQModel& model, const std::string& file) {
    Complaint complaint{.file = file, .line = 0, .words = {}};
    const bool isTold = model.get_MPLErrorMessage(&complaint.words).isOk() &&
                        model.get_MPLErrorLine(&complaint.line).isOk() && complaint.line > 0;
    return isTold ? std::optional(complaint) : std::nullopt;
}

void showListing(const std::string& listing) {
    std::string shown = printable(listing, "\n\t");
    if (!shown.empty() && shown.back() != '\n') shown += '\n';
    (void)std::fwrite(shown.data(), 1, shown.size(), stderr);
}

void replaceAll(std::string& text, std::string_view what, std::string_view with) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
        text.replace(at, what.size(), with);
    }
}

/// The file that a complaint of the component without a place is about.
std::string_view fileOf(std::string_view text, const std::string& file, const LanguageOptions& options) {
    const bool isAboutData =
        text.find(failuretext::aboutDataFile) != std::string_view::npos && options.dataFiles.size() == 1;
    return isAboutData ? std::string_view(options.dataFiles.front()) : file;
}

Failure explain(Status status, const std::string& text, const std::optional<Complaint>& complaint,
                std::string_view file) {
    if (!complaint) return {ExitCode::InputRejected, fmt::format("{}: {}", file, text), status};
    return {ExitCode::InputRejected,
            fmt::format("{}, line {}: {} {}", printable(complaint->file), complaint->line, text,
                        printable(complaint->words)),
            status, complaint->line};
}

}  // namespace

void checkDataFiles(const Language* language, const LanguageOptions& options) {
    const std::size_t most = language != nullptr ? language->mostDataFiles : 0;
    if (options.dataFiles.size() <= most) return;
    throw Failure(ExitCode::WrongUsage, fmt::format("--data {}: this format takes {} data file.",
                                                    printable(options.dataFiles[most]), most == 0 ? "no" : "one"));
}

std::string reasonOfStub(const std::string& stub, Status status) {
    if (status == status::externalProcess) return "The stub is damaged, or was cut off.";
    if (status != status::temporaryFile) return {};
    constexpr std::string_view extension = ".nl";
    std::error_code ignored;
    // A stub is named with its extension or without.
    const bool isWhole = stub.ends_with(extension) && !std::filesystem::exists(stub + ".nl", ignored);
    const std::string file = isWhole ? stub : stub + ".nl";
    const bool isRead = std::filesystem::is_regular_file(file, ignored) && std::ifstream(file).is_open();
    if (isRead) return "This is no stub, or its header is damaged.";
    return cannotRead(printable(file), reasonNotReadable(file)).text;
}

void readModelText(ITARQModel& model, const std::string& file, const Language& language,
                   const LanguageOptions& options) {
    std::optional<TemporaryFile> spooled;
    // Translators are programs of their own, so it must be a file for them too.
    if (file == "-") spooled.emplace(StandardStream::Input, fmt::format(".{}", language.name)).copyStandardInput();
    const std::string path = spooled ? spooled->path() : file;
    const std::string shown = shownName(file, standardInput);
    const Status status = language.read(model, path, options.dataFiles);
    std::string text = status.isOk() ? std::string() : lastErrorText(status);
    if (const std::string reason = language.isStub ? reasonOfStub(path, status) : ""; !reason.empty())
        text += " " + reason;
    std::string listing;
    (void)model.get_AMPLOutputBuffer(&listing);
    if (spooled) replaceAll(listing, path, shown);
    if (options.listing || !status.isOk()) showListing(listing);
    if (status.isOk()) return;
    std::vector<std::string> files{options.dataFiles};
    files.push_back(shown);
    auto complaint = lastComplaint(listing, files);
    if (!complaint) complaint = serverComplaint(model, shown);
    throw explain(status, text, complaint, printable(fileOf(text, shown, options)));
}

}  // namespace tarq::command
