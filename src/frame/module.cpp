#include "tarq/frame/module.h"

#include <atomic>

#include "tarq/frame/objecterror.h"

namespace tarq::module {
namespace {

// The only shared state of the frame.
std::atomic<std::int64_t> objects{0};
std::atomic<std::int64_t> locks{0};
std::atomic<std::uint64_t> numbers{0};

constexpr auto relaxed = std::memory_order_relaxed;
constexpr auto acquireRelease = std::memory_order_acq_rel;

}  // namespace

void objectBorn() noexcept {
    objects.fetch_add(1, relaxed);
    // The thread's record is made early: failures for lack of memory need it too.
    (void)lastError();
}
// What the object's last user did must have happened before somebody unloads the module.
void objectDied() noexcept { objects.fetch_sub(1, acquireRelease); }
void lock() noexcept { locks.fetch_add(1, relaxed); }
void unlock() noexcept { locks.fetch_sub(1, acquireRelease); }

std::int64_t liveObjects() noexcept { return objects.load(std::memory_order_acquire); }
bool canUnload() noexcept { return liveObjects() == 0 && locks.load(std::memory_order_acquire) == 0; }

std::uint64_t uniqueNumber() noexcept { return numbers.fetch_add(1, relaxed) + 1; }

}  // namespace tarq::module
