#include "tarq/component/createobject.h"

#include <string>

#include "tarq/component/classtable.h"
#include "tarq/frame/objecterror.h"

namespace tarq {

Ref<IUnknown> createObject(std::string_view name) {
    const ClassEntry* found = findClass(name);
    if (found == nullptr) {
        (void)raise({}, std::string("There is no class '").append(name).append("'."), status::classNotAvailable);
        return {};
    }
    void* object = nullptr;
    if (const Status created = found->create(nullptr, IUnknown::id, &object); !created.isOk()) {
        (void)raise(found->classId, std::string(status::meaning(created)), created);
        return {};
    }
    return Ref<IUnknown>::adopt(static_cast<IUnknown*>(object));
}

}  // namespace tarq
