// Where no exception may pass, whatever its type.
#pragma once

#include <exception>
#include <utility>

namespace tarq {

/// In a handler of everything: whether it holds the unwinding of a thread that is being cancelled, which is no
/// exception and must pass: the platform ends a process that holds it up.
inline bool holdsThreadEnd() { return std::current_exception() == nullptr; }

/// Returns what `operation` returns, or what `otherwise` does when it lets an exception out, also one that is no
/// std::exception. The end of a thread passes.
template <class Operation, class Otherwise>
auto withoutException(Operation&& operation, Otherwise&& otherwise) -> decltype(otherwise()) {
    try {
        return std::forward<Operation>(operation)();
    } catch (...) {
        if (holdsThreadEnd()) throw;
        return std::forward<Otherwise>(otherwise)();
    }
}

}  // namespace tarq
