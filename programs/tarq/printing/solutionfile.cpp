#include "printing/solutionfile.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "printing/json.h"
#include "printing/text.h"

namespace tarq::command {

namespace {

using Side = SolutionTable::Side;

bool isCsv(const std::string& path) { return lowerCase(std::filesystem::path(path).extension().string()) == ".csv"; }

/// True for the file that standard output or standard error goes to.
bool isOwnOutput(const struct stat& file) {
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) {
        struct stat own {};
        if (fstat(stream, &own) == 0 && own.st_dev == file.st_dev && own.st_ino == file.st_ino) return true;
    }
    return false;
}

/// The rights that the process gives to a new file.
mode_t modeOfNewFiles() {
    constexpr mode_t readAndWrite = 0666;
    const mode_t kept = umask(0);
    umask(kept);
    return readAndWrite & ~kept;
}

std::string folderOf(const std::string& file) {
    const std::filesystem::path folder = std::filesystem::path(file).parent_path();
    return folder.empty() ? "." : folder.string();
}

}  // namespace

std::string csvField(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
    std::string field = "\"";
    for (const char character : text) field.append(character == '"' ? 2U : 1U, character);
    return field + '"';
}

SolutionFile::SolutionFile(const std::string& path) : path_(path), target_(path), mode_(modeOfNewFiles()) {
    if (const int error = findWay(); error != 0) fail(error);
}

SolutionFile::~SolutionFile() {
    if (!newFile_.empty()) unlink(newFile_.c_str());
}

void SolutionFile::fail(int error) const { throw cannotWrite(printable(path_), std::strerror(error)); }

int SolutionFile::findWay() {
    struct stat old {};
    std::error_code ignored;
    const bool exists = stat(path_.c_str(), &old) == 0;
    if (!exists && errno != ENOENT) return errno;
    if (exists) {
        if (S_ISDIR(old.st_mode)) return EISDIR;
        if (access(path_.c_str(), W_OK) != 0) return errno;
        if (std::string file = std::filesystem::canonical(path_, ignored).string(); !file.empty()) target_ = file;
        mode_ = old.st_mode & 0777U;
    }
    const bool takesFiles = access(folderOf(target_).c_str(), W_OK | X_OK) == 0;
    if (!exists && !takesFiles) return errno;
    // A new file would be another one to those who own the old one or know it by another name.
    const bool isReplaceable = exists ? S_ISREG(old.st_mode) && old.st_uid == geteuid() && old.st_nlink == 1
                                      : !std::filesystem::is_symlink(path_, ignored);
    if (!isReplaceable || !takesFiles) way_ = Way::Rewrite;
    if (exists && S_ISREG(old.st_mode) && isOwnOutput(old)) way_ = Way::Append;
    return 0;
}

int SolutionFile::open() {
    if (way_ != Way::Replace) {
        const int place = way_ == Way::Append ? O_APPEND : O_TRUNC;
        return ::open(target_.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | place, mode_);
    }
    newFile_ = folderOf(target_) + "/.tarq-XXXXXX";
    const int file = mkostemp(newFile_.data(), O_CLOEXEC);
    if (file < 0) {
        newFile_.clear();
    } else {
        fchmod(file, mode_);
    }
    return file;
}

void SolutionFile::close() {
    if (std::fclose(file_.release()) != 0) fail(errno);
    if (way_ != Way::Replace) return;
    if (std::rename(newFile_.c_str(), target_.c_str()) != 0) fail(errno);
    newFile_.clear();
}

void SolutionFile::put(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), file_.get()) != text.size()) fail(errno);
}

void SolutionFile::write(ITARQModel& model, const RunResult& result) {
    const int file = open();
    if (file >= 0) file_.reset(fdopen(file, "wb"));
    if (file_ == nullptr) fail(errno);
    isCsv(path_) ? writeCsv(model, result.solution()) : writeJson(model, result.solution());
    close();
}

void SolutionFile::writeCsv(ITARQModel& model, SolutionKind kind) {
    put("kind,index,name,value,dual,status\n");
    for (const auto& [side, word] : {std::pair{Side::Columns, "column"}, std::pair{Side::Rows, "row"}}) {
        const SolutionTable table(model, side, kind);
        for (std::int32_t number = 1; number <= table.size(); ++number) {
            const SolutionLine line = table.line(number);
            put(fmt::format("{},{},{},{},{},{}\n", word, number, csvField(line.name), line.value, line.dual,
                            nameOf(line.status)));
        }
    }
}

void SolutionFile::writeJson(ITARQModel& model, SolutionKind kind) {
    put("{\n  \"columns\": [");
    writeJsonList({model, Side::Columns, kind}, "reducedCost");
    put(",\n  \"rows\": [");
    writeJsonList({model, Side::Rows, kind}, "dual");
    put("\n}\n");
}

void SolutionFile::writeJsonList(const SolutionTable& table, const char* dualName) {
    for (std::int32_t number = 1; number <= table.size(); ++number) {
        const SolutionLine line = table.line(number);
        put(number == 1 ? "\n    " : ",\n    ");
        put(lineOf({{"index", number},
                    {"name", line.name},
                    {"value", line.value},
                    {dualName, line.dual},
                    {"status", nameOf(line.status)}}));
    }
    put(table.size() == 0 ? "]" : "\n  ]");
}

}  // namespace tarq::command
