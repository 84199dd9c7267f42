// CTARQModel: published members that the component does not offer yet.
#include "component/ctarqmodel.h"

namespace tarq {

Status CTARQModel::ShowPropertyPage(std::int32_t* /*pbDirty*/) { return status::notImplemented; }

}  // namespace tarq
