#include "frame/status.h"

#include <algorithm>
#include <array>

namespace tarq::status {
namespace {

struct StatusMeaning {
    Status status;
    std::string_view text;
};

constexpr std::array meanings{
    StatusMeaning{ok, "success"},
    StatusMeaning{notImplemented, "not implemented"},
    StatusMeaning{wrongClass, "object of the wrong class was passed"},
    StatusMeaning{nullPointer, "null output pointer"},
    StatusMeaning{generalFailure, "general failure"},
    StatusMeaning{classNotAvailable, "class is not available"},
    StatusMeaning{outOfMemory, "out of memory"},
    StatusMeaning{badArgument, "bad argument"},
    StatusMeaning{componentFailure, "general component failure"},
    StatusMeaning{libraryNotFound, "engine or library file not found"},
    StatusMeaning{entryPointsMissing, "entry points of the library missing"},
    StatusMeaning{engineMemory, "engine memory"},
    StatusMeaning{unknownParameter, "unknown parameter name"},
    StatusMeaning{wrongKind, "argument of a wrong kind"},
    StatusMeaning{valueOutOfRange, "parameter value out of range"},
    StatusMeaning{textTooLong, "text argument too long"},
    StatusMeaning{boundOrder, "bound order violated"},
    StatusMeaning{indexOutOfRange, "index out of range"},
    StatusMeaning{externalProcess, "external process failed"},
    StatusMeaning{modelRejected, "modelling-language model rejected"},
    StatusMeaning{temporaryFile, "temporary file or AMPL interface failure"},
    StatusMeaning{crucialError, "engine reported a crucial error"},
    StatusMeaning{badColumnName, "bad column name"},
    StatusMeaning{propertyPage, "property page failure"},
    StatusMeaning{fileAccess, "file input or output failure"},
    StatusMeaning{profileFailure, "profile processing failure"},
    StatusMeaning{syntaxError, "syntax error in a model file"},
    StatusMeaning{badRowName, "bad row name"},
    StatusMeaning{fieldEmpty, "empty field"},
    StatusMeaning{fieldNotNumeric, "field is not numeric"},
    StatusMeaning{engineSetup, "engine initialisation failed"},
    StatusMeaning{fileNameRejected, "file name rejected"},
    StatusMeaning{fileNotReachable, "file not reachable"},
    StatusMeaning{invalidArgument, "invalid argument value"},
    StatusMeaning{wrongState, "object in the wrong state for this operation"},
    StatusMeaning{notInitialized, "object not initialised"},
    StatusMeaning{elementOutOfRange, "index-set element number out of range"},
    StatusMeaning{languageInterface, "modelling-language interface failure"},
    StatusMeaning{resourceLimit, "a resource limit ended the run"},
    StatusMeaning{stoppedAtBreak, "the run stopped at a break"},
    StatusMeaning{noLpSolution, "no LP solution available"},
    StatusMeaning{noIpSolution, "no IP solution available"},
    StatusMeaning{noSuchNonzero, "no such nonzero"},
    StatusMeaning{unknownMember, "no such member"},
    StatusMeaning{unknownParameterName, "no such parameter, or one given twice"},
    StatusMeaning{argumentType, "argument of a type that can't be converted"},
    StatusMeaning{unknownName, "unknown name"},
    StatusMeaning{argumentCount, "wrong number of arguments"},
    StatusMeaning{noAggregation, "object can't be made a part of another one"},
    StatusMeaning{classNotInLibrary, "class is not in this library"},
    StatusMeaning{noConnection, "no such subscription or events"},
    StatusMeaning{cannotConnect, "object can't receive these events"},
    StatusMeaning{arrayCondition, "array condition"},
};

}  // namespace

std::string_view meaning(Status status) {
    const auto* found = std::ranges::find(meanings, status, &StatusMeaning::status);
    return found == meanings.end() ? "unknown status" : found->text;
}

}  // namespace tarq::status
