// CTARQModel: models in GNU MathProg.
#include "component/ctarqmodel.h"
#include "languages/mathprogimport.h"

namespace tarq {

Status CTARQModel::ReadMathProgModel(const std::string& MODFileName, const Variant& DATFileName) {
    return guarded([&] { return readMathProgModel(locationOfMathProgDll_, MODFileName, DATFileName, *this); });
}

}  // namespace tarq
