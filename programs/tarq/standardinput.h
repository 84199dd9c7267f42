// StandardInputFile: standard input as a file that can be opened by name.
#pragma once

#include <string>

namespace tarq::command {

/// Copies standard input into a file without a name in any directory, so that nothing stays behind, however the process
/// ends. The file can be opened by path() while the object lives.
class StandardInputFile {
public:
    StandardInputFile();
    StandardInputFile(const StandardInputFile&) = delete;
    StandardInputFile& operator=(const StandardInputFile&) = delete;
    ~StandardInputFile();

    [[nodiscard]] const std::string& path() const { return path_; }
    /// Why the copy failed; empty when it didn't.
    [[nodiscard]] const std::string& failure() const { return failure_; }

private:
    void copy();

    int file_ = -1;
    std::string path_;
    std::string failure_;
};

}  // namespace tarq::command
