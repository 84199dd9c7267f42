// CTARQModel: reading model files.
#include "component/ctarqmodel.h"
#include "component/memberguard.h"
#include "modelfiles/modelfile.h"

namespace tarq {

Status CTARQModel::ReadModel(const std::string& FileName, TARQFileFormatType eFileFormat) {
    return guarded(classid::TARQModel, [&] { return readModelFile(FileName, eFileFormat, *this); });
}

}  // namespace tarq
