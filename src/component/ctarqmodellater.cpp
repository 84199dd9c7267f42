// CTARQModel: published members that the component does not offer yet.
#include "component/ctarqmodel.h"

namespace tarq {

// NOLINTBEGIN(bugprone-reserved-identifier)
Status CTARQModel::AddVar(IUnknown* /*TARQVar*/) { return status::notImplemented; }
Status CTARQModel::AddRes(IUnknown* /*TARQRes*/) { return status::notImplemented; }
Status CTARQModel::AttachVar(IUnknown* /*TARQVar*/, const Variant& /*Index*/) { return status::notImplemented; }
Status CTARQModel::AttachRes(IUnknown* /*TARQRes*/, const Variant& /*Index*/) { return status::notImplemented; }
Status CTARQModel::ExecuteAMPLModel(const std::string& /*MODFileName*/) { return status::notImplemented; }
Status CTARQModel::ReadAMPLModel(const std::string& /*MODFileName*/, const ValueList& /*DATFileNames*/) {
    return status::notImplemented;
}
Status CTARQModel::ReadMathProgModel(const std::string& /*MODFileName*/, const Variant& /*DATFileName*/) {
    return status::notImplemented;
}
Status CTARQModel::ReadMPLModel(const std::string& /*FileName*/) { return status::notImplemented; }
Status CTARQModel::ShowPropertyPage(std::int32_t* /*pbDirty*/) { return status::notImplemented; }
Status CTARQModel::get_Var(const Variant& /*Index*/, Ref<IUnknown>* /*value*/) { return status::notImplemented; }
Status CTARQModel::put_Var(const Variant& /*Index*/, IUnknown* /*value*/) { return status::notImplemented; }
Status CTARQModel::get_IsMPLAvailable(std::int32_t* /*value*/) { return status::notImplemented; }
Status CTARQModel::get_Res(const Variant& /*Index*/, Ref<IUnknown>* /*value*/) { return status::notImplemented; }
Status CTARQModel::put_Res(const Variant& /*Index*/, IUnknown* /*value*/) { return status::notImplemented; }
Status CTARQModel::ReadAMPLStub(const std::string& /*StubFileName*/) { return status::notImplemented; }
Status CTARQModel::_WriteAMPLSolStub(const std::string& /*StubFileName*/) { return status::notImplemented; }
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace tarq
