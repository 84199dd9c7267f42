#include "logsink.h"

namespace tarq::engine {

bool LogSink::open(const std::string& path) {
    const std::lock_guard lock(mutex_);
    file_.reset(path.empty() ? nullptr : std::fopen(path.c_str(), "w"));
    return path.empty() || file_;
}

void LogSink::write(LogKind kind, std::string_view text) {
    const std::lock_guard lock(mutex_);
    if (file_) {
        const bool written = std::fwrite(text.data(), 1, text.size(), file_.get()) == text.size();
        if (std::fflush(file_.get()) != 0 || !written) whole_ = false;
    }
    if (kind == LogKind::Info || kind < messageKind_) return;
    while (!text.empty() && (text.back() == '\n' || text.back() == ' ')) text.remove_suffix(1);
    if (text.empty()) return;
    message_ = text;
    messageKind_ = kind;
}

std::string LogSink::message() const {
    const std::lock_guard lock(mutex_);
    return message_;
}

void LogSink::clearMessage() {
    const std::lock_guard lock(mutex_);
    message_.clear();
    messageKind_ = LogKind::Info;
}

bool LogSink::isWhole() const {
    const std::lock_guard lock(mutex_);
    return whole_;
}

void LogSink::close() {
    const std::lock_guard lock(mutex_);
    file_.reset();
}

}  // namespace tarq::engine
