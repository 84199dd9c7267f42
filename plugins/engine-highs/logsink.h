// LogSink: takes every line that HiGHS logs; keeps the last message, and writes the log file where one is wanted.
#pragma once

#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace tarq::engine {

enum class LogKind { Info, Warning, Error };

/// One for a run, from its model to its end. Any thread may write.
class LogSink {
public:
    /// Opens the log file, overwriting; an empty path means none. False when it can't be written.
    [[nodiscard]] bool open(const std::string& path);

    void write(LogKind kind, std::string_view text);

    /// The last error since clearMessage(), or the last warning when there was none. Without the line's end.
    [[nodiscard]] std::string message() const;
    void clearMessage();

    /// False when the log file lacks something that couldn't be written.
    [[nodiscard]] bool isWhole() const;

    /// Writes no more: the run is over, or the thread that still logs was given up.
    void close();

private:
    struct FileCloser {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    mutable std::mutex mutex_;
    std::unique_ptr<std::FILE, FileCloser> file_;
    bool whole_ = true;
    std::string message_;
    LogKind messageKind_ = LogKind::Info;
};

}  // namespace tarq::engine
