#include "interrupt.h"

#include <unistd.h>

#include <atomic>

namespace tarq::command {

namespace {

// A signal handler reaches nothing but global state, and only lock-free atomics are safe in it.
std::atomic<bool> signalCame{false};
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void noteSignal(int signal) {
    if (!signalCame.exchange(true)) return;
    _exit(128 + signal);
}

void catchUnlessIgnored(int signal, struct sigaction& old) {
    if (sigaction(signal, nullptr, &old) != 0 || old.sa_handler == SIG_IGN) return;
    struct sigaction action {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

}  // namespace

InterruptWatch::InterruptWatch() {
    signalCame = false;
    catchUnlessIgnored(SIGINT, oldInterrupt_);
    catchUnlessIgnored(SIGTERM, oldTerminate_);
}

InterruptWatch::~InterruptWatch() {
    sigaction(SIGINT, &oldInterrupt_, nullptr);
    sigaction(SIGTERM, &oldTerminate_, nullptr);
}

bool InterruptWatch::interrupted() const { return signalCame; }

}  // namespace tarq::command
