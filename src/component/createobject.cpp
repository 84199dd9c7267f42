#include "component/createobject.h"

#include <new>
#include <string>

#include "component/classtable.h"
#include "frame/objecterror.h"

namespace tarq {

Ref<IUnknown> createObject(std::string_view name) {
    const ClassEntry* found = findClass(name);
    if (found == nullptr) {
        (void)raise(Guid{}, "There is no class '" + std::string(name) + "'.", status::classNotAvailable);
        return {};
    }
    try {
        return found->create();
    } catch (const std::bad_alloc&) {
        (void)raise(found->classId, "Out of memory.", status::outOfMemory);
        return {};
    }
}

}  // namespace tarq
