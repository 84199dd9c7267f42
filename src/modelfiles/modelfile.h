// Reading a model file: from a file name and a format to a filled model.
//
// A reader empties the model before it adds the first record, and nothing is rolled back: after a parse failure the
// model holds what was read so far. Plain functions; one thread at a time for a target.
#pragma once

#include <string>

#include "model/modeltarget.h"
#include "tarq/frame/status.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

/// The model that a reader fills.
using ModelFileTarget = ModelTarget;

/// Reads `fileName` into `target`. Failures before the reader starts leave the target as it was; a parse failure leaves
/// what was read so far.
/// textTooLong for a name of more than 255 characters, fileAccess for a file that can't be read or has 2^31 bytes or
/// more, invalidArgument for a format that is none, syntaxError for a text that breaks the rules of its format: the
/// description tells what was expected and on which line. A file that is no regular one, such as a pipe, is read to its
/// end.
[[nodiscard]] Outcome readModelFile(const std::string& fileName, TARQFileFormatType format, ModelFileTarget& target);

/// Reads a text that comes from elsewhere, with the failures of readModelFile but those of the file name.
[[nodiscard]] Outcome readModelText(std::string text, TARQFileFormatType format, ModelFileTarget& target);

}  // namespace tarq
