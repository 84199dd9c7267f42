// The import of a model in AMPL: the translator turns its text into a stub, and the stub is read.
#pragma once

#include <string>

#include "languages/languagetarget.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"

namespace tarq {

/// Replaces the target's model by the one in `modelFile` with the data in `dataFiles`, each a text. The translator is
/// the program that `translator` names (see findProgram); what it writes is kept as the target's output, also when its
/// text is in error. Waits for it without a limit.
/// fileNameRejected and fileNotReachable for files that can't be read; invalidArgument for a data file that is no text;
/// temporaryFile for a temporary file that can't be made or read; externalProcess for a translator that can't be
/// started; modelRejected when it has written no stub; else the failures of readAmplStub. The temporary files that the
/// translator has written stay after a failure.
[[nodiscard]] Outcome readAmplModel(const std::string& modelFile, const ValueList& dataFiles,
                                    const std::string& translator, LanguageTarget& target);

}  // namespace tarq
