// TemporaryFile: a standard stream as a file that can be opened by name.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarq::command {

enum class StandardStream { Input, Output };

/// A file that can be opened by path() while the object lives. What can't be made, filled or copied ends in a Failure
/// that names the stream.
class TemporaryFile {
public:
    /// An empty file in the place of a stream. Without `extension` it has no name in any directory, so that nothing
    /// stays behind, however the process ends. With one its name ends with it, for other processes, and only the
    /// object's end takes it away.
    explicit TemporaryFile(StandardStream stream, const std::string& extension = {});
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    [[nodiscard]] const std::string& path() const { return path_; }

    /// Fills the file with standard input; fails behind the 2 gigabytes that the component reads.
    void copyStandardInput() const;
    /// Writes what the file holds to standard output.
    void copyToStandardOutput() const;

private:
    bool isNamed_;
    std::string path_;
    int file_;
};

}  // namespace tarq::command
