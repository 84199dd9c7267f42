// ObjectError: the failure record of a thread, and raise, the last act of an operation that fails.
//
// A failure is raised once, where it is worded; callers hand its status on. The record stays until the thread's next
// raise or clearLastError. Where there is no memory for a thread's record, its failures have no description.
#pragma once

#include <optional>
#include <string>

#include "tarq/frame/export.h"
#include "tarq/frame/guid.h"
#include "tarq/frame/status.h"

namespace tarq {

struct ObjectError {
    Guid classId;  ///< class of the object that raised it
    std::string description;
    Status status;
};

/// Records a failure for the calling thread and returns `status`.
TARQ_API Status raise(const Guid& classId, std::string description, Status status);

/// Records an outcome that has a description; without one the thread's record stays. Returns its status.
TARQ_API Status raise(const Guid& classId, const Outcome& outcome);

/// The calling thread's record, null when there is none. Valid until the thread's next raise or clearLastError.
[[nodiscard]] TARQ_API const ObjectError* lastError();

TARQ_API void clearLastError();

/// The calling thread's record, which is then cleared.
[[nodiscard]] TARQ_API std::optional<ObjectError> takeLastError();

}  // namespace tarq
