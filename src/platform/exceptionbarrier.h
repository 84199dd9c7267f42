// Where no exception may pass, whatever its type.
#pragma once

#if defined(__GLIBCXX__)
#include <cxxabi.h>
#endif

#include <utility>

namespace tarq {

/// Returns what `operation` returns, or what `otherwise` does when it lets an exception out, also one that is no
/// std::exception. The unwinding of a thread that is being cancelled passes: the platform ends a process that holds it
/// up. A handler gets it as a reference to nothing, hence the attribute.
template <class Operation, class Otherwise>
__attribute__((no_sanitize("null"))) auto withoutException(Operation&& operation, Otherwise&& otherwise)
    -> decltype(otherwise()) {
    try {
        return std::forward<Operation>(operation)();
    }
#if defined(__GLIBCXX__)
    catch (const abi::__forced_unwind&) {
        throw;
    }
#endif
    catch (...) {
        return std::forward<Otherwise>(otherwise)();
    }
}

}  // namespace tarq
