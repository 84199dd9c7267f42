#include "interrupt.h"

#include <unistd.h>

#include <atomic>

namespace tarq::command {

namespace {

// A signal handler reaches nothing but global state, and only lock-free atomics are safe in it. Asking for a stop is
// safe too: it sets such an atomic in the model.
std::atomic<bool> signalCame{false};
std::atomic<ITARQModel*> watchedModel{nullptr};
static_assert(std::atomic<bool>::is_always_lock_free && std::atomic<ITARQModel*>::is_always_lock_free);

constexpr unsigned secondsToRemind = 1;

// A run forgets what was said before it began, so the wish is said again until the run is over.
extern "C" void remindOfStop(int /*signal*/) {
    ITARQModel* const model = watchedModel;
    if (model == nullptr) return;
    (void)model->StopOptimizeAsync();
    alarm(secondsToRemind);
}

extern "C" void noteSignal(int signal) {
    if (signalCame.exchange(true)) _exit(128 + signal);
    remindOfStop(signal);
}

void handle(int signal, void (*handler)(int), struct sigaction* old) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, old);
}

void catchUnlessIgnored(int signal, struct sigaction& old) {
    if (sigaction(signal, nullptr, &old) == 0 && old.sa_handler != SIG_IGN) handle(signal, noteSignal, nullptr);
}

}  // namespace

InterruptWatch::InterruptWatch(ITARQModel& model) {
    signalCame = false;
    watchedModel = &model;
    handle(SIGALRM, remindOfStop, &oldAlarm_);
    catchUnlessIgnored(SIGINT, oldInterrupt_);
    catchUnlessIgnored(SIGTERM, oldTerminate_);
}

InterruptWatch::~InterruptWatch() {
    sigaction(SIGINT, &oldInterrupt_, nullptr);
    sigaction(SIGTERM, &oldTerminate_, nullptr);
    watchedModel = nullptr;
    alarm(0);
    // A handler that is still at work on another thread may set one more alarm, which must not end the process.
    if (oldAlarm_.sa_handler == SIG_DFL) oldAlarm_.sa_handler = SIG_IGN;
    sigaction(SIGALRM, &oldAlarm_, nullptr);
}

bool InterruptWatch::interrupted() const { return signalCame; }

}  // namespace tarq::command
