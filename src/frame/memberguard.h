// What every member of an object does around its few lines: check outputs, catch what must not leave, report failures.
#pragma once

#include <new>
#include <utility>

#include "frame/objecterror.h"

namespace tarq {

/// Runs `operation`, which returns an Outcome, for an object of the class `classId`: a description is recorded for the
/// calling thread and the status returned. No exception passes.
template <class Operation>
Status guarded(const Guid& classId, Operation&& operation) noexcept {
    try {
        return raise(classId, std::forward<Operation>(operation)());
    } catch (const std::bad_alloc&) {
        return status::outOfMemory;
    } catch (...) {
        return status::generalFailure;
    }
}

/// Sets an output from `compute`, which returns the value and cannot fail otherwise than by lack of memory.
template <class Value, class Compute>
Status guardedGet(Value* output, Compute&& compute) noexcept {
    if (output == nullptr) return status::nullPointer;
    try {
        *output = std::forward<Compute>(compute)();
        return status::ok;
    } catch (const std::bad_alloc&) {
        return status::outOfMemory;
    } catch (...) {
        return status::generalFailure;
    }
}

}  // namespace tarq
