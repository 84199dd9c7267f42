// RunGate: keeps the edits of a model out of the moments in which a run reads it or copies a solution into it.
//
// Nobody refuses to edit a model that is being solved, and a run never holds an edit up for longer than such a moment.
// Where no run is on, an edit costs one relaxed read: whoever starts a run enters it first, on the thread that edits.
// Nothing of a client's is called while the gate is held, so that nobody waits for anything else behind it.
#pragma once

#include <atomic>
#include <mutex>

namespace tarq {

class RunGate {
public:
    /// Holds the gate, or nothing, until its end; it stays where it was made.
    class Hold {
    public:
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;
        ~Hold() {
            if (held_ != nullptr) [[unlikely]]
                held_->unlock();
        }

    private:
        friend class RunGate;

        explicit Hold(std::recursive_mutex* mutex) : held_(mutex) {
            if (held_ != nullptr) [[unlikely]]
                held_->lock();
        }

        std::recursive_mutex* const held_;
    };

    /// For as long as an edit takes, or the reading of a solution; may be nested.
    [[nodiscard]] Hold edit() { return Hold(runs_.load(std::memory_order_relaxed) == 0 ? nullptr : &mutex_); }
    /// For a run, while it reads the model or writes into it.
    [[nodiscard]] Hold moment() { return Hold(&mutex_); }

private:
    friend class RunPresence;

    std::atomic<int> runs_{0};
    std::recursive_mutex mutex_;
};

/// A run that is on, from before its start until it touches the model no more. One that has left stays away.
class RunPresence {
public:
    RunPresence() = default;
    explicit RunPresence(RunGate& gate) : gate_(&gate) { gate.runs_.fetch_add(1, std::memory_order_relaxed); }
    RunPresence(RunPresence&& other) noexcept : gate_(other.gate_.exchange(nullptr)) {}
    RunPresence& operator=(RunPresence&&) = delete;
    ~RunPresence() { leave(); }

    /// From any thread: that of the run, or of whoever has stopped it for good.
    void leave() noexcept {
        if (RunGate* const gate = gate_.exchange(nullptr)) gate->runs_.fetch_sub(1, std::memory_order_relaxed);
    }

private:
    std::atomic<RunGate*> gate_{nullptr};
};

}  // namespace tarq
