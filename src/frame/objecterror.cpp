#include "frame/objecterror.h"

#include <utility>

namespace tarq {
namespace {

/// The only state of this file: the record of each thread.
std::optional<ObjectError>& record() {
    thread_local std::optional<ObjectError> error;
    return error;
}

}  // namespace

Status raise(const Guid& classId, std::string description, Status status) {
    record() = ObjectError{classId, std::move(description), status};
    return status;
}

Status raise(const Guid& classId, const Outcome& outcome) {
    if (outcome.description().empty()) return outcome.status();
    return raise(classId, outcome.description(), outcome.status());
}

const ObjectError* lastError() { return record().has_value() ? &*record() : nullptr; }

void clearLastError() { record().reset(); }

std::optional<ObjectError> takeLastError() { return std::exchange(record(), std::nullopt); }

}  // namespace tarq
