// What every member of an object does around its few lines: check outputs, catch what must not leave, report failures.
//
// No exception passes any of these functions; the end of a thread does (see tarq/frame/contained.h).
#pragma once

#include <utility>

#include "frame/result.h"
#include "tarq/frame/contained.h"
#include "tarq/frame/objecterror.h"

namespace tarq {

/// Runs `operation`, which returns an Outcome, for an object of the class `classId`: a description is recorded for the
/// calling thread and the status returned.
template <class Operation>
Status guarded(const Guid& classId, Operation&& operation) {
    return contained([&] { return raise(classId, std::forward<Operation>(operation)()); });
}

/// The same with an `operation` that returns a Result, whose value goes to `output`. nullPointer without one; nothing
/// is run then.
template <class Value, class Operation>
Status guardedResult(const Guid& classId, Value* output, Operation&& operation) {
    if (output == nullptr) return status::nullPointer;
    return guarded(classId, [&]() -> Outcome {
        TARQ_ASSIGN(*output, std::forward<Operation>(operation)());
        return {};
    });
}

/// Sets an output from `compute`, which returns the value and cannot fail otherwise than by lack of memory.
template <class Value, class Compute>
Status guardedGet(Value* output, Compute&& compute) {
    if (output == nullptr) return status::nullPointer;
    return contained([&] {
        *output = std::forward<Compute>(compute)();
        return status::ok;
    });
}

}  // namespace tarq
