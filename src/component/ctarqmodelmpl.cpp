// CTARQModel: models in MPL.
#include "component/ctarqmodel.h"
#include "tarq/component/serverregistry.h"

namespace tarq {
namespace {

Ref<IDispatch> createMplServer() { return createServer(mplServerProgId).query<IDispatch>(); }

}  // namespace

Status CTARQModel::ReadMPLModel(const std::string& FileName) {
    return guarded([&] {
        // What the server does may drop the last reference but this one, set another directory, or change the caller's
        // text.
        const Ref<IUnknown> held(static_cast<ITARQModel*>(this));
        const std::string directory = mplWorkingDirectory_;
        const std::string fileName = FileName;
        return readMplModel(fileName, directory, createMplServer, mplError_, *this);
    });
}

Status CTARQModel::get_IsMPLAvailable(std::int32_t* value) {
    return guardedGet(value, [] { return createMplServer() ? 1 : 0; });
}

Status CTARQModel::get_MPLErrorMessage(std::string* value) {
    return guardedGet(value, [&] { return mplError_.message; });
}

Status CTARQModel::get_MPLErrorLine(std::int32_t* value) {
    return guardedGet(value, [&] { return mplError_.line; });
}

}  // namespace tarq
