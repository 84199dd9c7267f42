// Where no exception may pass, whatever its type.
#pragma once

#include <exception>
#include <new>
#include <type_traits>
#include <utility>

namespace tarq {

/// In a handler of everything: whether it holds the unwinding of a thread that is being cancelled, which is no
/// exception and must pass: the platform ends a process that holds it up.
inline bool holdsThreadEnd() { return std::current_exception() == nullptr; }

/// What a caught exception tells. The text lives as long as the call that it is given to.
struct Thrown {
    bool outOfMemory = false;
    const char* text = "";  ///< empty where it is no std::exception
};

/// Returns what `operation` returns, or what `otherwise` does when it lets an exception out, also one that is no
/// std::exception; `otherwise` may take a Thrown. The end of a thread passes.
template <class Operation, class Otherwise>
auto withoutException(Operation&& operation, Otherwise&& otherwise) -> std::invoke_result_t<Operation> {
    const auto answer = [&](const Thrown& thrown) {
        if constexpr (std::is_invocable_v<Otherwise, const Thrown&>) {
            return std::forward<Otherwise>(otherwise)(thrown);
        } else {
            return std::forward<Otherwise>(otherwise)();
        }
    };
    try {
        return std::forward<Operation>(operation)();
    } catch (const std::bad_alloc& exception) {
        return answer({.outOfMemory = true, .text = exception.what()});
    } catch (const std::exception& exception) {
        return answer({.text = exception.what()});
    } catch (...) {
        if (holdsThreadEnd()) throw;
        return answer({});
    }
}

}  // namespace tarq
