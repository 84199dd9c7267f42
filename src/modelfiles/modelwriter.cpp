#include "modelfiles/modelwriter.h"

#include "frame/result.h"
#include "frame/text.h"
#include "modelfiles/lindowriter.h"
#include "modelfiles/modelfilefailures.h"
#include "modelfiles/mpswriter.h"
#include "modelfiles/tripletwriter.h"
#include "tarq/interfaces/limits.h"

namespace tarq {

Outcome checkWrittenName(const std::string& fileName) {
    if (utf16Length(fileName) <= longestPath) return {};
    return {status::textTooLong, "Filename is too long."};
}

Outcome writeModelFile(const std::string& fileName, TARQFileFormatType format, const WrittenModel& model) {
    TARQ_TRY(checkWrittenName(fileName));
    switch (format) {
        case TARQFileFormatType::MPS:
            return writeMps(fileName, model);
        case TARQFileFormatType::Triplet:
            return writeTriplet(fileName, model);
        case TARQFileFormatType::Lindo:
            return writeLindo(fileName, model);
    }
    return unknownFormat();
}

}  // namespace tarq
