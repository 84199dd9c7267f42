// Where exceptions become statuses: what calls a client's code, or is called by one, lets none out.
#pragma once

#include <exception>
#include <new>
#include <utility>

#include "tarq/frame/status.h"

namespace tarq {

/// Returns what `operation` returns, or what `failed` makes of the status where it lets an exception out: outOfMemory
/// for lack of memory, generalFailure for any other. The end of a thread passes: it is unwound like an exception but is
/// none, and the platform ends a process that holds it up.
template <class Operation, class Failed>
auto contained(Operation&& operation, Failed&& failed) -> decltype(failed(Status())) {
    try {
        return std::forward<Operation>(operation)();
    } catch (const std::bad_alloc&) {
        return std::forward<Failed>(failed)(status::outOfMemory);
    } catch (...) {
        if (std::current_exception() == nullptr) throw;
        return std::forward<Failed>(failed)(status::generalFailure);
    }
}

/// The same of an operation that returns a Status and has recorded what there is to say about it, such as a call of an
/// object that may be anybody's.
template <class Operation>
Status contained(Operation&& operation) {
    return contained(std::forward<Operation>(operation), [](Status status) { return status; });
}

}  // namespace tarq
