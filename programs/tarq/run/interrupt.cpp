#include "run/interrupt.h"

#include <unistd.h>

#include <atomic>
#include <cerrno>

namespace tarq::command {

namespace {

// A signal handler reaches nothing but global state, and only lock-free atomics are safe in it. Asking for a stop is
// safe too: it sets such an atomic in the model.
std::atomic<bool> signalCame{false};
std::atomic<ITARQModel*> watchedModel{nullptr};
std::atomic<timer_t> reminder{};
static_assert(std::atomic<bool>::is_always_lock_free && std::atomic<ITARQModel*>::is_always_lock_free &&
              std::atomic<timer_t>::is_always_lock_free);

void askForStop() {
    ITARQModel* const model = watchedModel;
    if (model != nullptr) (void)model->StopOptimizeAsync();
}

// A run forgets what was said before it began, so the wish is said again until the run is over.
extern "C" void remindOfStop(int /*signal*/, siginfo_t* cause, void* /*context*/) {
    if (cause->si_code == SI_TIMER) askForStop();
}

extern "C" void noteSignal(int signal) {
    if (signalCame.exchange(true)) _exit(128 + signal);
    const int before = errno;
    askForStop();
    constexpr timespec second{1, 0};
    constexpr itimerspec everySecond{second, second};
    timer_settime(reminder, 0, &everySecond, nullptr);
    errno = before;
}

void catchUnlessIgnored(int signal, struct sigaction& old) {
    if (sigaction(signal, nullptr, &old) != 0 || old.sa_handler == SIG_IGN) return;
    struct sigaction action {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

// A timer and a signal of its own, so that the alarm clock and its signal stay with whoever set it. The handler stays
// behind: the last reminder may still be on its way when the timer is gone, and must not end the process.
bool makeReminder(timer_t& timer) {
    struct sigaction action {};
    action.sa_sigaction = remindOfStop;
    action.sa_flags = SA_RESTART | SA_SIGINFO;
    sigemptyset(&action.sa_mask);
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGRTMIN;
    return sigaction(SIGRTMIN, &action, nullptr) == 0 && timer_create(CLOCK_MONOTONIC, &event, &timer) == 0;
}

}  // namespace

InterruptWatch::InterruptWatch(ITARQModel& model) : hasReminder_(makeReminder(reminder_)) {
    signalCame = false;
    watchedModel = &model;
    reminder = reminder_;
    catchUnlessIgnored(SIGINT, oldInterrupt_);
    catchUnlessIgnored(SIGTERM, oldTerminate_);
}

InterruptWatch::~InterruptWatch() {
    sigaction(SIGINT, &oldInterrupt_, nullptr);
    sigaction(SIGTERM, &oldTerminate_, nullptr);
    watchedModel = nullptr;
    if (hasReminder_) timer_delete(reminder_);
}

bool InterruptWatch::interrupted() const { return signalCame; }

}  // namespace tarq::command
