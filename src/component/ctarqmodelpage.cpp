// CTARQModel: the parameter page.
#include "component/ctarqmodel.h"
#include "tarq/component/createobject.h"
#include "tarq/interfaces/ipropertypage.h"

namespace tarq {

Status CTARQModel::ShowPropertyPage(std::int32_t* pbDirty) {
    if (pbDirty == nullptr) return status::nullPointer;
    return guarded([&] {
        const Ref<IUnknown> held(static_cast<ITARQModel*>(this));
        // The page clears requiresSave_ once it is its turn, so that a call refused leaves the open page's mark alone.
        const Ref<IPropertyPage> page = createObject<IPropertyPage>("tarqprop1");
        std::int32_t applied = 0;
        if (!page || page->Show(held.get(), &applied).failed()) {
            return Outcome(status::propertyPage, "Could not show property page.");
        }
        *pbDirty = requiresSave_ ? 1 : 0;
        return Outcome();
    });
}

}  // namespace tarq
