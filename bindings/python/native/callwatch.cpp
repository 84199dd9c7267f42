#include "callwatch.h"

#include <array>
#include <csignal>
#include <memory>
#include <mutex>
#include <string_view>
#include <utility>

#include "signalpipe.h"
#include "tarq/frame/objecterror.h"

namespace tarq::python {
namespace {

using namespace std::chrono_literals;

constexpr auto repetition = 50ms;

thread_local int callsOnThisThread = 0;
thread_local PyObject* keptInterrupt = nullptr;  // a counted reference

void keep(const py::object& interrupt) {
    if (keptInterrupt == nullptr) keptInterrupt = Py_NewRef(interrupt.ptr());
}

/// Where Python is to write its notes; returns where it wrote them before. Throws ValueError on all but the main
/// thread.
int turnNotes(int descriptor) {
    const py::object turn = py::module_::import("_signal").attr("set_wakeup_fd");
    return turn(descriptor, py::arg("warn_on_full_buffer") = false).cast<int>();
}

}  // namespace

/// The thread that waits for interrupts, and the call that it asks to stop.
class InterruptWatcher {
public:
    /// The one of this process, made when it is first wanted; null when the system has no means for it. It is never
    /// destroyed: its thread waits until the process ends.
    static InterruptWatcher* get() {
        static InterruptWatcher* watcher = nullptr;
        if (watcher != nullptr && !watcher->pipe_->isOfAnotherProcess()) return watcher;
        auto made = std::make_unique<InterruptWatcher>();
        if (!made->pipe_ || !startQuietThread([running = made.get()] { running->run(); })) return nullptr;
        watcher = made.release();
        return watcher;
    }

    /// Turns Python's notes to the pipe, and changes `call` to the one that was watched so far. False on a thread that
    /// handles no signals.
    bool begin(WatchedCall& call) {
        try {
            call.formerDescriptor = turnNotes(pipe_->writeEnd());
        } catch (const py::error_already_set& error) {
            if (error.matches(PyExc_ValueError)) return false;
            throw;
        }
        const std::lock_guard lock(mutex_);
        if (call.formerDescriptor != pipe_->writeEnd()) client_ = call.formerDescriptor;
        exchange(call);
        return true;
    }

    /// Turns back to the call that `begin` gave, and what was before it.
    void end(WatchedCall& call) noexcept {
        try {
            const int latest = turnNotes(call.formerDescriptor);
            if (latest != pipe_->writeEnd()) turnNotes(latest);  // a sink wanted it so
        } catch (const py::error_already_set&) {
            // Whoever wanted the notes has closed the descriptor; they go on to the pipe, which loses them.
            call.formerDescriptor = -1;
        }
        const std::lock_guard lock(mutex_);
        takeNotes();
        if (call.formerDescriptor != pipe_->writeEnd()) client_ = -1;
        exchange(call);
    }

private:
    void exchange(WatchedCall& call) {
        std::swap(object_, call.object);
        std::swap(stop_, call.stop);
        isInterrupted_ = false;
    }

    void takeNotes() {
        std::array<char, 64> block{};
        const std::string_view notes = pipe_->take(block);
        if (!notes.empty() && client_ != -1) pipe_->pass(client_, notes);
        isInterrupted_ =
            object_ != nullptr && (isInterrupted_ || notes.find(static_cast<char>(SIGINT)) != std::string_view::npos);
    }

    [[noreturn]] void run() {
        for (bool repeat = false;;) {
            pipe_->wait(repeat ? std::optional(repetition) : std::nullopt);
            const std::lock_guard lock(mutex_);
            takeNotes();
            if (isInterrupted_) (void)object_->Invoke(stop_, invoke::method, {}, nullptr, nullptr);
            repeat = isInterrupted_;
        }
    }

    const std::unique_ptr<SignalPipe> pipe_ = SignalPipe::open();
    std::mutex mutex_;  // of what follows
    IDispatch* object_ = nullptr;
    std::int32_t stop_ = 0;
    bool isInterrupted_ = false;
    int client_ = -1;  // where the host wants Python's notes, or -1
};

CallWatch::CallWatch(const Proxy& proxy, const MemberInfo& member) {
    const MemberInfo* stop = member.stoppedBy.empty() ? nullptr : proxy.type->table->find(member.stoppedBy);
    InterruptWatcher* const watcher = stop == nullptr ? nullptr : InterruptWatcher::get();
    if (watcher != nullptr) {
        call_ = {.object = proxy.dispatch, .stop = stop->id};
        if (watcher->begin(call_)) watcher_ = watcher;
    }
    ++callsOnThisThread;
}

CallWatch::~CallWatch() {
    --callsOnThisThread;
    if (watcher_ != nullptr) watcher_->end(call_);
}

void CallWatch::throwInterrupt() {
    if (keptInterrupt != nullptr) {
        const auto kept = py::reinterpret_steal<py::object>(std::exchange(keptInterrupt, nullptr));
        PyErr_SetObject(py::type::handle_of(kept).ptr(), kept.ptr());
    } else if (PyErr_CheckSignals() == 0) {
        return;
    }
    clearLastError();  // of a failure that nobody gets to see
    throw py::error_already_set();
}

void settleSignals() {
    if (callsOnThisThread == 0 || PyErr_CheckSignals() == 0) return;
    keep(py::error_already_set().value());
}

bool keepInterrupt(const py::error_already_set& error) {
    if (callsOnThisThread == 0 || !error.matches(PyExc_KeyboardInterrupt)) return false;
    keep(error.value());
    return true;
}

}  // namespace tarq::python
