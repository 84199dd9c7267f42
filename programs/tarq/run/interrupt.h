// Catches the user's wish to stop (Ctrl-C, or a request to terminate) while a run is on.
#pragma once

#include <tarq/tarq.h>

#include <csignal>
#include <ctime>

namespace tarq::command {

/// While it lives, the first SIGINT or SIGTERM asks the model's run to stop, and a second one ends the process at once
/// with the exit code 128 plus the signal's number. A signal that was ignored before stays ignored, and any other keeps
/// its meaning but SIGRTMIN, which reminds the run. One object at a time, and none while the model goes away.
class InterruptWatch {
public:
    explicit InterruptWatch(ITARQModel& model);
    InterruptWatch(const InterruptWatch&) = delete;
    InterruptWatch& operator=(const InterruptWatch&) = delete;
    ~InterruptWatch();

    /// True once a signal came.
    [[nodiscard]] bool interrupted() const;

private:
    struct sigaction oldInterrupt_ {};
    struct sigaction oldTerminate_ {};
    timer_t reminder_{};
    bool hasReminder_;
};

}  // namespace tarq::command
