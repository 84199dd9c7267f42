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

    [[nodiscard]] RunOperations* operations() const { return turns.isCurrent(turn_) ? operations_.get() : nullptr; }

    bool begin() {
        // A run that was given up may still be in a stage, whose callback this is.
        if (operations() || (operations_ && operations_->isAtWork())) return false;
        operations_.reset();
        turn_ = turns.take();
        try {
            operations_ = std::make_unique<RunOperations>([turn = turn_] { return !turns.isCurrent(turn); });
        } catch (...) {
            end();
            throw;
        }
        return true;
    }

    void end() {
        if (turn_ == 0) return;
        // The process ends within a stage, which goes on using its state.
        if (operations_ && operations_->isAtWork()) static_cast<void>(operations_.release());
        operations_.reset();
        turns.end(turn_);
        turn_ = 0;
    }

private:
    TurnQueue::Turn turn_ = 0;
    std::unique_ptr<RunOperations> operations_;
};

thread_local OwnRun run;

}  // namespace

bool beginRun() { return run.begin(); }

RunOperations* ownRun() noexcept { return run.operations(); }

void endRun() noexcept { run.end(); }

bool abandonRun(std::int32_t thread) noexcept { return turns.giveUp(static_cast<std::uint32_t>(thread)); }

}  // namespace tarq::engine
