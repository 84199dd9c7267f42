// ProgressLine: one line on the terminal that shows how a run is getting on.
#pragma once

#include <tarq/tarq.h>

#include <chrono>
#include <cstddef>
#include <string>

namespace tarq::command {

/// The progress of a run that is on, as one line: iterations, nodes, best, bound, gap and time. The time always, and of
/// the others those that there is `room` for.
[[nodiscard]] std::string progressText(ITARQModel& model, bool integer, double seconds, std::size_t room);

/// Rewrites its line on standard error at each update and wipes it at its end. Does nothing when it is not `enabled`.
class ProgressLine {
public:
    ProgressLine(ITARQModel& model, bool integer, bool enabled);
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine();

    /// Shows the present state, if the last one has stood long enough to be read.
    void update(bool stopping);

private:
    using Clock = std::chrono::steady_clock;

    ITARQModel& model_;
    const bool integer_;
    const bool enabled_;
    const Clock::time_point start_ = Clock::now();
    Clock::time_point shown_ = start_;
    bool visible_ = false;
};

}  // namespace tarq::command
