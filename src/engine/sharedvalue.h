// Values that the thread of a run writes while another thread reads them: plain fields under relaxed atomic access, and
// a text under a lock. Relaxed suffices, since each value stands for itself and nothing is published through it.
#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <string_view>

namespace tarq {

template <class Value>
[[nodiscard]] Value readShared(const Value& value) {
    // Atomic access to constant objects doesn't exist yet; a load changes nothing.
    return std::atomic_ref<Value>(const_cast<Value&>(value)).load(std::memory_order_relaxed);
}

template <class Value>
void writeShared(Value& value, Value newValue) {
    std::atomic_ref<Value>(value).store(newValue, std::memory_order_relaxed);
}

/// A text that one thread replaces while others read it.
class SharedText {
public:
    [[nodiscard]] std::string get() const {
        const std::lock_guard lock(mutex_);
        return text_;
    }

    void set(std::string_view text) {
        std::string copy(text);
        const std::lock_guard lock(mutex_);
        text_.swap(copy);
    }

private:
    mutable std::mutex mutex_;
    std::string text_;
};

}  // namespace tarq
