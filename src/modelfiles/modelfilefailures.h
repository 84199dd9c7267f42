// Failures that more than one reader or writer of model files words.
#pragma once

#include <string>

#include "modelfiles/fixedname.h"
#include "parameters/filefailures.h"
#include "tarq/frame/status.h"

namespace tarq {

/// A number for a format that no format has.
[[nodiscard]] inline Outcome unknownFormat() { return {status::invalidArgument, "Wrong parameter for file format."}; }

/// Of a format that knows columns by their names.
[[nodiscard]] inline Outcome unnamedColumns() { return {status::badColumnName, "One or more columns have no name."}; }

/// Of a format whose names are FixedNames.
[[nodiscard]] inline Outcome columnNameTooLong(const std::string& name) {
    static_assert(FixedName::longest == 8);
    return {status::badColumnName, "Variable name '" + name + "' is longer than 8 characters."};
}

/// The text of the other writers, fileFailure(), tells "writing to a file".
[[nodiscard]] inline Outcome openFailureOfLindo() {
    return {status::fileAccess, "I/O error while opening file for writing Lindo model."};
}

}  // namespace tarq
