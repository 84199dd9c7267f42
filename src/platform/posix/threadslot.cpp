#include "platform/threadslot.h"

#include <pthread.h>

#include <type_traits>

namespace tarq {

static_assert(std::is_same_v<pthread_key_t, unsigned>);

ThreadSlot::ThreadSlot(void (*drop)(void* pointer)) noexcept : isThere_(pthread_key_create(&number_, drop) == 0) {}

void* ThreadSlot::get() const noexcept { return isThere_ ? pthread_getspecific(number_) : nullptr; }

bool ThreadSlot::set(void* pointer) const noexcept { return isThere_ && pthread_setspecific(number_, pointer) == 0; }

}  // namespace tarq
