// What every member of an object does around its few lines: check outputs, catch what must not leave, report failures.
#pragma once

#include <new>
#include <utility>

#include "tarq/frame/objecterror.h"

namespace tarq {

/// Runs `operation`, which returns a Status and has recorded what there is to say about it, such as a call of an object
/// that may be anybody's. No exception passes.
template <class Operation>
Status contained(Operation&& operation) noexcept {
    try {
        return std::forward<Operation>(operation)();
    } catch (const std::bad_alloc&) {
        return status::outOfMemory;
    } catch (...) {
        return status::generalFailure;
    }
}

/// Runs `operation`, which returns an Outcome, for an object of the class `classId`: a description is recorded for the
/// calling thread and the status returned. No exception passes.
template <class Operation>
Status guarded(const Guid& classId, Operation&& operation) noexcept {
    return contained([&] { return raise(classId, std::forward<Operation>(operation)()); });
}

/// Sets an output from `compute`, which returns the value and cannot fail otherwise than by lack of memory.
template <class Value, class Compute>
Status guardedGet(Value* output, Compute&& compute) noexcept {
    if (output == nullptr) return status::nullPointer;
    return contained([&] {
        *output = std::forward<Compute>(compute)();
        return status::ok;
    });
}

}  // namespace tarq
