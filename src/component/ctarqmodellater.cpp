// CTARQModel: published members that the component does not offer yet.
#include "component/ctarqmodel.h"

namespace tarq {

// NOLINTBEGIN(bugprone-reserved-identifier)
Status CTARQModel::ReadMathProgModel(const std::string& /*MODFileName*/, const Variant& /*DATFileName*/) {
    return status::notImplemented;
}
Status CTARQModel::ReadMPLModel(const std::string& /*FileName*/) { return status::notImplemented; }
Status CTARQModel::ShowPropertyPage(std::int32_t* /*pbDirty*/) { return status::notImplemented; }
Status CTARQModel::get_IsMPLAvailable(std::int32_t* /*value*/) { return status::notImplemented; }
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace tarq
