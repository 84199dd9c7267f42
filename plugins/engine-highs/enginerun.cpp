#include "enginerun.h"

#include <memory>
#include <type_traits>

#include "turnqueue.h"

namespace tarq::engine {

namespace {

// Threads may still wait in it when the process ends.
TurnQueue turns;
static_assert(std::is_trivially_destructible_v<TurnQueue>);

// A thread that ends without ending its run gives it up.
class OwnRun {
public:
    OwnRun() = default;
    OwnRun(const OwnRun&) = delete;
    OwnRun& operator=(const OwnRun&) = delete;
    ~OwnRun() { end(); }

    [[nodiscard]] EngineState* state() const { return turns.isCurrent(turn_) ? state_.get() : nullptr; }

    bool begin() {
        // A run that was given up may still be in a stage, whose callback this is.
        if (state() || (state_ && state_->isAtWork())) return false;
        state_.reset();
        turn_ = turns.take();
        try {
            state_ = std::make_unique<EngineState>([turn = turn_] { return !turns.isCurrent(turn); });
        } catch (...) {
            end();
            throw;
        }
        return true;
    }

    void end() {
        if (turn_ == 0) return;
        // The process ends within a stage, which goes on using its state.
        if (state_ && state_->isAtWork()) static_cast<void>(state_.release());
        state_.reset();
        turns.end(turn_);
        turn_ = 0;
    }

private:
    TurnQueue::Turn turn_ = 0;
    std::unique_ptr<EngineState> state_;
};

thread_local OwnRun run;

}  // namespace

bool beginRun() { return run.begin(); }

EngineState* ownRun() noexcept { return run.state(); }

void endRun() noexcept { run.end(); }

bool abandonRun(std::int32_t thread) noexcept { return turns.giveUp(static_cast<std::uint32_t>(thread)); }

}  // namespace tarq::engine
