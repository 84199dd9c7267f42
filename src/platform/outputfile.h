// OutputFile: a file that is written from its start to its end, through one buffer.
//
// Nothing is reported before the end: a write that fails is remembered, what follows is dropped, and close tells.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace tarq {

class OutputFile {
public:
    /// Makes the file, or empties it. Not open when that fails, or when the name is a directory's or holds a zero byte.
    explicit OutputFile(const std::string& fileName);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    /// Closes a file that wasn't, without a word about failures.
    ~OutputFile();

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }

    void write(std::string_view text);
    void write(char character) { *room(1) = character, ++end_; }

    /// Room for `length` bytes, at most `largestRoom`, behind what was written: for text that is made in place.
    [[nodiscard]] char* room(std::size_t length) {
        if (static_cast<std::size_t>(limit_ - end_) < length) flush();
        return end_;
    }
    /// Says how far the room was used.
    void wroteTo(char* end) { end_ = end; }

    /// Writes what is left and closes the file. False when any write since the opening has failed. Once.
    [[nodiscard]] bool close();

    static constexpr std::size_t largestRoom = 64 * 1024;

private:
    void flush();

    int descriptor_ = -1;
    bool failed_ = false;
    std::unique_ptr<char[]> buffer_;
    char* end_ = nullptr;
    char* limit_ = nullptr;
};

}  // namespace tarq
