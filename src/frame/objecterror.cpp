#include "tarq/frame/objecterror.h"

#include <cstdlib>
#include <exception>
#include <memory>
#include <utility>

#include "platform/threadslot.h"

namespace tarq {
namespace {

using Record = std::optional<ObjectError>;

void drop(void* record) {
    std::destroy_at(static_cast<Record*>(record));
    std::free(record);
}

/// The only state of this file: the record of the calling thread, null where there is no memory for one.
Record* record() noexcept {
    static const ThreadSlot slot(&drop);
    if (void* const present = slot.get()) return static_cast<Record*>(present);
    // What the runtime keeps for a thread that throws is made at the first use too, and the system ends the process
    // where there is no memory left for it. So nothing here throws, as new does, and once there is a record that is
    // made at once.
    void* const room = std::malloc(sizeof(Record));
    if (room == nullptr) return nullptr;
    Record* const made = std::construct_at(static_cast<Record*>(room));
    if (!slot.set(made)) {
        drop(made);
        return nullptr;
    }
    (void)std::uncaught_exceptions();
    return made;
}

}  // namespace

Status raise(const Guid& classId, std::string description, Status status) {
    if (Record* const error = record()) *error = ObjectError{classId, std::move(description), status};
    return status;
}

Status raise(const Guid& classId, const Outcome& outcome) {
    if (outcome.description().empty()) return outcome.status();
    return raise(classId, outcome.description(), outcome.status());
}

const ObjectError* lastError() {
    const Record* const error = record();
    return error != nullptr && error->has_value() ? &**error : nullptr;
}

void clearLastError() {
    if (Record* const error = record()) error->reset();
}

std::optional<ObjectError> takeLastError() {
    Record* const error = record();
    return error != nullptr ? std::exchange(*error, std::nullopt) : std::nullopt;
}

}  // namespace tarq
