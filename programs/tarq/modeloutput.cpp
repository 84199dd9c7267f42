#include "modeloutput.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

#include "fileformat.h"
#include "lasterror.h"
#include "temporaryfile.h"

namespace tarq::command {

namespace {

Failure cannotWrite(const std::string& file, std::string_view reason) {
    return {ExitCode::InputRejected,
            fmt::format("{} can't be written: {}.", shownName(file, "standard output"), reason)};
}

/// Why the system won't let us write a file, in its own words.
std::string reasonNotWritable(const std::string& file) {
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) return "it is a directory";
    // Opened without emptying it, to ask the system once more.
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> opened(std::fopen(file.c_str(), "ab"), std::fclose);
    return opened == nullptr ? std::strerror(errno) : "it could not be written to its end";
}

}  // namespace

std::optional<Failure> writeOutput(const std::string& file, const std::function<Status(const std::string& path)>& write,
                                   const std::function<std::string(Status)>& advice) {
    std::optional<TemporaryFile> spool;
    if (file == "-") {
        spool.emplace();
        if (!spool->failure().empty()) return cannotWrite(file, spool->failure());
    }
    const Status status = write(spool ? spool->path() : file);
    if (status.failed()) {
        const std::string complaint = lastErrorText(status);
        if (status == status::fileAccess) return cannotWrite(file, reasonNotWritable(spool ? spool->path() : file));
        std::string text = fmt::format("{}: {}", shownName(file, "standard output"), complaint);
        if (const std::string hint = advice(status); !hint.empty()) text += "\n" + hint;
        return Failure{ExitCode::InputRejected, text};
    }
    if (spool) {
        spool->copyToStandardOutput();
        if (!spool->failure().empty()) return cannotWrite(file, spool->failure());
    }
    return std::nullopt;
}

}  // namespace tarq::command
