#include "platform/thread.h"

#include <link.h>
#include <pthread.h>
#include <ucontext.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <exception>
#include <mutex>
#include <new>
#include <thread>
#include <utility>

namespace tarq {
namespace {

using namespace std::chrono_literals;

constexpr auto probeInterval = 1ms;
constexpr int patientProbes = 2000;

/// What the thread that parks another one and the signal handler on that thread tell each other.
struct Probe {
    std::uintptr_t codeBegin = 0;
    std::uintptr_t codeEnd = 0;
    std::atomic<bool> anywhere{false};
    std::atomic<std::uintptr_t> lastCounter{0};
    std::atomic<bool> parked{false};
};

// The handler finds its probe here; one thread is parked at a time.
std::mutex parking;
std::atomic<Probe*> probeInProgress{nullptr};

/// Where the thread was interrupted; 0 on a machine whose registers aren't known here.
std::uintptr_t programCounter([[maybe_unused]] const void* context) {
    [[maybe_unused]] const auto* const registers = static_cast<const ucontext_t*>(context);
#if defined(__x86_64__) && defined(__linux__)
    return static_cast<std::uintptr_t>(registers->uc_mcontext.gregs[REG_RIP]);
#elif defined(__aarch64__) && defined(__linux__)
    return static_cast<std::uintptr_t>(registers->uc_mcontext.pc);
#else
    return 0;
#endif
}

void parkIfHarmless(int /*signal*/, siginfo_t* /*info*/, void* context) {
    const int errnoBefore = errno;
    Probe* const probe = probeInProgress.load();
    if (probe != nullptr) {
        const std::uintptr_t counter = programCounter(context);
        const bool inLibrary = counter >= probe->codeBegin && counter < probe->codeEnd;
        // Twice at the same place is a thread that waits in the system.
        const bool waiting = counter != 0 && probe->lastCounter.exchange(counter) == counter;
        if (inLibrary || waiting || probe->anywhere.load()) {
            probe->parked.store(true);
            parkThisThread();
        }
    }
    errno = errnoBefore;
}

/// The machine code of the library or program that holds an address, as [begin, end).
struct CodeSearch {
    std::uintptr_t address;
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
};

int searchObject(dl_phdr_info* object, std::size_t /*size*/, void* data) {
    auto& search = *static_cast<CodeSearch*>(data);
    for (int index = 0; index < object->dlpi_phnum; ++index) {
        const auto& segment = object->dlpi_phdr[index];
        if (segment.p_type != PT_LOAD || (segment.p_flags & PF_X) == 0) continue;
        const std::uintptr_t begin = object->dlpi_addr + segment.p_vaddr;
        if (search.address < begin || search.address >= begin + segment.p_memsz) continue;
        search.begin = begin;
        search.end = begin + segment.p_memsz;
        return 1;
    }
    return 0;
}

/// A signal that nobody uses: real-time signals have no meaning of their own. Chosen once.
int parkingSignal() {
    static const int chosen = [] {
        for (int signal = SIGRTMAX - 1; signal > SIGRTMIN; --signal) {
            struct sigaction present {};
            if (sigaction(signal, nullptr, &present) == 0 && present.sa_handler == SIG_DFL) return signal;
        }
        return SIGRTMAX;
    }();
    return chosen;
}

/// Has the handler in place while it lives.
class HandlerInPlace {
public:
    HandlerInPlace() {
        struct sigaction action {};
        action.sa_sigaction = &parkIfHarmless;
        action.sa_flags = SA_SIGINFO | SA_RESTART;
        sigfillset(&action.sa_mask);
        sigaction(parkingSignal(), &action, &former_);
    }
    HandlerInPlace(const HandlerInPlace&) = delete;
    HandlerInPlace& operator=(const HandlerInPlace&) = delete;
    ~HandlerInPlace() { sigaction(parkingSignal(), &former_, nullptr); }

private:
    struct sigaction former_ {};
};

class PosixThread final : public DetachedThread {
public:
    explicit PosixThread(pthread_t thread) : thread_(thread) {}
    bool park(const void* code) override;

private:
    pthread_t thread_;
};

bool PosixThread::park(const void* code) {
    const std::lock_guard lock(parking);
    CodeSearch search{.address = reinterpret_cast<std::uintptr_t>(code)};
    if (code != nullptr) dl_iterate_phdr(&searchObject, &search);
    // Kept for good: a signal that was sent may be delivered late.
    static Probe probe;
    probe.codeBegin = search.begin;
    probe.codeEnd = search.end;
    probe.anywhere = false;
    probe.lastCounter = 0;
    probe.parked = false;
    probeInProgress.store(&probe);
    const HandlerInPlace handler;
    // A while longer than patience, for a thread that gets no processor.
    for (int count = 0; count < 2 * patientProbes && !probe.parked; ++count) {
        if (count >= patientProbes) probe.anywhere = true;
        if (pthread_kill(thread_, parkingSignal()) != 0) break;
        std::this_thread::sleep_for(probeInterval);
    }
    probeInProgress.store(nullptr);
    return probe.parked;
}

void* runBody(void* argument) {
    const std::unique_ptr<std::function<void()>> body(static_cast<std::function<void()>*>(argument));
    sigset_t parkable;
    sigemptyset(&parkable);
    sigaddset(&parkable, parkingSignal());
    pthread_sigmask(SIG_UNBLOCK, &parkable, nullptr);
    // Makes what the runtime keeps for a thread that throws, for which there may be no memory when it does.
    (void)std::uncaught_exceptions();
    (*body)();
    return nullptr;
}

}  // namespace

std::unique_ptr<DetachedThread> DetachedThread::start(std::function<void()> body) noexcept {
    try {
        auto owned = std::make_unique<std::function<void()>>(std::move(body));
        auto handle = std::make_unique<PosixThread>(pthread_t{});
        pthread_attr_t attributes;
        if (pthread_attr_init(&attributes) != 0) return nullptr;
        pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED);
        // A new thread has its creator's mask, so no signal reaches it before it has its own.
        sigset_t all;
        sigset_t former;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &former);
        pthread_t thread{};
        const bool created = pthread_create(&thread, &attributes, &runBody, owned.get()) == 0;
        pthread_sigmask(SIG_SETMASK, &former, nullptr);
        pthread_attr_destroy(&attributes);
        if (!created) return nullptr;
        (void)owned.release();
        *handle = PosixThread(thread);
        return handle;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

std::int32_t currentThreadNumber() noexcept { return static_cast<std::int32_t>(gettid()); }

bool isFirstThread() noexcept { return gettid() == getpid(); }

void parkThisThread() noexcept {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, nullptr);
    for (;;) sigsuspend(&all);
}

}  // namespace tarq
