// CTARQModel: published members that the component does not offer yet.
#include "component/ctarqmodel.h"

namespace tarq {

// NOLINTBEGIN(bugprone-reserved-identifier)
Status CTARQModel::ExecuteAMPLModel(const std::string& /*MODFileName*/) { return status::notImplemented; }
Status CTARQModel::ReadAMPLModel(const std::string& /*MODFileName*/, const ValueList& /*DATFileNames*/) {
    return status::notImplemented;
}
Status CTARQModel::ShowPropertyPage(std::int32_t* /*pbDirty*/) { return status::notImplemented; }
Status CTARQModel::ReadAMPLStub(const std::string& /*StubFileName*/) { return status::notImplemented; }
Status CTARQModel::_WriteAMPLSolStub(const std::string& /*StubFileName*/) { return status::notImplemented; }
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace tarq
