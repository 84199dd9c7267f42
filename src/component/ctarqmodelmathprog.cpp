// CTARQModel: models in GNU MathProg.
#include "component/ctarqmodel.h"
#include "frame/memberguard.h"
#include "languages/mathprogimport.h"

namespace tarq {

Status CTARQModel::ReadMathProgModel(const std::string& MODFileName, const Variant& DATFileName) {
    return guarded(classid::TARQModel,
                   [&] { return readMathProgModel(locationOfMathProgDll_, MODFileName, DATFileName, *this); });
}

}  // namespace tarq
