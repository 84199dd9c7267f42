// TemporaryFile: a standard stream as a file that can be opened by name.
#pragma once

#include <string>

namespace tarq::command {

/// A file without a name in any directory, so that nothing stays behind, however the process ends. It can be opened by
/// path() while the object lives.
class TemporaryFile {
public:
    TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    [[nodiscard]] const std::string& path() const { return path_; }
    /// Why the file couldn't be made, filled or copied; empty while all went well.
    [[nodiscard]] const std::string& failure() const { return failure_; }

    /// Fills the file with standard input; fails behind the 2 gigabytes that the component reads.
    void copyStandardInput();
    /// Writes what the file holds to standard output.
    void copyToStandardOutput();

private:
    int file_ = -1;
    std::string path_;
    std::string failure_;
};

}  // namespace tarq::command
