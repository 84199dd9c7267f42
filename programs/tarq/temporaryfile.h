// TemporaryFile: a standard stream as a file that can be opened by name.
#pragma once

#include <cstddef>
#include <string>

namespace tarq::command {

/// A file that can be opened by path() while the object lives; without a name in any directory unless it is asked for,
/// so that nothing stays behind, however the process ends.
class TemporaryFile {
public:
    TemporaryFile();
    /// With a name that ends with `extension`, for other processes; only the object's end takes it away.
    explicit TemporaryFile(const std::string& extension);
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
    void make(std::string& name, std::size_t extensionLength);

    int file_ = -1;
    bool isNamed_ = false;
    std::string path_;
    std::string failure_;
};

}  // namespace tarq::command
