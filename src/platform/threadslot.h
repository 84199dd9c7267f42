// ThreadSlot: a pointer of which every thread has its own.
#pragma once

namespace tarq {

/// Like a pointer that is thread_local, but where memory runs out at a thread's first use of it, `set` tells so; of a
/// thread_local one the system would end the process. Slots are few and stay for good.
class ThreadSlot {
public:
    /// `drop`, where there is one, is called on each thread that ends, with its pointer where that isn't null.
    explicit ThreadSlot(void (*drop)(void* pointer)) noexcept;

    /// The calling thread's pointer, null until it is set.
    [[nodiscard]] void* get() const noexcept;
    /// False, and nothing is set, where there is no memory or slot for it.
    [[nodiscard]] bool set(void* pointer) const noexcept;

private:
    unsigned number_ = 0;
    bool isThere_ = false;
};

}  // namespace tarq
