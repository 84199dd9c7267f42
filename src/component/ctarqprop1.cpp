#include "component/ctarqprop1.h"

#include "frame/memberguard.h"
#include "parameterpage/pageframe.h"
#include "tarq/interfaces/itarqmodel.h"

namespace tarq {

Status CTARQProp1::Show(IUnknown* object, std::int32_t* applied) {
    if (object == nullptr || applied == nullptr) return status::nullPointer;
    return contained([&] {
        // Held, as a client that an apply calls may drop every other reference.
        const Ref<ITARQModel> model = Ref<IUnknown>(object).query<ITARQModel>();
        if (!model) return status::wrongClass;
        bool isApplied = false;
        const Status shown = showParameterPage(*model, isApplied);
        *applied = isApplied ? 1 : 0;
        return shown;
    });
}

}  // namespace tarq
