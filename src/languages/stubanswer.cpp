#include "languages/stubanswer.h"

#include <algorithm>

namespace tarq {

bool StubAnswer::refill() {
    next_ = 0;
    end_ = source_(buffer_.data(), buffer_.size());
    return end_ > 0;
}

bool StubAnswer::bytesAcross(char* start, std::size_t length) {
    while (length > 0) {
        if (next_ == end_ && !refill()) return false;
        const std::size_t piece = std::min(length, end_ - next_);
        std::memcpy(start, buffer_.data() + next_, piece);
        next_ += piece;
        start += piece;
        length -= piece;
    }
    return true;
}

bool StubAnswer::text(std::string& value) {
    std::int32_t length = 0;
    if (!integer(length) || length < 0) return false;
    value.clear();
    auto left = static_cast<std::size_t>(length);
    while (left > 0) {
        if (next_ == end_ && !refill()) return false;
        const std::size_t piece = std::min(left, end_ - next_);
        value.append(buffer_.data() + next_, piece);
        next_ += piece;
        left -= piece;
    }
    return true;
}

}  // namespace tarq
