// StubAnswer: the words of a stub program, taken out of the bytes that come from it.
//
// Nothing is believed: a word that isn't there in full fails, and memory is taken as bytes come, not as they are
// announced.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tarq {

/// Waits for bytes and puts at most `length` of them into `buffer`; 0 at the end.
using ByteSource = std::function<std::size_t(char* buffer, std::size_t length)>;

class StubAnswer {
public:
    explicit StubAnswer(ByteSource source) : source_(std::move(source)), buffer_(bufferLength) {}

    /// Each is false when the bytes end before the word does.
    [[nodiscard]] bool integer(std::int32_t& value) { return bytes(&value, sizeof value); }
    [[nodiscard]] bool real(double& value) { return bytes(&value, sizeof value); }
    [[nodiscard]] bool bytes(void* start, std::size_t length) {
        if (end_ - next_ < length) return bytesAcross(static_cast<char*>(start), length);
        std::memcpy(start, buffer_.data() + next_, length);
        next_ += length;
        return true;
    }
    /// False too for a negative length.
    [[nodiscard]] bool text(std::string& value);

private:
    static constexpr std::size_t bufferLength = 64 * 1024;

    [[nodiscard]] bool refill();
    [[nodiscard]] bool bytesAcross(char* start, std::size_t length);

    ByteSource source_;
    std::vector<char> buffer_;
    std::size_t next_ = 0;
    std::size_t end_ = 0;
};

}  // namespace tarq
