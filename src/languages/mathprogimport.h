// Reading a model in GNU MathProg through a library that knows the language.
//
// The library's interface has one problem for the whole process, so one import at a time is under way in it; another
// thread's waits. There is no time limit: a model may take as long to generate as it likes.
#pragma once

#include <string>

#include "languages/languagetarget.h"
#include "languages/mathproglibrary.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Loads the library, which stays loaded, and reads `modelFile` into `target` as importMathProgModel does.
/// libraryNotFound when it can't be loaded, at `location` or where DynamicLibrary::load looks for a plain name.
[[nodiscard]] Outcome readMathProgModel(const std::string& location, const std::string& modelFile,
                                        const Variant& dataFile, LanguageTarget& target);

/// Reads `modelFile` and `dataFile`, a text or missing, into `target`. The library's listing becomes the target's
/// output, cut at its limit, also when the library refuses the model. The first free row is the objective and no row of
/// the model; where there is none, the nonzeros of each row are stored one row higher and those of the first are lost.
/// entryPointsMissing when the library lacks an operation, the failures of checkInputFile, invalidArgument for a data
/// file that is no text, temporaryFile when there is no temporary file to be had and modelRejected for a model that the
/// library refuses: the target's model stays. A failure to add a record, such as a name that comes twice, leaves what
/// was added so far.
[[nodiscard]] Outcome importMathProgModel(const MathProgLibrary& library, const std::string& modelFile,
                                          const Variant& dataFile, LanguageTarget& target);

}  // namespace tarq
