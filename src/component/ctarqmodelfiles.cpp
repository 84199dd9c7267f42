// CTARQModel: reading and writing model files.
#include "component/ctarqmodel.h"
#include "frame/result.h"
#include "modelfiles/modelcutout.h"
#include "modelfiles/modelfile.h"
#include "modelfiles/modelwriter.h"

namespace tarq {

Status CTARQModel::ReadModel(const std::string& FileName, TARQFileFormatType eFileFormat) {
    return guarded([&] { return readModelFile(FileName, eFileFormat, *this); });
}

Status CTARQModel::WriteModel(const std::string& FileName, TARQFileFormatType eFileFormat) {
    return guarded([&] { return writeModelFile(FileName, eFileFormat, {store_, parameters_, modelName_}); });
}

Status CTARQModel::WriteDebugModel(const std::string& FileName, const Variant& StartRow, const Variant& EndRow,
                                   const Variant& StartCol, const Variant& EndCol) {
    return guarded([&] {
        TARQ_TRY(checkWrittenName(FileName));
        ModelCutout cutout{};
        Outcome resolved = resolveCutout(store_, {StartRow, EndRow, StartCol, EndCol}, cutout);
        return resolved.isOk() ? writeModelListing(FileName, {store_, parameters_, modelName_}, cutout) : resolved;
    });
}

}  // namespace tarq
