#include "files/output.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <optional>

#include "files/temporaryfile.h"
#include "model/modelobject.h"
#include "printing/text.h"

namespace tarq::command {

namespace {

/// Why the system won't let us write a file, in its own words.
std::string reasonNotWritable(const std::string& file) {
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) return "it is a directory";
    // Opened without emptying it, to ask the system once more.
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> opened(std::fopen(file.c_str(), "ab"), std::fclose);
    return opened == nullptr ? std::strerror(errno) : "it could not be written to its end";
}

}  // namespace

void writeOutput(const std::string& file, const std::function<Status(const std::string& path)>& write,
                 const std::function<std::string(Status)>& advice) {
    std::optional<TemporaryFile> spool;
    if (file == "-") spool.emplace(StandardStream::Output);
    const std::string path = spool ? spool->path() : file;
    const std::string shown = shownName(file, "standard output");
    if (const Status status = write(path); status.failed()) {
        const std::string complaint = lastErrorText(status);
        if (status == status::fileAccess) throw cannotWrite(shown, reasonNotWritable(path));
        const std::string hint = advice ? advice(status) : std::string();
        throw Failure(ExitCode::InputRejected,
                      fmt::format("{}: {}{}{}", shown, complaint, hint.empty() ? "" : "\n", hint), status);
    }
    if (spool) spool->copyToStandardOutput();
}

}  // namespace tarq::command
