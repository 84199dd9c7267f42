// SolutionFile: the solution of a run as a table in a file.
//
// A file with the extension .csv is written as CSV, with quotes around a field that holds a comma, a quote or a line
// end; any other as JSON with one line for each column and row. Without a solution the table is empty. The table takes
// the place of a file that is there when it is whole, and not before.
#pragma once

#include <sys/types.h>
#include <tarq/tarq.h>

#include <cstdio>
#include <memory>
#include <string>

#include "run/runresult.h"
#include "run/solutiontable.h"

namespace tarq::command {

class SolutionFile {
public:
    /// Looks whether the path can be written, so that this is known before the run; else InputRejected.
    explicit SolutionFile(const std::string& path);
    SolutionFile(const SolutionFile&) = delete;
    SolutionFile& operator=(const SolutionFile&) = delete;
    ~SolutionFile();

    /// Writes the run's solution, else InputRejected. A file that could not be written whole is as it was. Devices and
    /// pipes are written in place, and so is a file of another owner or with several names, or in a folder that takes
    /// no new file.
    void write(ITARQModel& model, const RunResult& result);

private:
    /// How the table comes to its place: as a new file in place of the old one, in the old one itself, or behind what
    /// this program's own output already holds.
    enum class Way { Replace, Rewrite, Append };

    /// Finds out what the path leads to; the system's number for the reason when it can't be written.
    [[nodiscard]] int findWay();
    /// The file to write to, below 0 when it can't be opened.
    [[nodiscard]] int open();
    [[noreturn]] void fail(int error) const;
    void close();
    void put(std::string_view text);
    void writeCsv(ITARQModel& model, SolutionKind kind);
    void writeJson(ITARQModel& model, SolutionKind kind);
    void writeJsonList(const SolutionTable& table, const char* dualName);

    std::string path_;
    std::string target_;  ///< the file that the path leads to
    mode_t mode_;         ///< of a new file
    Way way_ = Way::Replace;
    std::string newFile_;  ///< while it is being written
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_{nullptr, std::fclose};
};

/// A field of a CSV line, in quotes where its text needs them.
[[nodiscard]] std::string csvField(std::string_view text);

}  // namespace tarq::command
