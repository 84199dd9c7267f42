// SolutionFile: the solution of a run as a table in a file.
//
// A file with the extension .csv is written as CSV, with quotes around a field that holds a comma, a quote or a line
// end; any other as JSON with one line for each column and row. Without a solution the table is empty.
#pragma once

#include <tarq/tarq.h>

#include <cstdio>
#include <memory>
#include <string>

#include "runresult.h"

namespace tarq::command {

class SolutionFile {
public:
    /// Empties the file, so that a path that can't be written is known before the run and no older solution is taken
    /// for this run's. failure() tells why that was not possible.
    explicit SolutionFile(const std::string& path);

    /// Writes the run's solution and closes the file; failure() tells whether that went well.
    void write(ITARQModel& model, const RunResult& result);

    /// Why the file could not be opened or written; empty when it could.
    [[nodiscard]] const std::string& failure() const { return failure_; }

private:
    void put(std::string_view text);
    void writeCsv(ITARQModel& model, SolutionKind kind);
    void writeJson(ITARQModel& model, SolutionKind kind);

    std::string path_;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
    std::string failure_;
};

/// A field of a CSV line, in quotes where its text needs them.
[[nodiscard]] std::string csvField(std::string_view text);

}  // namespace tarq::command
