#include "modelfiles/modelfile.h"

#include <optional>
#include <utility>

#include "frame/result.h"
#include "modelfiles/lindoreader.h"
#include "modelfiles/modelfilefailures.h"
#include "modelfiles/mpsreader.h"
#include "modelfiles/tripletreader.h"
#include "platform/wholefile.h"

namespace tarq {
namespace {

Outcome parseOutcome(std::string_view format, const std::optional<ParseFailure>& failure) {
    if (!failure) return {};
    return {status::syntaxError, parseFailureText(format, *failure)};
}

}  // namespace

Outcome readModelFile(const std::string& fileName, TARQFileFormatType format, ModelFileTarget& target) {
    TARQ_TRY(checkFileName(fileName));
    std::optional<std::string> text = readWholeFile(fileName);
    if (!text) return fileFailure();
    return readModelText(*std::move(text), format, target);
}

Outcome readModelText(std::string text, TARQFileFormatType format, ModelFileTarget& target) {
    if (text.size() > largestWholeFile) return fileFailure();
    const auto held = target.store().gate().edit();
    switch (format) {
        case TARQFileFormatType::MPS:
            return parseOutcome("MPS", readMps(std::move(text), target));
        case TARQFileFormatType::Triplet:
            return parseOutcome("Triplet", readTriplet(std::move(text), target));
        case TARQFileFormatType::Lindo:
            return parseOutcome("Lindo", readLindo(std::move(text), target));
    }
    return unknownFormat();
}

}  // namespace tarq
