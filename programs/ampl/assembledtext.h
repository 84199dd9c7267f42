// AssembledText: statements of several files as one file for GLPK, and the way back from its lines to theirs.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "statementreader.h"

namespace tarq::translator {

class AssembledText {
public:
    explicit AssembledText(std::string path) : path_(std::move(path)) {}

    /// Each statement begins a line. Returns the number of that line.
    int add(const Statement& statement);

    [[nodiscard]] bool empty() const { return statements_.empty(); }
    [[nodiscard]] const std::string& path() const { return path_; }
    /// Where a line of the file comes from; a line behind the last belongs to that. There must be a statement.
    [[nodiscard]] Place placeOf(int line) const;
    /// Writes the file, with `end;` behind the statements. Throws a Failure.
    void write() const;

private:
    std::string path_;
    std::vector<std::pair<int, Statement>> statements_;  ///< each with the line where it begins
    int nextLine_ = 1;
};

}  // namespace tarq::translator
